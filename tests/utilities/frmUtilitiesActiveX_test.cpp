#include <algorithm>

#include "tests/machine/RegistryFileMerge.h"
#include "tests/utilities/ActiveXKeys.h"
#include "tests/utilities/UtilitiesPage.h"

namespace velkarix {
namespace {

using Texts = std::vector<std::string>;
using namespace std::string_literals;

constexpr const char* Protected = "Protection activated Successfully.";
constexpr const char* Removed = "Protection removed Successfully.";

class ActiveXProtectionTest : public UtilitiesPage {
  protected:
    static constexpr const char* KeptFile = "Backup\\6_1_153_12_0_0_ActiveX.reg";
    void List(const std::string& text) { program.AddInstalledFile("MalActivex.scl").Content(text); }
    void Protect() { ClickAnew("cmdActiveXProtect"); }
    void Remove() { ClickAnew("cmdActiveXRemove"); }
    Texts Keys() { return program.machine.registry.SubKeysOf(Hive::LocalMachine, AllKeys); }
    static std::string Joined(const Texts& lines) {
        std::string text;
        for (const std::string& line : lines) text.append(line).append("\r\n");
        return text;
    }
    bool IsKilled(const std::string& name) {
        return FlagsOf(program.machine.registry, name) == KillBit;
    }
    std::string NotDeleted(const std::string& name, ErrorCode code) {
        return "Following Key Could not be deleted: \r\n" + KeyOf(name) + "\r\n\r\n" +
               program.application.registry.GetSystemErrorText(code);
    }

  private:
    void ClickAnew(const char* button) {
        if (program.application.forms.Loaded("frmUtilities") == nullptr) Open();
        program.desktop.messages.clear();
        Click(button);
        EXPECT_EQ(program.machine.registry.OpenKeyCount(), 0u);
        EXPECT_EQ(program.machine.files.OpenFileCount(), 0u);
    }
};

TEST_F(ActiveXProtectionTest, SetsTheKillBitOfEachListedControl) {
    List("{A}\r\n\r\n{B}\r\n");
    Protect();
    EXPECT_EQ(Keys(), (Texts{"{A}", "{B}"}));
    for (const char* name : {"{A}", "{B}"}) {
        const auto value = program.machine.registry.ValueAt(Hive::LocalMachine, KeyOf(name),
                                                            "Compatibility Flags");
        ASSERT_TRUE(value.has_value());
        EXPECT_EQ(value->type, registryType::Dword);
        EXPECT_EQ(value->data, (Bytes{0, 4, 0, 0}));
    }
    EXPECT_EQ(Told(), Texts{Protected});
    EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Information);
    EXPECT_EQ(program.desktop.messages[0].title, "Velkarix");
}

TEST_F(ActiveXProtectionTest, MakesEachKeyAndThenWritesItsFlags) {
    List("{A}\r\n");
    Open();
    program.machine.Journal().Clear();
    Click("cmdActiveXProtect");
    Texts changes = program.machine.Journal().Names();
    std::erase_if(changes, [](const std::string& call) { return !call.starts_with("Reg"); });
    EXPECT_EQ(changes, (Texts{"RegCreateKeyA", "RegCloseKey", "RegCreateKeyA", "RegSetValueExA",
                              "RegCloseKey"}));
}

TEST_F(ActiveXProtectionTest, ChangesNothingASecondTime) {
    List("{A}\r\n{B}\r\n");
    Protect();
    const std::string after = program.machine.registry.TreeText(Hive::LocalMachine, "");
    Protect();
    EXPECT_EQ(program.machine.registry.TreeText(Hive::LocalMachine, ""), after);
    EXPECT_EQ(Told(), Texts{Protected});
}

TEST_F(ActiveXProtectionTest, KeepsWhatElseTheKeysHold) {
    program.machine.SetValue(Hive::LocalMachine, KeyOf("{A}"), "AlternateCLSID", "{B}");
    program.machine.SetDword(Hive::LocalMachine, KeyOf("{A}"), "Compatibility Flags", 0x20);
    List("{a}\r\n");
    Protect();
    EXPECT_TRUE(IsKilled("{A}"));
    EXPECT_EQ(program.machine.registry.TextAt(Hive::LocalMachine, KeyOf("{A}"), "AlternateCLSID"),
              "{B}");
    EXPECT_EQ(Keys(), Texts{"{A}"});
}

TEST_F(ActiveXProtectionTest, TakesTheKeysOfListedControlsAwayAgainWithAllTheyHold) {
    List("{A}\r\n{B}\r\n");
    program.machine.SetDword(Hive::LocalMachine, KeyOf("{C}"), "Compatibility Flags", KillBit);
    program.machine.SetDword(Hive::LocalMachine, KeyOf("{A}"), "Compatibility Flags", 0x20);
    Protect();
    Remove();
    EXPECT_EQ(Keys(), Texts{"{C}"});
    EXPECT_TRUE(IsKilled("{C}"));
    EXPECT_EQ(Told(), Texts{Removed});
    EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Information);
    EXPECT_EQ(program.desktop.messages[0].title, "Velkarix");
}

