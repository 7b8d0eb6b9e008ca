// One command of each kind, cut at each of its changes: files that are moved, kept and brought
// back, the safe list, the settings, the protection from ActiveX controls.
#include <algorithm>
#include <filesystem>

#include "ActiveXKeys.h"
#include "CutTest.h"
#include "Input.h"
#include "RegistryMerge.h"
#include "StartupTest.h"
#include "TargetTest.h"
#include "UtilitiesTest.h"

namespace velkarix::e2e {
namespace {

// ---- Startup items: a value and a shortcut

class StartupCut : public CutTest<StartupItemTest> {
  protected:
    const std::optional<RegistryValue> whole_ = ReadItem(Item(), true);

    void Place(bool enabled) {
        WriteItem(Item(), enabled, *whole_);
        RemoveItem(Item(), !enabled);
        std::filesystem::remove_all(install_.Path("Backup"));
    }
    bool IsWhole(bool enabled) { return ReadItem(Item(), enabled) == whole_; }
    void ExpectShownWhereItIsWhole() {
        OpenStartup();
        for (const bool enabled : {true, false}) {
            EXPECT_TRUE(!IsWhole(enabled) || IsListed(Item(), enabled));
        }
    }
    // Whether a shortcut, or what brings a value back, is kept.
    bool IsKept() {
        for (const std::string& file : BackupFiles()) {
            const std::string path = install_.Path("Backup\\" + file);
            if (Item().hive == nullptr) {
                const std::string bytes = ReadWholeFile(path);
                WriteItem(Item(), true, {REG_NONE, {bytes.begin(), bytes.end()}});
            } else {
                EXPECT_TRUE(MergeRegistryFile(path)) << path;
            }
            if (IsWhole(true)) return true;
        }
        return false;
    }
    void CutMove(bool enabled);
};

void StartupCut::CutMove(bool enabled) {
    ASSERT_TRUE(whole_);
    CutAtEachChange({2, [&] { Place(enabled); },
                     [&] {
                         OpenStartup();
                         TickItem(Item(), enabled);
                     },
                     [&] { Running().Press(enabled ? "cmdDisable" : "cmdEnable"); },
                     [&](bool done) {
                         EXPECT_TRUE(IsWhole(true) || IsWhole(false)) << "it is lost";
                         EXPECT_TRUE(!done || (IsWhole(!enabled) && !ReadItem(Item(), enabled)));
                         ExpectShownWhereItIsWhole();
                     }});
}

TEST_P(StartupCut, AnItemThatIsBeingDisabledIsNeverInNeitherPlace) {
    CutMove(true);
}

TEST_P(StartupCut, AnItemThatIsBeingEnabledIsNeverInNeitherPlace) {
    CutMove(false);
}

TEST_P(StartupCut, AnItemThatIsBeingDeletedIsWholeOrKept) {
    ASSERT_TRUE(whole_);
    CutAtEachChange({2, [&] { Place(true); },
                     [&] {
                         OpenStartup();
                         SelectItem(Item(), true);
                     },
                     [&] {
                         EXPECT_TRUE(Running().Control("cmdDelete").Click());
                         AnswerMessage(IDYES);
                         WaitUntilDoneOrEnded([&] { return !ReadItem(Item(), true); });
                     },
                     [&](bool) { EXPECT_TRUE(IsWhole(true) || IsKept()) << "it is lost"; }});
}

INSTANTIATE_TEST_SUITE_P(Some, StartupCut, testing::Values(StartupItems[0], StartupItems[11]),
                         TitleOfStartupItem);

// ---- The safe list

class SafeListCut : public CutTest<ProgramTest> {};

TEST_F(SafeListCut, TheListIsTheOldOneOrTheNewOne) {
    const std::string old = "c:\\one.exe\r\nc:\\two.exe\r\n";
    constexpr std::size_t DigestLine = 34;
    CutAtEachChange({4,
                     [&] {
                         install_.Write("SafeProcess.vkl", old);
                         install_.Remove("SafeProcess.vkl.new");
                     },
                     [&] {
                         Start();
                         Tick(List(), RowOf("SampleSafe.exe"));
                     },
                     [&] { Running().Press("cmdAdd"); },
                     [&](bool done) {
                         if (!done) Start();  // and so what was begun is finished
                         const std::string now = install_.Read("SafeProcess.vkl");
                         EXPECT_TRUE(now.starts_with(old)) << now;
                         EXPECT_TRUE(now.size() == old.size() + DigestLine || (now == old && !done))
                             << now;
                         EXPECT_EQ(now != old, !List().Find("SampleSafe.exe"));
                         EXPECT_FALSE(install_.Exists("SafeProcess.vkl.new"));
                     }});
}

// ---- Settings: written by the system itself, which empties the file before it fills it

class SettingsCut : public CutTest<ProgramTest> {};

TEST_F(SettingsCut, TheFileIsTheOldOneOrTheNewOneOrEmptyAndTheProgramStarts) {
    const std::string old = "[Main]\r\nFirstRun=1\r\nFilter=1\r\nSusColor=7\r\n";
    CutAtEachChange({3, [&] { install_.Write("Settings.ini", old); }, [&] { Start(); },
                     [&] { Running().Press("optFilter(0)"); },
                     [&](bool done) {
                         const bool isEmpty = install_.Read("Settings.ini").empty();
                         const std::string filter = install_.Ini("Settings.ini", "Main", "Filter");
                         EXPECT_TRUE(filter == "0" || (!done && (filter == "1" || isEmpty)));
                         EXPECT_TRUE(isEmpty ||
                                     install_.Ini("Settings.ini", "Main", "SusColor") == "7");
                         EXPECT_TRUE(Start().Main());
                     }});
}

// ---- Programs that are deleted and brought back

class ProgramCut : public CutTest<TargetTest> {
  protected:
    const std::string bytes_ = install_.Read(Target);

