// The icons of installed applications: where they are looked for, and how they are shown.
#include <algorithm>

#include "tests/installed/InstalledPage.h"

namespace velkarix {
namespace {

// Each icon's number is its colour, with one bit more in the large size.
Picture SmallIcon(std::uint32_t number) {
    return {1, 1, {0xFF000000 + number}};
}
Picture LargeIcon(std::uint32_t number) {
    return {1, 1, {0xFF800000 + number}};
}

constexpr const char* DefaultPicture = "default";
constexpr const char* ToolFile = "C:\\Apps\\tool.exe";

class InstalledIcons : public InstalledPage {
  protected:
    MemoryEntry& AddIcon(const std::string& file, int index, std::uint32_t number) {
        return Machine().AddFile(file).Icon(index, LargeIcon(number), SmallIcon(number));
    }
    // "default" for the stock picture, else the number of the icon; both views must agree.
    std::string IconOf(const std::string& subKey) {
        const ListRow* row = RowOf(subKey);
        if (row == nullptr) return "no row";
        const auto& small = List().Images()->At(row->Image());
        const auto& large = List().LargeImages()->At(row->LargeImage());
        if (const auto* stock = std::get_if<StockPicture>(&small)) {
            EXPECT_EQ(stock->name, "Software");
            EXPECT_EQ(std::get<StockPicture>(large).name, "Software");
            return DefaultPicture;
        }
        const std::uint32_t number = std::get<Picture>(small).pixels.at(0) - 0xFF000000;
        EXPECT_EQ(std::get<Picture>(small), SmallIcon(number));
        EXPECT_EQ(std::get<Picture>(large), LargeIcon(number));
        return std::to_string(number);
    }
    // Enters the page, leaving it first where it is on view.
    void OpenAnew() {
        if (program.application.forms.Loaded("frmMain") == nullptr) program.Start();
        Leave();
        Enter();
    }
    // The number of the call in a refresh that draws the second size of the first icon.
    std::size_t CallOfTheSecondDrawing() {
        Machine().Journal().Clear();
        Click("cmdRefresh");
        const RowTexts calls = Machine().Journal().Names();
        Machine().Journal().Clear();
        const auto first = std::find(calls.begin(), calls.end(), "DrawIconEx");
        return static_cast<std::size_t>(std::find(first + 1, calls.end(), "DrawIconEx") -
                                        calls.begin());
    }
    RowTexts IconCalls() { return Machine().Journal().ArgumentsOf("ExtractIconExA"); }
};

// ---- DisplayIcon

struct DisplayIconCase {
    const char* name;
    const char* value;
    const char* icon;   // what the row shows
    const char* asked;  // of the system; empty: nothing
};

void PrintTo(const DisplayIconCase& each, std::ostream* stream) {
    *stream << each.value;
}

class DisplayIcon : public InstalledIcons, public testing::WithParamInterface<DisplayIconCase> {};

TEST_P(DisplayIcon, TellsWhereTheIconIs) {
    AddIcon(ToolFile, 0, 1)
        .Icon(3, LargeIcon(2), SmallIcon(2))
        .Icon(-7, LargeIcon(3), SmallIcon(3));
    AddIcon("C:\\Apps\\a,b.exe", 0, 4).Icon(2, LargeIcon(5), SmallIcon(5));
    AddIcon("C:\\Apps\\x,y\\tool.exe", 0, 6);
    AddIcon("C:\\5", 0, 7);
    AddAppWithIcon("App", GetParam().value);
    // Of no account beside the value.
    AddIcon("C:\\cached.exe", 0, 8);
    SetCache("App", CacheRecord(u"C:\\cached.exe"));
    Open();
    EXPECT_EQ(IconOf("App"), GetParam().icon);
    const std::string asked = GetParam().asked;
    EXPECT_EQ(IconCalls(), asked.empty() ? RowTexts() : RowTexts{asked});
    EXPECT_EQ(Machine().Journal().CountOf("WideCharToMultiByte"), 0u);
}

const DisplayIconCase DisplayIconCases[] = {
    {"File", "C:\\Apps\\tool.exe", "1", "C:\\Apps\\tool.exe, 0"},
    {"QuotedFile", "\"C:\\Apps\\tool.exe\"", "1", "C:\\Apps\\tool.exe, 0"},
    {"QuotesAnywhere", "C:\\\"Apps\"\\tool\".exe", "1", "C:\\Apps\\tool.exe, 0"},
    {"Index", "C:\\Apps\\tool.exe,3", "2", "C:\\Apps\\tool.exe, 3"},
    {"QuotedFileAndIndex", "\"C:\\Apps\\tool.exe\",0", "1", "C:\\Apps\\tool.exe, 0"},
    {"AllInQuotes", "\"C:\\Apps\\tool.exe,3\"", "2", "C:\\Apps\\tool.exe, 3"},
    {"NegativeIndex", "C:\\Apps\\tool.exe,-7", "3", "C:\\Apps\\tool.exe, -7"},
    {"SignedIndex", "C:\\Apps\\tool.exe,+3", "2", "C:\\Apps\\tool.exe, 3"},
    {"BlanksAroundTheIndex", "C:\\Apps\\tool.exe, 3 ", "2", "C:\\Apps\\tool.exe, 3"},
    {"LeadingZeros", "C:\\Apps\\tool.exe,003", "2", "C:\\Apps\\tool.exe, 3"},
    {"MissingIndex", "C:\\Apps\\tool.exe,9", "default", "C:\\Apps\\tool.exe, 9"},
    {"NoNumber", "C:\\Apps\\tool.exe,", "default", ""},
    {"BlankForANumber", "C:\\Apps\\tool.exe, ", "default", ""},
    {"WordForANumber", "C:\\Apps\\tool.exe,zero", "default", ""},
    {"NumberAndMore", "C:\\Apps\\tool.exe,3x", "default", ""},
    {"HugeIndex", "C:\\Apps\\tool.exe,99999999999", "default", "C:\\Apps\\tool.exe, 2147483647"},
    {"LastCommaCounts", "C:\\Apps\\a,b.exe,2", "5", "C:\\Apps\\a,b.exe, 2"},
    // The text isn't tried again as the name of a file, though there is one.
    {"CommaInTheFile", "C:\\Apps\\a,b.exe", "default", ""},
    {"CommaInAFolder", "C:\\Apps\\x,y\\tool.exe", "default", ""},
    {"NumberForAFile", "C:\\5,0", "7", "C:\\5, 0"},
    {"MissingFile", "C:\\Apps\\none.exe", "default", "C:\\Apps\\none.exe, 0"},
    {"Folder", "C:\\Apps", "default", "C:\\Apps, 0"},
    {"FolderWithBackslash", "C:\\Apps\\", "default", "C:\\Apps\\, 0"},
    {"Blanks", "   ", "default", "   , 0"},
    {"BlanksAroundTheFile", " C:\\Apps\\tool.exe", "default", " C:\\Apps\\tool.exe, 0"},
    {"Variable", "%WinDir%\\tool.exe", "default", "%WinDir%\\tool.exe, 0"},
    {"QuotesAlone", "\"\"", "default", ""},
    {"CommaAlone", ",", "default", ""},
    {"IndexAlone", ",0", "default", ""},
};

INSTANTIATE_TEST_SUITE_P(, DisplayIcon, testing::ValuesIn(DisplayIconCases),
                         [](const auto& test) { return test.param.name; });

// ---- The system's cache

class CachedIcon : public InstalledIcons {
  protected:
    CachedIcon() {
        AddApp("App");
        AddIcon(ToolFile, 0, 1);
    }
};

TEST_F(CachedIcon, IsTakenWhereTheApplicationNamesNone) {
    SetCache("App", CacheRecord(u"C:\\Apps\\tool.exe"));
    Open();
    EXPECT_EQ(IconOf("App"), "1");
    EXPECT_EQ(IconCalls(), (RowTexts{std::string(ToolFile) + ", 0"}));
}

TEST_F(CachedIcon, IsTakenWhereTheNameIsEmpty) {
    SetCache("App", CacheRecord(u"C:\\Apps\\tool.exe"));
    SetText("App", "DisplayIcon", "");
    Open();
    EXPECT_EQ(IconOf("App"), "1");
}

TEST_F(CachedIcon, MayHaveANameOfTheCodePage) {
    AddIcon("C:\\\xFC.exe", 0, 2);
    SetCache("App", CacheRecord(u"C:\\\u00FC.exe"));
    Open();
    EXPECT_EQ(IconOf("App"), "2");
}

TEST_F(CachedIcon, IsNotLookedForInAFileThatIsMissing) {
    for (const char16_t* path : {u"C:\\none.exe", u"C:\\\u0416.exe", u"Z:\\a.exe", u""}) {
        SetCache("App", CacheRecord(path));
        OpenAnew();
        EXPECT_EQ(IconOf("App"), DefaultPicture);
    }
    EXPECT_EQ(IconCalls(), RowTexts());
}

TEST_F(CachedIcon, IsNoneInARecordOfAnotherSizeOrKind) {
    Bytes noName = CacheRecord(u"C:\\Apps\\tool.exe");
    noName[4] = 0;
    Bytes shorter = CacheRecord(u"C:\\Apps\\tool.exe");
    shorter.resize(551);
    Bytes longer = CacheRecord(u"C:\\Apps\\tool.exe");
    longer.resize(553);
    const Bytes filled(552, 0xFF);
    const Bytes endless = CacheRecord(std::u16string(300, u'x'));
    for (const Bytes& record : {noName, shorter, longer, filled, endless, Bytes{1}, Bytes{}}) {
        SetCache("App", record);
        OpenAnew();
        EXPECT_EQ(IconOf("App"), DefaultPicture) << record.size();
    }
    EXPECT_EQ(IconCalls(), RowTexts());
}

TEST_F(CachedIcon, IsReadWhateverTheTypeOfTheValue) {
    Registry().SetRaw(AllUsers,
                      "Software\\Microsoft\\Windows\\CurrentVersion\\App Management\\ARPCache\\App",
                      "SlowInfoCache", registryType::None, CacheRecord(u"C:\\Apps\\tool.exe"));
    Open();
    EXPECT_EQ(IconOf("App"), "1");
}

TEST_F(CachedIcon, IsNoneWhereTheRecordCanNotBeRead) {
    SetCache("App", CacheRecord(u"C:\\Apps\\tool.exe"));
    Registry().Restrict(AllUsers, "Software\\Microsoft\\Windows\\CurrentVersion\\App Management",
                        std::nullopt);
    Open();
    EXPECT_EQ(IconOf("App"), DefaultPicture);
    EXPECT_EQ(Messages(), RowTexts());
}

TEST_F(CachedIcon, IsReadOnSystemsThatKeepTheRecord) {
    SetCache("App", CacheRecord(u"C:\\Apps\\tool.exe"));
    program.Start();
    const std::pair<const char*, const char*> systems[] = {
        {"Windows 95", DefaultPicture},
        {"Windows 98", DefaultPicture},
        {"Windows 98 SE", DefaultPicture},
        {"Windows Millennium", "1"},
        {"Windows NT 4.0", "1"},
        {"Windows 2000", "1"},
        {"Windows XP", "1"},
        {"", "1"},
        {"Windows Server 1998", DefaultPicture},
    };
    for (const auto& [system, icon] : systems) {
        program.application.WindowsName = system;
        Enter();
        EXPECT_EQ(IconOf("App"), icon) << system;
        Leave();
    }
}

TEST_F(CachedIcon, GoesByTheSystemThatRuns) {
    SetCache("App", CacheRecord(u"C:\\Apps\\tool.exe"));
    for (const NamedSystem system : allNamedSystems) {
        const bool keepsNone = system == NamedSystem::Windows95 ||
                               system == NamedSystem::Windows98 ||
                               system == NamedSystem::Windows98SecondEdition;
        Machine().SetSystem(system);
        RunningProgram again(Machine());
        again.Start();
        again.Get<Button>("frmMain", "cmdAddremove").Raise("Click");
        ListView& list = again.Get<ListView>("frmAddRemove", "lstvAddRemove");
        EXPECT_EQ(list.Row(0).Image() == 1, keepsNone) << static_cast<int>(system);
    }
}

// ---- The pictures of the list

TEST_F(InstalledIcons, AreTheDefaultWhereNothingIsNamed) {
    AddApp("App");
    Open();
    EXPECT_EQ(IconOf("App"), DefaultPicture);
    EXPECT_EQ(IconCalls(), RowTexts());
}

TEST_F(InstalledIcons, OfEachApplicationAreItsOwn) {
    AddIcon("C:\\a.exe", 0, 1).Icon(1, LargeIcon(2), SmallIcon(2));
    AddIcon("C:\\b.exe", 0, 3);
    AddAppWithIcon("A0", "C:\\a.exe");
    AddAppWithIcon("A1", "C:\\a.exe,1");
    AddApp("B0");
    SetCache("B0", CacheRecord(u"C:\\b.exe"));
    AddApp("None");
    Open();
    EXPECT_EQ(IconOf("A0"), "1");
    EXPECT_EQ(IconOf("A1"), "2");
    EXPECT_EQ(IconOf("B0"), "3");
    EXPECT_EQ(IconOf("None"), DefaultPicture);
}

TEST_F(InstalledIcons, AreEachTakenOnceInALoad) {
    AddIcon(ToolFile, 0, 1).Icon(3, LargeIcon(2), SmallIcon(2));
    for (const char* name : {"A", "B"}) AddAppWithIcon(name, ToolFile);
    AddAppWithIcon("C", "c:\\APPS\\Tool.exe");
    for (const char* name : {"D", "E"}) AddAppWithIcon(name, "C:\\Apps\\tool.exe,3");
    for (const char* name : {"F", "G"}) AddAppWithIcon(name, "C:\\none.exe");
    AddApp("H");
    SetCache("H", CacheRecord(u"C:\\Apps\\tool.exe"));
    Open();
    EXPECT_EQ(IconCalls(),
              (RowTexts{"C:\\Apps\\tool.exe, 0", "C:\\Apps\\tool.exe, 3", "C:\\none.exe, 0"}));
    for (const char* name : {"A", "B", "C", "H"}) EXPECT_EQ(IconOf(name), "1") << name;
    for (const char* name : {"D", "E"}) EXPECT_EQ(IconOf(name), "2") << name;
    for (const char* name : {"F", "G"}) EXPECT_EQ(IconOf(name), DefaultPicture) << name;
    EXPECT_EQ(List().Images()->Count(), 3u);
    EXPECT_EQ(List().LargeImages()->Count(), 3u);
}

TEST_F(InstalledIcons, AreTakenAnewByARefresh) {
    AddIcon(ToolFile, 0, 1);
    AddAppWithIcon("App", ToolFile);
    Open();
    AddIcon(ToolFile, 0, 2);
    Click("cmdRefresh");
    EXPECT_EQ(IconOf("App"), "2");
    EXPECT_EQ(List().Images()->Count(), 2u);
    EXPECT_EQ(List().LargeImages()->Count(), 2u);
}

TEST_F(InstalledIcons, AreTheDefaultWhenOneSizeCanNotBeDrawn) {
    AddIcon(ToolFile, 0, 1);
    AddAppWithIcon("App", ToolFile);
    Open();
    for (const bool second : {false, true}) {
        const auto fail = [this] { Machine().FailNext("DrawIconEx"); };
        if (second) {
            Machine().Journal().OnCall(CallOfTheSecondDrawing(), fail);
        } else {
            fail();
        }
        Click("cmdRefresh");
        EXPECT_EQ(IconOf("App"), DefaultPicture) << second;
        EXPECT_EQ(List().Images()->Count(), 1u);
        EXPECT_EQ(List().LargeImages()->Count(), 1u);
    }
}

TEST_F(InstalledIcons, AreTheDefaultWhenTheyCanNotBeTaken) {
    AddIcon(ToolFile, 0, 1);
    AddAppWithIcon("App", ToolFile);
    Machine().FailNext("ExtractIconExA");
    Open();
    EXPECT_EQ(IconOf("App"), DefaultPicture);
    EXPECT_EQ(Messages(), RowTexts());
}

}  // namespace
}  // namespace velkarix
