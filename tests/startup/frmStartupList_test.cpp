// The rows of the startup list that stand for values of the registry.
#include <utility>

#include "tests/startup/StartupPage.h"

namespace velkarix {
namespace {

constexpr Color SuspiciousColor = 255;
constexpr Color DisabledColor = 8421504;
constexpr Color SuspiciousDisabledColor = 64;

const Picture Small{2, 1, {0xFFFF0000, 0xFF00FF00}};

class StartupValues : public StartupPage {
  protected:
    std::size_t ImageOf(const std::string& name) { return RowNamed(name)->Image(); }
    // The pictures that were added to the stock picture.
    std::size_t Icons() { return List().Images()->Count() - 1; }
};

TEST_F(StartupValues, ShowAllFactsOfTheirFile) {
    Machine()
        .AddFile("C:\\Some Tools\\agent.exe")
        .Content(std::string(1536, 'x'))
        .Created(2003, 5, 7)
        .Version(
            {{"ProductName", "Suite"}, {"FileDescription", "Watches"}, {"CompanyName", "Works"}});
    SetRun(Hive::LocalMachine, "Agent", "\"C:\\Some Tools\\agent.exe\" /x");
    Open();
    EXPECT_EQ(RowAt(0), (RowTexts{"Agent", "True", "HKLM\\Run", "\"C:\\Some Tools\\agent.exe\" /x",
                                  "agent.exe", "1.5", "05/07/2003", "Works", "Suite", "Watches",
                                  "C:\\Some Tools\\"}));
    EXPECT_EQ(List().Row(0).Key(), "");
}

TEST_F(StartupValues, ShowThreeColumnsWhereTheFileIsGone) {
    SetRun(Hive::CurrentUser, "Gone", "\"C:\\Gone\\away.exe\" /x");
    SetHeld(Hive::CurrentUser, "Held", "nothing");
    Open();
    EXPECT_EQ(RowAt(0), (RowTexts{"Gone", "True", "HKCU\\Run", "\"C:\\Gone\\away.exe\" /x", "", "",
                                  "", "", "", "", ""}));
    EXPECT_EQ(RowAt(1),
              (RowTexts{"Held", "False", "HKCU\\Run", "nothing", "", "", "", "", "", "", ""}));
    EXPECT_EQ(List().Row(0).Image(), 1u);
    EXPECT_EQ(Machine().Journal().CountOf("ExtractIconExA"), 0u);
    EXPECT_FALSE(List().Row(0).TextColor().has_value());
    EXPECT_EQ(List().Row(1).TextColor(), DisabledColor);
}

// Only text is a command.
TEST_F(StartupValues, ShowNoCommandOfOtherTypesThanText) {
    using namespace registryType;
    Machine().AddFile("C:\\a.exe");
    const std::string text = "C:\\a.exe";
    Bytes ended(text.begin(), text.end());
    ended.push_back(0);
    Bytes twice = ended;
    twice.push_back(0);
    MemoryRegistry& registry = Machine().registry;
    const auto put = [&](const char* name, std::uint32_t type, const Bytes& data) {
        registry.SetRaw(Hive::LocalMachine, LiveRun, name, type, data);
    };
    put("1 text", Sz, ended);
    put("2 expand", ExpandSz, ended);
    put("3 multi", MultiSz, twice);
    put("4 binary", Binary, ended);
    put("5 dword", Dword, {1, 2, 3, 4});
    put("6 none", None, ended);
    put("7 qword", Qword, {1, 2, 3, 4, 5, 6, 7, 8});
    put("8 unknown", 0x1234, ended);
    put("9 no bytes", Sz, {});
    put("9 short dword", Dword, {1});
    Open();
    ASSERT_EQ(List().RowCount(), 10u);
    for (std::size_t i = 0; i < List().RowCount(); ++i) {
        const ListRow& row = List().Row(i);
        const std::string command = i < 3 ? text : "";
        EXPECT_EQ(row.Text(startupColumn::Command), command) << row.Text(0);
        EXPECT_EQ(row.Text(startupColumn::File), i < 3 ? "a.exe" : "") << row.Text(0);
        EXPECT_EQ(row.Text(startupColumn::Enabled), "True");
    }
}

TEST_F(StartupValues, ListAValueWithoutAName) {
    SetRun(Hive::LocalMachine, "", "C:\\a.exe");
    Open();
    EXPECT_EQ(Items(), (RowTexts{", HKLM\\Run, True"}));
}

TEST_F(StartupValues, MakeTwoRowsOfOneNameInBothHives) {
    SetRun(Hive::LocalMachine, "Agent", "");
    SetRun(Hive::CurrentUser, "Agent", "");
    Open();
    EXPECT_EQ(Items(), (RowTexts{"Agent, HKLM\\Run, True", "Agent, HKCU\\Run, True"}));
}

TEST_F(StartupValues, ListNoSubkeys) {
    Machine().SetValue(Hive::LocalMachine, std::string(LiveRun) + "OnceEx\\001", "Step", "a.exe");
    Machine().SetValue(Hive::LocalMachine, std::string(LiveRun) + "OnceEx", "Title", "Setup");
    Open();
    EXPECT_EQ(Items(), (RowTexts{"Title, HKLM\\RunOnceEx, True"}));
}

TEST_F(StartupValues, FindTheirFileBehindVariablesAndOnTheSearchPath) {
    Machine().AddFile("C:\\WINDOWS\\SYSTEM32\\ctfmon.exe");
    SetRun(Hive::LocalMachine, "Bare", "ctfmon.exe /n");
    SetRun(Hive::LocalMachine, "NoExtension", "ctfmon");
    SetRun(Hive::LocalMachine, "Switches", "%SystemRoot%\\SYSTEM32\\ctfmon.exe /n");
    SetRun(Hive::LocalMachine, "Unknown", "%NoSuch%\\ctfmon.exe");
    SetRun(Hive::LocalMachine, "Variable", "\"%SystemRoot%\\SYSTEM32\\ctfmon.exe\"");
    Open();
    EXPECT_EQ(ColumnOf(startupColumn::File), (RowTexts{"ctfmon.exe", "", "", "", "ctfmon.exe"}));
    EXPECT_EQ(ColumnOf(startupColumn::Folder)[4], "C:\\WINDOWS\\SYSTEM32\\");
    EXPECT_EQ(ColumnOf(startupColumn::Command)[4], "\"%SystemRoot%\\SYSTEM32\\ctfmon.exe\"");
}

// Folder and file joined give the path, whatever its form.
TEST_F(StartupValues, SplitPathsOfAnyForm) {
    Machine().AddFile("C:\\root.exe");
    Machine().AddFile("C:\\Velkarix\\near.exe");
    Machine().AddFolder("C:\\Some Tools");
    SetRun(Hive::LocalMachine, "1 root", "\\root.exe");
    SetRun(Hive::LocalMachine, "2 near", "near.exe");
    SetRun(Hive::LocalMachine, "3 drive", "C:\\root.exe");
    SetRun(Hive::LocalMachine, "4 folder", "C:\\Some Tools");
    Open();
    EXPECT_EQ(ColumnOf(startupColumn::File),
              (RowTexts{"\\root.exe", "near.exe", "root.exe", "Some Tools"}));
    EXPECT_EQ(ColumnOf(startupColumn::Folder), (RowTexts{"", "", "C:\\", "C:\\"}));
}

// ---- Suspicion

TEST_F(StartupValues, AreSuspiciousByTheContentOfTheirFileAlone) {
    program.AddInstalledFile("SusProcess.vkl")
        .Content(std::string(Md5OfAbc) + "=bad\r\nagent.exe\r\nAgent\r\n");
    Machine().AddFile("C:\\bad.exe").Content("abc");
    Machine().AddFile("C:\\agent.exe").Content("good");
    SetRun(Hive::LocalMachine, "1 bad", "C:\\bad.exe");
    SetRun(Hive::LocalMachine, "Agent", "C:\\agent.exe");
    SetRun(Hive::LocalMachine, "Gone", "C:\\gone\\agent.exe");
    SetHeld(Hive::LocalMachine, "2 held", "C:\\bad.exe");
    SetHeld(Hive::LocalMachine, "3 held", "C:\\agent.exe");
    Open();
    EXPECT_EQ(RowNamed("1 bad")->TextColor(), SuspiciousColor);
    EXPECT_FALSE(RowNamed("Agent")->TextColor().has_value());
    EXPECT_FALSE(RowNamed("Gone")->TextColor().has_value());
    EXPECT_EQ(RowNamed("2 held")->TextColor(), SuspiciousDisabledColor);
    EXPECT_EQ(RowNamed("3 held")->TextColor(), DisabledColor);
}

TEST_F(StartupValues, AreNotSuspiciousWhereTheFileCanNotBeRead) {
    program.AddInstalledFile("SusProcess.vkl").Content(Md5OfAbc);
    Machine().AddFile("C:\\bad.exe").Content("abc").Unreadable();
    SetRun(Hive::LocalMachine, "bad", "C:\\bad.exe");
    Open();
    EXPECT_FALSE(RowNamed("bad")->TextColor().has_value());
    EXPECT_EQ(RowNamed("bad")->Text(startupColumn::File), "bad.exe");
}

// ---- Pictures

TEST_F(StartupValues, ShowTheFirstIconOfTheirFileBehindTheStockPicture) {
    Machine().AddFile("C:\\a.exe").Icon(0, {1, 1, {0}}, Small);
    Machine().AddFile("C:\\bare.exe");
    SetRun(Hive::LocalMachine, "a", "C:\\a.exe");
    SetRun(Hive::LocalMachine, "bare", "C:\\bare.exe");
    SetRun(Hive::LocalMachine, "gone", "C:\\gone.exe");
    Open();
    EXPECT_EQ(std::get<StockPicture>(List().Images()->At(1)).name, "Software");
    EXPECT_EQ(ImageOf("a"), 2u);
    EXPECT_EQ(std::get<Picture>(List().Images()->At(2)), Small);
    EXPECT_EQ(ImageOf("bare"), 1u);
    EXPECT_EQ(ImageOf("gone"), 1u);
    Click("cmdRefresh");
    EXPECT_EQ(Icons(), 1u);
    EXPECT_EQ(ImageOf("a"), 2u);
}

// ---- What fails, and how often files are looked at

TEST_F(StartupValues, GoOnWithTheRowWhateverOfItFails) {
    for (const char* name : {"a", "b"}) {
        Machine().AddFile(std::string("C:\\") + name + ".exe").Content("abc");
        SetRun(Hive::LocalMachine, name, std::string("C:\\") + name + ".exe");
    }
    for (const char* call : {"ExtractIconExA", "CryptCreateHash", "CryptHashData", "CreateFileA",
                             "ReadFile", "FindFirstFileA", "GetFileVersionInfoSizeA"}) {
        Machine().FailAlways(call);
    }
    Open();
    EXPECT_EQ(Names(), (RowTexts{"a", "b"}));
    EXPECT_EQ(ColumnOf(startupColumn::File), (RowTexts{"a.exe", "b.exe"}));
    EXPECT_EQ(Messages(), RowTexts());
    Machine().FailAlways("FindFirstFileA", error::Success);
}

TEST_F(StartupValues, ShowNothingOfAKeyThatCanNotBeRead) {
    SetRun(Hive::LocalMachine, "a", "");
    SetRun(Hive::CurrentUser, "b", "");
    Machine().registry.Restrict(Hive::LocalMachine, LiveRun, std::nullopt);
    Open();
    EXPECT_EQ(Names(), (RowTexts{"b"}));
    EXPECT_EQ(Messages(), RowTexts());
}

TEST_F(StartupValues, LookAtEachFileOnceInAReading) {
    Machine().AddFile("C:\\a.exe").Content("abc").Icon(0, {1, 1, {0}}, Small);
    Machine().AddFile("C:\\b.exe").Content("b");
    PutShortcut(Machine(), LiveCU, "a.lnk", "C:\\a.exe");
    PutShortcut(Machine(), HeldLM, "a.lnk", "C:\\a.exe");
    for (const RunKey& key : RunKeys) {
        for (const char* base : {LiveRun, HeldRun}) {
            const std::string path = std::string(base) + key.suffix;
            Machine().SetValue(key.hive, path, "1", "C:\\a.exe /1");
            Machine().SetValue(key.hive, path, "2", "\"c:\\A.EXE\" /2");
            Machine().SetValue(key.hive, path, "3", "C:\\b.exe");
        }
    }
    Open();
    ASSERT_EQ(List().RowCount(), 62u);
    for (const int reading : {1, 2}) {
        EXPECT_EQ(Machine().Journal().CountOf("CryptCreateHash"), 2u) << reading;
        EXPECT_EQ(Machine().Journal().CountOf("GetFileVersionInfoSizeA"), 2u);
        EXPECT_EQ(Machine().Journal().CountOf("ExtractIconExA"), 2u);
        EXPECT_EQ(Icons(), 1u);
        EXPECT_EQ(ImageOf("a.lnk"), 2u);
        EXPECT_EQ(ImageOf("2"), 2u);
        EXPECT_EQ(RowNamed("2")->Text(startupColumn::File), "A.EXE");
        Machine().Journal().Clear();
        Click("cmdRefresh");
    }
}

// A file that changed meanwhile is read anew.
TEST_F(StartupValues, LookAtTheFilesAgainInTheNextReading) {
    program.AddInstalledFile("SusProcess.vkl").Content(Md5OfAbc);
    Machine().AddFile("C:\\a.exe").Content("good");
    SetRun(Hive::LocalMachine, "a", "C:\\a.exe");
    Open();
    EXPECT_FALSE(RowNamed("a")->TextColor().has_value());
    Machine().AddFile("C:\\a.exe").Content("abc");
    Click("cmdRefresh");
    EXPECT_EQ(RowNamed("a")->TextColor(), SuspiciousColor);
    Machine().disk.Remove("C:\\a.exe");
    Click("cmdRefresh");
    EXPECT_FALSE(RowNamed("a")->TextColor().has_value());
    EXPECT_EQ(RowNamed("a")->Text(startupColumn::File), "");
}

}  // namespace
}  // namespace velkarix
