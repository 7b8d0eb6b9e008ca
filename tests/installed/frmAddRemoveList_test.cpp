// Which entries the list of installed applications shows, and how.
#include <algorithm>

#include "tests/installed/InstalledPage.h"

namespace velkarix {
namespace {

constexpr Color SuspiciousColor = 255;

class InstalledList : public InstalledPage {
  protected:
    void SetRaw(const std::string& name, std::uint32_t type, const Bytes& data) {
        Registry().SetRaw(AllUsers, KeyOf("App"), name, type, data);
    }
    // The number of calls that a refresh makes.
    std::size_t CallsOfARefresh() {
        Machine().Journal().Clear();
        Click("cmdRefresh");
        return Machine().Journal().Calls().size();
    }
};

TEST_F(InstalledList, ShowsTheNameAndTheCommandOfEachEntry) {
    SetText("{A-1}", "DisplayName", "Tool, \"the\" one");
    SetText("{A-1}", "UninstallString", "\"C:\\Apps\\un.exe\" /x:\"a b\" %TEMP%");
    AddApp("Beta");
    Open();
    EXPECT_EQ(Names(), (RowTexts{"Beta", "Tool, \"the\" one"}));
    EXPECT_EQ(ColumnOf(1), (RowTexts{"Beta /uninstall", "\"C:\\Apps\\un.exe\" /x:\"a b\" %TEMP%"}));
    EXPECT_EQ(List().Row(1).Key(), "{A-1}");
    EXPECT_EQ(List().Columns(), (RowTexts{"Display Name", "Uninstall Command"}));
}

TEST_F(InstalledList, HasNoBoxesToTick) {
    Open();
    EXPECT_FALSE(List().CheckBoxes());
}

TEST_F(InstalledList, IsEmptyWithoutTheKey) {
    Open();
    EXPECT_EQ(Names(), RowTexts());
    EXPECT_TRUE(List().Visible());
    EXPECT_EQ(Messages(), RowTexts());
}

TEST_F(InstalledList, LeavesOutWhatForbidsItsRemoval) {
    for (const char* name : {"Zero", "One", "Two", "Minus"}) AddApp(name);
    Machine().SetDword(AllUsers, KeyOf("Zero"), "NoRemove", 0);
    Machine().SetDword(AllUsers, KeyOf("One"), "NoRemove", 1);
    Machine().SetDword(AllUsers, KeyOf("Two"), "NoRemove", 2);
    Machine().SetDword(AllUsers, KeyOf("Minus"), "NoRemove", 0xFFFFFFFF);
    Open();
    EXPECT_EQ(Names(), (RowTexts{"Minus", "Two", "Zero"}));
}

TEST_F(InstalledList, TakesTheBytesOfNoRemoveWhateverTheirType) {
    const std::tuple<std::uint32_t, Bytes, bool> cases[] = {
        {registryType::Binary, {1, 0, 0, 0}, false},
        {registryType::Binary, {1}, false},
        {registryType::Binary, {}, true},
        {registryType::Dword, {1, 0, 0, 1}, true},
        {registryType::Sz, {'1', 0}, true},
        {registryType::Sz, {1, 0}, false},
        {registryType::Dword, {1, 0}, false},
        {registryType::Binary, {1, 0, 0, 0, 0}, true},
    };
    AddApp("App");
    Open();
    for (const auto& [type, data, listed] : cases) {
        SetRaw("NoRemove", type, data);
        Click("cmdRefresh");
        EXPECT_EQ(List().RowCount() == 1, listed) << type << " of " << data.size();
    }
}

TEST_F(InstalledList, LeavesOutWhatLacksANameOrACommand) {
    AddApp("Whole");
    SetText("NoName", "UninstallString", "un.exe");
    SetText("NoCommand", "DisplayName", "NoCommand");
    SetText("EmptyName", "DisplayName", "");
    SetText("EmptyName", "UninstallString", "un.exe");
    SetText("EmptyCommand", "DisplayName", "EmptyCommand");
    SetText("EmptyCommand", "UninstallString", "");
    Registry().AddKey(AllUsers, KeyOf("Bare"));
    SetText("Deeper\\Sub", "DisplayName", "Deeper");
    SetText("Deeper\\Sub", "UninstallString", "un.exe");
    Open();
    EXPECT_EQ(Names(), RowTexts{"Whole"});
}

TEST_F(InstalledList, LooksIntoTheKeyOfAllUsersAlone) {
    Registry().SetValue(Hive::CurrentUser, KeyOf("App"), "DisplayName", "App");
    Registry().SetValue(Hive::CurrentUser, KeyOf("App"), "UninstallString", "un.exe");
    Open();
    EXPECT_EQ(Names(), RowTexts());
}

TEST_F(InstalledList, TakesTheTextUpToANulFromValuesOfEveryType) {
    const std::tuple<std::uint32_t, Bytes, std::string> cases[] = {
        {registryType::Sz, {'a', 'b', 0}, "ab"},
        {registryType::Sz, {'a', 'b'}, "ab"},
        {registryType::Sz, {'a', 0, 'b', 0}, "a"},
        {registryType::Sz, {' ', 0}, " "},
        {registryType::Sz, {0}, ""},
        {registryType::Sz, {}, ""},
        {registryType::ExpandSz, {'%', 'a', '%', 0}, "%a%"},
        {registryType::MultiSz, {'a', 0, 'b', 0, 0}, "a"},
        {registryType::Dword, {'a', 'b', 'c', 'd'}, "abcd"},
        {registryType::Dword, {1, 0, 0, 0}, "\x01"},
        {registryType::Dword, {0, 0, 0, 1}, ""},
        {registryType::Binary, {0xFC, '\r', '\n', 9}, "\xFC\r\n\t"},
        {registryType::None, {'a'}, "a"},
        {77, Bytes(70000, 'x'), std::string(70000, 'x')},
    };
    AddApp("App");
    Open();
    for (const auto& [type, data, text] : cases) {
        for (const char* name : {"DisplayName", "UninstallString"}) {
            AddApp("App");
            SetRaw(name, type, data);
            Click("cmdRefresh");
            const bool isName = name == std::string("DisplayName");
            EXPECT_EQ(ColumnOf(isName ? 0 : 1), text.empty() ? RowTexts() : RowTexts{text})
                << name << " of type " << type << " and size " << data.size();
        }
    }
}

TEST_F(InstalledList, ShowsEntriesWhoseKeysAreOddNames) {
    for (const std::string name : {"12345", " ", "a,b", "\xFC\xE4", "%TEMP%"}) AddApp(name);
    Open();
    RowTexts names = Names();
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (RowTexts{" ", "%TEMP%", "12345", "a,b", "\xFC\xE4"}));
}

// Such a row would stand for the key of all entries.
TEST_F(InstalledList, ShowsNoEntryWithoutAName) {
    SetText("", "DisplayName", "All");
    SetText("", "UninstallString", "un.exe");
    AddApp("App");
    Registry().AddKey(AllUsers, KeyOf(std::string("\0hidden", 7)));
    Open();
    EXPECT_EQ(Names(), RowTexts{"App"});
    EXPECT_EQ(Registry().SubKeysOf(AllUsers, KeyOf("")).size(), 2u);
}

TEST_F(InstalledList, StandsInTheOrderOfTheNamesWhenThePageIsEntered) {
    SetText("1", "DisplayName", "beta");
    SetText("2", "DisplayName", "Alpha");
    SetText("3", "DisplayName", "Gamma");
    for (const char* key : {"1", "2", "3"}) SetText(key, "UninstallString", key);
    Open();
    EXPECT_EQ(Names(), (RowTexts{"Alpha", "beta", "Gamma"}));
    EXPECT_EQ(ColumnOf(1), (RowTexts{"2", "1", "3"}));
}

// ---- Marks

TEST_F(InstalledList, MarksWhatTheDefinitionListNames) {
    Suspect("bad{tool}\r\nother\r\n");
    AddApp("BAD{Tool}");
    AddApp("d{to");  // part of an entry
    AddApp("Good");
    Open();
    for (const char* name : {"BAD{Tool}", "d{to"}) {
        EXPECT_EQ(RowOf(name)->TextColor(), SuspiciousColor) << name;
        EXPECT_TRUE(RowOf(name)->Bold()) << name;
    }
    EXPECT_EQ(RowOf("Good")->TextColor(), std::nullopt);
    EXPECT_FALSE(RowOf("Good")->Bold());
}

TEST_F(InstalledList, GoesByTheNameOfTheKeyAlone) {
    Suspect("bad\r\n");
    SetText("Key", "DisplayName", "bad");
    SetText("Key", "UninstallString", "bad");
    SetText("Key", "DisplayIcon", "bad");
    Open();
    EXPECT_EQ(RowOf("Key")->TextColor(), std::nullopt);
}

TEST_F(InstalledList, ComparesWithTheListAsItStands) {
    Suspect("Bad\r\n");
    AddApp("Bad");  // looked for in lower case
    Open();
    EXPECT_EQ(RowOf("Bad")->TextColor(), std::nullopt);
}

TEST_F(InstalledList, MarksAsTheSettingsSay) {
    Suspect("bad\r\n");
    Settings("[Main]\r\nSusColor=1234\r\nFontBold=0\r\n");
    AddApp("Bad");
    Open();
    EXPECT_EQ(RowOf("Bad")->TextColor(), Color{1234});
    EXPECT_FALSE(RowOf("Bad")->Bold());
}

// ---- Trouble in the middle of a scan

TEST_F(InstalledList, ShowsTheOthersWhenAnEntryMayNotBeRead) {
    for (const char* name : {"A", "B", "C"}) AddApp(name);
    Registry().Restrict(AllUsers, KeyOf("B"), std::nullopt);
    Open();
    EXPECT_EQ(Names(), (RowTexts{"A", "C"}));
    EXPECT_EQ(Messages(), RowTexts());
}

TEST_F(InstalledList, ShowsTheOthersWhenAnEntryGoesInTheMiddleOfTheScan) {
    for (const char* name : {"A", "B", "C"}) AddAppWithIcon(name, "C:\\a.exe");
    Open();
    const std::size_t calls = CallsOfARefresh();
    ASSERT_GT(calls, 20u);
    for (std::size_t call = 0; call < calls; ++call) {
        Machine().Journal().Clear();
        Machine().Journal().OnCall(call, [this] { Registry().RemoveKey(AllUsers, KeyOf("C")); });
        Click("cmdRefresh");
        RowTexts names = Names();
        if (names.size() == 3) names.pop_back();
        EXPECT_EQ(names, (RowTexts{"A", "B"})) << call;
        EXPECT_TRUE(List().Visible());
        EXPECT_EQ(Registry().OpenKeyCount(), 0u) << call;
        Click("cmdRefresh");
        EXPECT_EQ(Names(), (RowTexts{"A", "B"})) << call;
        AddAppWithIcon("C", "C:\\a.exe");
    }
    EXPECT_EQ(Messages(), RowTexts());
}

TEST_F(InstalledList, RunsOnWhateverFails) {
    for (const char* name : {"A", "B", "C"}) AddAppWithIcon(name, "C:\\a.exe");
    AddApp("D");
    SetCache("D", CacheRecord(u"C:\\a.exe"));
    Machine().AddFile("C:\\a.exe").Icon(0, {1, 1, {1}}, {1, 1, {2}});
    Open();
    CallsOfARefresh();
    const RowTexts calls = Machine().Journal().Names();
    for (std::size_t call = 0; call < calls.size(); ++call) {
        // A handle whose closing fails stays open.
        const std::string& name = calls[call];
        if (name == "RegCloseKey" || name == "DestroyIcon") continue;
        Machine().Journal().Clear();
        Machine().Journal().FailCall(call, error::AccessDenied);
        Click("cmdRefresh");
        Machine().Journal().FailCall(SIZE_MAX, error::Success);
        for (const std::string& shown : Names()) {
            EXPECT_EQ(RowOf(shown)->Text(1), shown + " /uninstall") << call;
        }
        // The reading of one entry spoils no other.
        EXPECT_TRUE(name != "RegQueryValueExA" || List().RowCount() >= 3) << call;
        EXPECT_TRUE(List().Visible());
        Click("cmdRefresh");
        EXPECT_EQ(Names(), (RowTexts{"A", "B", "C", "D"})) << call;
    }
    EXPECT_EQ(Messages(), RowTexts());
}

// ---- How it is built

class BuildWatch : public ControlView {
  public:
    explicit BuildWatch(ListView& list) : list_(list) { list_.AttachView(this); }
    ~BuildWatch() override { list_.AttachView(nullptr); }
    void Changed(Aspect aspect) override {
        fits += aspect == Aspect::ColumnWidths && list_.Visible() ? 1 : 0;
        if (aspect != Aspect::Rows) return;
        ++changes;
        if (list_.Visible() || list_.Mode() != ListMode::Details) ++changesInSight;
    }