// Others may have set flags for a control as well.
TEST_F(ActiveXProtectionTest, KeepsWhatItRemovesInOneRegistryFile) {
    List("{A}\r\n{B}\r\n{C}\r\n");
    MemoryRegistry& registry = program.machine.registry;
    for (const char* name : {"{A}", "{B}"}) {
        registry.SetDword(Hive::LocalMachine, KeyOf(name), "Compatibility Flags", 0x420);
        registry.SetValue(Hive::LocalMachine, KeyOf(name), "AlternateCLSID", name);
    }
    const std::string before = registry.TreeText(Hive::LocalMachine, AllKeys);
    Remove();
    EXPECT_EQ(Told(), (Texts{NotDeleted("{C}", error::FileNotFound), Removed}));
    EXPECT_EQ(Keys(), Texts{});
    EXPECT_TRUE(MergeRegistryFile(registry, program.InstalledText(KeptFile)));
    EXPECT_EQ(registry.TreeText(Hive::LocalMachine, AllKeys), before);
}

TEST_F(ActiveXProtectionTest, KeepsNoFileWhereNothingIsRemoved) {
    List("{A}\r\n");
    Remove();
    EXPECT_EQ(program.InstalledText(KeptFile), "");
}

TEST_F(ActiveXProtectionTest, RemovesNothingThatItCanNotKeep) {
    List("{A}\r\n{B}\r\n");
    Protect();
    program.machine.FailNext("WriteFile", error::DiskFull);
    Remove();
    EXPECT_EQ(Told(), Texts{"Error Occurred backupItem: \r\n" +
                            program.application.registry.GetSystemErrorText(error::DiskFull)});
    EXPECT_EQ(Keys(), (Texts{"{A}", "{B}"}));
}

TEST_F(ActiveXProtectionTest, LeavesAKeyThatItCanNotReadAndGoesOn) {
    List("{A}\r\n{B}\r\n");
    Protect();
    program.machine.FailNext("RegEnumValueA");
    Remove();
    EXPECT_EQ(Told(), (Texts{NotDeleted("{A}", error::AccessDenied), Removed}));
    EXPECT_EQ(Keys(), Texts{"{A}"});
}

TEST_F(ActiveXProtectionTest, SaysOfEachKeyThatItIsMissing) {
    List("{A}\r\n{B}\r\n");
    Remove();
    EXPECT_EQ(Told(), (Texts{NotDeleted("{A}", error::FileNotFound),
                             NotDeleted("{B}", error::FileNotFound), Removed}));
    EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Critical);
}