    // The only one that a set of the folder of backups tells of.
    bool HasBackup() {
        const std::vector<std::string> files = BackupFiles();
        return std::ranges::any_of(files, [&](const std::string& file) {
            const std::string stem = "Backup\\" + file.substr(0, file.find('.'));
            return install_.Read(stem + ".bup") == bytes_ &&
                   install_.Read(stem + ".prc").find(std::string(Target) + '\x01') !=
                       std::string::npos;
        });
    }
    bool IsKept(const std::string& bytes) {
        const std::vector<std::string> files = BackupFiles();
        return std::ranges::any_of(files, [&](const std::string& file) {
            return install_.Read("Backup\\" + file) == bytes;
        });
    }
    void EmptyBackups() {
        for (const std::string& file : BackupFiles()) install_.Remove("Backup\\" + file);
    }
};

TEST_F(ProgramCut, AProgramThatIsBeingDeletedIsWholeOrHasABackup) {
    ASSERT_FALSE(bytes_.empty());
    CutAtEachChange({4,
                     [&] {
                         install_.Write(Target, bytes_);
                         EmptyBackups();
                     },
                     [&] { StartTarget(); },
                     [&] {
                         SelectRow(Target);
                         EXPECT_TRUE(Running().Control("cmdDelete").Click());
                         AnswerMessage(IDYES);
                         WaitUntilDoneOrEnded([&] { return !install_.Exists(Target); });
                     },
                     [&](bool done) {
                         EXPECT_TRUE(install_.Read(Target) == bytes_ || HasBackup());
                         EXPECT_TRUE(!done || !install_.Exists(Target));
                         EndTarget();
                     }});
}

TEST_F(ProgramCut, ABackupThatIsBeingRestoredIsThereOrWhereItBelongs) {
    const std::string record = install_.Path(Target) + '\x01' + "1/1/2004\r\n";
    CutAtEachChange({4,
                     [&] {
                         EmptyBackups();
                         CreateDirectoryA(install_.Path("Backup").c_str(), nullptr);
                         install_.Write("Backup\\1.bup", bytes_);
                         install_.Write("Backup\\1.prc", record);
                         install_.Write(Target, "another");
                         install_.Write("Settings.ini",
                                        "[Main]\r\nFirstRun=1\r\nDelete=1\r\n"
                                        "[Update]\r\nCheckUpdate=0\r\n");
                     },
                     [&] {
                         Start();
                         EXPECT_TRUE(Running().Press("cmdOptions"));
                         SelectRow(Running().List("lstvBackup"), 0);
                     },
                     [&] {
                         EXPECT_TRUE(Running().Control("cmdrestore").Click());
                         AnswerMessage(IDOK);
                         WaitUntilDoneOrEnded([&] { return !install_.Exists("Backup\\1.prc"); });
                     },
                     [&](bool done) {
                         EXPECT_TRUE(install_.Read(Target) == bytes_ || HasBackup());
                         EXPECT_TRUE(install_.Read(Target) == "another" || IsKept("another"));
                         EXPECT_TRUE(!done || install_.Read(Target) == bytes_);
                     }});
}

// ---- ActiveX controls

class ActiveXCut : protected ActiveXKeys, public CutTest<UtilitiesTest> {};

TEST_F(ActiveXCut, EachControlIsProtectedOrNotAndTheRestCanBeProtectedLater) {
    const std::vector<std::string> names = ListedControls(install_);
    const RegistryTree whole = WithFlags(names);
    CutAtEachChange({2 * static_cast<int>(names.size()), [&] { RestoreKeys(); },
                     [&] { OpenUtilities(); },
                     [&] {
                         ClickOn("cmdActiveXProtect");
                         AnswerMessage(IDOK);
                     },
                     [&](bool done) {
                         for (const auto& [name, tree] : ReadKeys().keys) {
                             const auto wanted = whole.keys.find(name);
                             ASSERT_NE(wanted, whole.keys.end()) << name;
                             EXPECT_TRUE(tree == wanted->second || tree == RegistryTree()) << name;
                         }
                         if (!done) {
                             OpenUtilities();
                             ClickOn("cmdActiveXProtect");
                             ExpectMessage("Protection activated Successfully.", Icon::Information);
                         }
                         EXPECT_EQ(ReadKeys(), whole);
                     }});
}

}  // namespace
}  // namespace velkarix::e2e
