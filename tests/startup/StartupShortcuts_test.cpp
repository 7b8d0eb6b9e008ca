// The rows of the startup list that stand for shortcuts.
#include <cstddef>
#include <memory>

#include "tests/startup/StartupPage.h"

namespace velkarix {
namespace {

const Picture Large{1, 1, {0}};

Picture Small(std::uint32_t pixel) {
    return {1, 1, {pixel}};
}

constexpr const char* CanNotRead =
    "Shortcuts can't be read on this system. The shortcuts in the startup folders are not listed.";

class StartupShortcuts : public StartupPage {
  protected:
    StartupShortcuts() { Machine().AddFile("C:\\Tools\\a.exe").Content("abc"); }
    void Put(const std::string& name, const std::string& target = "C:\\Tools\\a.exe",
             const std::string& icon = {}) {
        PutShortcut(Machine(), LiveCU, name, target, "", icon);
    }
    // The one pixel of a row's picture; 0 for the stock picture.
    std::uint32_t PixelOf(const std::string& name) {
        const auto* picture = std::get_if<Picture>(&List().Images()->At(RowNamed(name)->Image()));
        return picture != nullptr ? picture->pixels[0] : 0;
    }
};

TEST_F(StartupShortcuts, ShowAllFactsOfTheirTarget) {
    Machine()
        .AddFile("C:\\Tools\\a.exe")
        .Created(2004, 2, 29)
        .Version(
            {{"ProductName", "Suite"}, {"FileDescription", "Watches"}, {"CompanyName", "Works"}});
    PutShortcut(Machine(), LiveLM, "Agent.lnk", "C:\\Tools\\a.exe", "/x \"a b\"");
    PutShortcut(Machine(), HeldLM, "Bare.lnk", "C:\\Tools\\a.exe");
    Open();
    EXPECT_EQ(RowAt(0),
              (RowTexts{"Agent.lnk", "True", "Startup LM", "\"C:\\Tools\\a.exe\" /x \"a b\"",
                        "a.exe", "0.0", "02/29/2004", "Works", "Suite", "Watches", "C:\\Tools\\"}));
    EXPECT_EQ(RowAt(1),
              (RowTexts{"Bare.lnk", "False", "Startup LM", "\"C:\\Tools\\a.exe\" ", "a.exe", "0.0",
                        "02/29/2004", "Works", "Suite", "Watches", "C:\\Tools\\"}));
}

TEST_F(StartupShortcuts, AreSuspiciousByTheContentOfTheirTarget) {
    program.AddInstalledFile("SusProcess.vkl").Content(Md5OfAbc);
    Put("a.lnk");
    PutShortcut(Machine(), HeldCU, "b.lnk", "C:\\Tools\\a.exe");
    Open();
    EXPECT_EQ(RowNamed("a.lnk")->TextColor(), 255u);
    EXPECT_EQ(RowNamed("b.lnk")->TextColor(), 64u);
}

TEST_F(StartupShortcuts, AreTheFilesOfThatKindAlone) {
    Put("a.lnk");
    Put("B.LNK");
    PutShortcut(Machine(), LiveCU, "hidden.lnk", "C:\\Tools\\a.exe").Hidden();
    Machine().AddFile(std::string(LiveCU) + "\\a.exe");
    Machine().AddFile(std::string(LiveCU) + "\\desktop.ini");
    Machine().AddFile(std::string(LiveCU) + "\\page.url");
    Machine().AddFolder(std::string(LiveCU) + "\\folder.lnk");
    PutShortcut(Machine(), std::string(LiveCU) + "\\Below", "c.lnk", "C:\\Tools\\a.exe");
    Open();
    EXPECT_EQ(Names(), (RowTexts{"a.lnk", "B.LNK", "hidden.lnk"}));
}

TEST_F(StartupShortcuts, AreNotListedWithoutATargetThatIsThere) {
    Put("gone.lnk", "C:\\Tools\\gone.exe");
    Put("none.lnk", "");
    Put("variable.lnk", "%windir%\\a.exe");
    Machine().AddFile("C:\\WINDOWS\\a.exe");
    Put("folder.lnk", "C:\\Tools");
    PutShortcut(Machine(), HeldCU, "held.lnk", "C:\\Tools\\gone.exe");
    Open();
    EXPECT_EQ(Names(), (RowTexts{"folder.lnk"}));
    EXPECT_TRUE(HasFile(std::string(HeldCU) + "\\held.lnk"));
    EXPECT_EQ(Messages(), RowTexts());
}

TEST_F(StartupShortcuts, ExpandATargetThatIsThereByItsLetters) {
    Machine().AddFile("C:\\100%\\50%\\a.exe");
    Machine().AddFile("C:\\%windir%\\b.exe");
    Put("a.lnk", "C:\\100%\\50%\\a.exe");
    Put("b.lnk", "C:\\%windir%\\b.exe");
    Open();
    EXPECT_EQ(ColumnOf(startupColumn::Folder), (RowTexts{"C:\\100%\\50%\\", ""}));
    EXPECT_EQ(ColumnOf(startupColumn::Command)[1], "\"C:\\%windir%\\b.exe\" ");
}

// ---- Icons

TEST_F(StartupShortcuts, ShowTheIconThatTheyName) {
    MemoryEntry& target = Machine().AddFile("C:\\Tools\\a.exe");
    target.Icon(0, Large, Small(10)).Icon(2, Large, Small(12));
    Machine().AddFile("C:\\i.dll").Icon(3, Large, Small(23)).Icon(-7, Large, Small(27));
    Machine().AddFile("C:\\i").Icon(0, Large, Small(30));
    Put("1 own.lnk", "C:\\Tools\\a.exe", "");
    Put("2 own.lnk", "C:\\Tools\\a.exe", ",2");
    Put("3 other.lnk", "C:\\Tools\\a.exe", "C:\\i.dll,3");
    Put("4 number.lnk", "C:\\Tools\\a.exe", "C:\\i.dll,-7");
    Put("5 gone.lnk", "C:\\Tools\\a.exe", "C:\\gone.ico,2");
    Put("6 comma.lnk", "C:\\Tools\\a.exe", "C:\\i,j.ico,3");
    Put("7 none.lnk", "C:\\Tools\\a.exe", "C:\\i.dll,9");
    Open();
    const std::uint32_t pixels[] = {10, 12, 23, 27, 12, 30, 0};
    ASSERT_EQ(List().RowCount(), std::size(pixels));
    for (std::size_t i = 0; i < std::size(pixels); ++i) {
        EXPECT_EQ(PixelOf(Names()[i]), pixels[i]) << Names()[i];
    }
}

// Tells an icon without a comma for all shortcuts but the second.
class BareIcons : public Shortcuts {
  public:
    std::unique_ptr<ShortcutReader> MakeScriptShell() override {
        return std::make_unique<Reader>();
    }
    std::unique_ptr<ShortcutReader> MakeShellLink() override { return nullptr; }