TEST_F(ActiveXProtectionTest, SaysOfAKeyThatItHasSubkeysAndGoesOn) {
    List("{A}\r\n{B}\r\n");
    Protect();
    program.machine.AddKey(Hive::LocalMachine, KeyOf("{A}\\Below"));
    Remove();
    EXPECT_EQ(Told(), (Texts{NotDeleted("{A}", error::AccessDenied), Removed}));
    EXPECT_EQ(Keys(), Texts{"{A}"});
    EXPECT_TRUE(IsKilled("{A}"));
}

TEST_F(ActiveXProtectionTest, SaysOfEachKeyThatItCanNotBeMadeAndGoesOn) {
    List("{A}\r\n{B}\r\n");
    Open();
    program.machine.FailNext("RegCreateKeyA");
    program.machine.FailNext("RegCreateKeyA");
    Protect();
    EXPECT_EQ(Told(),
              (Texts{"Following Key Could not be created: \r\n" + KeyOf("{A}") + "\r\n" +
                         program.application.registry.GetSystemErrorText(error::AccessDenied),
                     Protected}));
    EXPECT_EQ(Keys(), Texts{"{B}"});
}

// That the loop ended is what it says, not that each value was taken.
TEST_F(ActiveXProtectionTest, SaysNothingOfARefusedValue) {
    List("{A}\r\n{B}\r\n");
    program.machine.FailNext("RegSetValueExA");
    Protect();
    EXPECT_EQ(Told(), Texts{Protected});
    EXPECT_FALSE(IsKilled("{A}"));
    EXPECT_TRUE(IsKilled("{B}"));
}

TEST_F(ActiveXProtectionTest, SaysThatItIsDoneAlsoWithoutAList) {
    Open();
    const std::string before = program.machine.registry.TreeText(Hive::LocalMachine, "");
    Protect();
    EXPECT_EQ(Told(), Texts{Protected});
    Remove();
    EXPECT_EQ(Told(), Texts{Removed});
    List("");
    Protect();
    EXPECT_EQ(Told(), Texts{Protected});
    EXPECT_EQ(program.machine.registry.TreeText(Hive::LocalMachine, ""), before);
}

TEST_F(ActiveXProtectionTest, SaysWhyTheListCanNotBeRead) {
    program.AddInstalledFile("MalActivex.scl").Content("{A}\r\n").Unreadable();
    const std::string text = "Error occurred: " + program.application.registry.GetSystemErrorText(
                                                      error::SharingViolation);
    Protect();
    EXPECT_EQ(Told(), Texts{text});
    EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Critical);
    EXPECT_EQ(program.desktop.messages[0].title, "Velkarix");
    Remove();
    EXPECT_EQ(Told(), Texts{text});
    EXPECT_EQ(Keys(), Texts{});
}

TEST_F(ActiveXProtectionTest, TakesAFolderForAListThatCanNotBeRead) {
    program.machine.AddFolder("C:\\Velkarix\\MalActivex.scl");
    Protect();
    EXPECT_EQ(Told(), Texts{"Error occurred: " +
                            program.application.registry.GetSystemErrorText(error::AccessDenied)});
}

TEST_F(ActiveXProtectionTest, ProtectsFromWhatItCouldReadBeforeTheListBrokeOff) {
    List("");
    Open();
    CallJournal& journal = program.machine.Journal();
    journal.Clear();
    Click("cmdActiveXProtect");
    const Texts calls = journal.Names();
    const auto firstRead = std::find(calls.begin(), calls.end(), "ReadFile") - calls.begin();
    List("{A}\r\n{B");
    journal.Clear();
    journal.FailCall(static_cast<std::size_t>(firstRead) + 1, error::InvalidData);
    Protect();
    EXPECT_EQ(Told(), Texts{"Error occurred: " +
                            program.application.registry.GetSystemErrorText(error::InvalidData)});
    EXPECT_EQ(Keys(), Texts{"{A}"});
}

// ---- Lines that name no control