    int fits = 0;
    int changes = 0;
    int changesInSight = 0;

  private:
    ListView& list_;
};

TEST_F(InstalledList, IsBuiltOutOfSightAndFittedInSight) {
    for (const char* name : {"A", "B", "C"}) AddApp(name);
    Open();
    BuildWatch watch(List());
    Click("cmdRefresh");
    EXPECT_EQ(watch.changes, 4);
    EXPECT_EQ(watch.changesInSight, 0);
    EXPECT_EQ(watch.fits, 1);
    EXPECT_TRUE(List().Visible());
}

TEST_F(InstalledList, CostsEachEntryTheSameHoweverManyThereAre) {
    program.Start();
    std::vector<std::size_t> calls;
    for (const std::size_t count : {1000, 2000}) {
        for (std::size_t i = 0; i < count; ++i) {
            const std::string name = "App" + std::to_string(i);
            AddAppWithIcon(name, "C:\\Apps\\" + name + ".exe,0");
            Machine().AddFile("C:\\Apps\\" + name + ".exe").Icon(0, {1, 1, {1}}, {1, 1, {2}});
        }
        Leave();
        Machine().Journal().Clear();
        Enter();
        EXPECT_EQ(List().RowCount(), count);
        EXPECT_EQ(List().LargeImages()->Count(), count + 1);
        calls.push_back(Machine().Journal().Calls().size());
    }
    EXPECT_LE(calls[1], 2 * calls[0]);
}

}  // namespace
}  // namespace velkarix