  private:
    class Reader : public ShortcutReader {
        bool Read(const std::string& path, Shortcut& shortcut) override {
            const bool second = path.find("2.lnk") != std::string::npos;
            shortcut = {"C:\\Tools\\a.exe", "", second ? "C:\\i.dll,4" : "C:\\i.dll"};
            return true;
        }
    };
};

TEST_F(StartupShortcuts, TakeTheIndexOfTheOneBeforeWhereTheyNameNone) {
    Machine().AddFile("C:\\Tools\\a.exe").Icon(0, Large, Small(10)).Icon(4, Large, Small(14));
    Machine().AddFile("C:\\i.dll").Icon(4, Large, Small(24));
    for (const char* name : {"1.lnk", "2.lnk", "3.lnk"}) Put(name);
    BareIcons shortcuts;
    const velkarix::Machine all = Machine().Parts();
    const velkarix::Machine own = {all.registry, all.profileFiles, all.versionResources,
                                   all.files,    all.clock,        all.processes,
                                   all.token,    all.shell,        shortcuts,
                                   all.system,   all.windows,      all.cryptography};
    Application application(own, program.desktop);
    DefineForms(application);
    application.forms.Show("frmStartup");
    auto& list =
        dynamic_cast<ListView&>(*application.forms.Loaded("frmStartup")->Find("lstvStartup"));
    ASSERT_EQ(list.RowCount(), 3u);
    const std::uint32_t pixels[] = {10, 24, 14};
    for (std::size_t i = 0; i < 3; ++i) {
        const auto& image = list.Images()->At(list.Row(i).Image());
        EXPECT_EQ(std::get<Picture>(image).pixels[0], pixels[i]) << i;
    }
}

// ---- Readers

TEST_F(StartupShortcuts, AreReadByEitherOfTheTwoWays) {
    for (const bool script : {true, false}) {
        TestProgram other;
        PutStartupFolders(other.machine);
        other.machine.AddFile("C:\\Tools\\a.exe");
        PutShortcut(other.machine, LiveCU, "a.lnk", "C:\\Tools\\a.exe");
        other.machine.shortcuts.SetHasScriptShell(script);
        other.machine.shortcuts.SetHasShellLink(!script);
        other.Start();
        other.application.forms.Show("frmStartup");
        EXPECT_EQ(other.Get<ListView>("frmStartup", "lstvStartup").RowCount(), 1u);
        EXPECT_TRUE(other.desktop.messages.empty());
    }
}

TEST_F(StartupShortcuts, AreNotListedWhereNothingReadsThemAndTheUserHearsItOnce) {
    Put("a.lnk");
    SetRun(Hive::CurrentUser, "b", "");
    Machine().shortcuts.SetHasScriptShell(false);
    Machine().shortcuts.SetHasShellLink(false);
    Open();
    EXPECT_EQ(Names(), (RowTexts{"b"}));
    EXPECT_EQ(List().SelectedRow(), RowNamed("b"));
    EXPECT_EQ(Messages(), (RowTexts{CanNotRead}));
    EXPECT_EQ(program.desktop.messages.at(0).icon, MessageIcon::Information);
    EXPECT_EQ(program.desktop.messages.at(0).title, "Velkarix");
    for (const char* key : {"CUStartup", "LMStartup"}) ClickNode(key);
    EXPECT_EQ(List().RowCount(), 0u);
    LeaveAndComeBack();
    EXPECT_EQ(Names(), (RowTexts{"b"}));
    EXPECT_EQ(Messages().size(), 1u);
}

TEST_F(StartupShortcuts, KeepTheirReadersForAsLongAsThePageIsThere) {
    Put("a.lnk");
    Open();
    for (const char* key : {"CU", "CUStartup", "All"}) ClickNode(key);
    EXPECT_EQ(Machine().Journal().CountOf("MakeScriptShell"), 1u);
    LeaveAndComeBack();
    EXPECT_EQ(Machine().Journal().CountOf("MakeScriptShell"), 2u);
}

// ---- Bad files

TEST_F(StartupShortcuts, AreNotListedWhenTheirFileIsBroken) {
    const Bytes whole =
        MemoryEntry("", 0).Shortcut({"C:\\Tools\\a.exe", "/x", "C:\\i.dll,1"}).content;
    const auto put = [&](const char* what, std::size_t number, const Bytes& content) {
        std::string path = LiveCU;
        path.append("\\").append(what).append(std::to_string(number)).append(".lnk");
        Machine().AddFile(path).Content(content);
    };
    for (std::size_t size = 0; size < whole.size() - 4; ++size) {
        put("cut", size, {whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)});
    }
    // Each byte of the header, and of what the lengths are in, out of all bounds.
    for (std::size_t at = 0; at < 0x60; ++at) {
        Bytes bad = whole;
        bad[at] = 0xFF;
        put("bad", at, bad);
    }
    Machine().AddFile(std::string(LiveCU) + "\\text.lnk").Content("no shortcut");
    Machine().AddFile(std::string(LiveCU) + "\\locked.lnk").Content(whole).Unreadable();
    Put("good.lnk");
    Open();
    ASSERT_NE(RowNamed("good.lnk"), nullptr);
    EXPECT_EQ(RowNamed("text.lnk"), nullptr);
    EXPECT_EQ(RowNamed("locked.lnk"), nullptr);
    for (std::size_t size = 0; size < whole.size() - 4; ++size) {
        EXPECT_EQ(RowNamed("cut" + std::to_string(size) + ".lnk"), nullptr) << size;
    }
    EXPECT_EQ(Messages(), RowTexts());
}

// ---- Folders

TEST_F(StartupShortcuts, AreNoneWhereTheFolderIsNotThere) {
    PutShortcut(Machine(), "C:", "root.lnk", "C:\\Tools\\a.exe");
    PutShortcut(Machine(), "C:\\Velkarix", "current.lnk", "C:\\Tools\\a.exe");
    Machine().AddFile("C:\\file").Content("x");
    Machine().AddFile(HeldLM).Content("a file in its place");
    Open();
    for (const char* folder : {"", "C:\\Gone", "C:\\file", "?", "C:\\Tools\\a.exe"}) {
        Machine().SetValue(Hive::LocalMachine, ShellFoldersKey, "Common Startup", folder);
        Machine().SetValue(Hive::CurrentUser, ShellFoldersKey, "Startup", folder);
        LeaveAndComeBack();
        EXPECT_EQ(Names(), RowTexts()) << folder;
    }
    Machine().registry.RemoveValue(Hive::LocalMachine, ShellFoldersKey, "Common Startup");
    Machine().registry.RemoveKey(Hive::CurrentUser, ShellFoldersKey);
    LeaveAndComeBack();
    EXPECT_EQ(Names(), RowTexts());
    EXPECT_EQ(Messages(), RowTexts());
}

TEST_F(StartupShortcuts, AreReadWhereThePageFoundTheFolderWhenItWasEntered) {
    Put("a.lnk");
    PutShortcut(Machine(), "C:\\Other", "b.lnk", "C:\\Tools\\a.exe");
    Open();
    Machine().SetValue(Hive::CurrentUser, ShellFoldersKey, "Startup", "C:\\Other");
    Click("cmdRefresh");
    EXPECT_EQ(Names(), (RowTexts{"a.lnk"}));
    LeaveAndComeBack();
    EXPECT_EQ(Names(), (RowTexts{"b.lnk"}));
}

}  // namespace
}  // namespace velkarix