TEST_F(ActiveXProtectionTest, UsesLinesWithBlanksAndBackslashesAsTheyStand) {
    List(" {A}\r\n{A} \r\n   \r\nx\\y\r\n");
    Protect();
    EXPECT_EQ(Keys(), (Texts{"   ", " {A}", "x", "{A} "}));
    EXPECT_TRUE(IsKilled("x\\y"));
    EXPECT_FALSE(IsKilled("x"));
    Remove();
    EXPECT_EQ(Keys(), Texts{"x"});
    EXPECT_EQ(Told(), Texts{Removed});
}

TEST_F(ActiveXProtectionTest, FailsOnANameThatIsTooLongForAKeyAndGoesOn) {
    List(std::string(256, 'x').append("\r\n{A}\r\n"));
    Protect();
    ASSERT_EQ(Told().size(), 2u);
    EXPECT_TRUE(Told()[0].starts_with("Following Key Could not be created: "));
    EXPECT_EQ(Told()[1], Protected);
    EXPECT_EQ(Keys(), Texts{"{A}"});
}

// Whatever the list says, all that is not named there stays as it is; on the older family, too,
// where a deleted key takes everything below with it.
TEST_F(ActiveXProtectionTest, TouchesNothingThatTheListDoesNotName) {
    std::string list = "\\\r\n\\\\\r\n..\r\n.\r\n\0\r\n\0{S}\r\n{S}\0\r\n\\{S}\r\n\\..\\..\r\n"s;
    list += "..\\{S}\r\n   \r\n\t\r\n\x81\r\n\xE9\\\xE9\r\n*\r\n?\r\n//\r\n\\\0\r\n"s;
    for (const std::size_t length : {255, 256, 4000, 32000, 65535, 65536, 65600, 70000}) {
        list.append(length, 'x').append("\r\n");
    }
    for (const NamedSystem system : {NamedSystem::Windows95, NamedSystem::WindowsXp}) {
        program.machine.SetSystem(system);
        program.machine.SetDword(Hive::LocalMachine, KeyOf("{S}"), "Compatibility Flags", 0x20);
        program.machine.SetDword(Hive::LocalMachine, AllKeys, "Compatibility Flags", 1);
        List(list);
        Open();
        const std::string outside = OutsideOf(program.machine);
        for (const char* button : {"cmdActiveXProtect", "cmdActiveXRemove", "cmdActiveXRemove"}) {
            Click(button);
            EXPECT_EQ(OutsideOf(program.machine), outside) << button;
            EXPECT_EQ(FlagsOf(program.machine.registry, "{S}"), 0x20u) << button;
            EXPECT_EQ(FlagsOf(program.machine.registry, ""), 1u) << button;
        }
        // The last one was made on the way to a key that was named; the first has a name that no
        // registry file brings back.
        EXPECT_EQ(Keys(), (Texts{"\t", "{S}", "\xE9"}));
        program.machine.registry.RemoveKey(Hive::LocalMachine, KeyOf("\t"));
    }
}

TEST_F(ActiveXProtectionTest, GoesThroughListsOfAnyLength) {
    for (const std::size_t count : {0, 1, 1000, 50000}) {
        Texts lines;
        for (std::size_t i = 0; i < count; ++i) {
            lines.push_back("{00000000-0000-0000-0000-" + std::to_string(100000000000 + i) + "}");
        }
        List(Joined(lines));
        Protect();
        EXPECT_EQ(Keys(), lines);
        for (const std::string& name : lines) ASSERT_TRUE(IsKilled(name)) << name;
        EXPECT_EQ(Told(), Texts{Protected});
        // The machine in memory is sooner done with taking away from the end.
        std::reverse(lines.begin(), lines.end());
        List(Joined(lines));
        Remove();
        EXPECT_EQ(Keys(), Texts{});
        EXPECT_EQ(Told(), Texts{Removed});
    }
}

}  // namespace
}  // namespace velkarix
