#include "browser/ButtonList.h"

#include <algorithm>

#include "tests/browser/BrowserPage.h"

namespace velkarix {
namespace {

class ButtonListTest : public BrowserPage {
  protected:
    static std::string KeyOf(const std::string& clsid, const char* holder = live::Buttons) {
        return holder + ("\\" + clsid);
    }
    // A value of a live button of all users.
    void Set(const std::string& clsid, const char* valueName, const std::string& text) {
        SetValue(Hive::LocalMachine, KeyOf(clsid), valueName, text);
    }
    std::vector<RowTexts> ShownRows() { return Rows("lstvButtons"); }
    ListRow& FirstRow() { return List("lstvButtons").Row(0); }
    RowTexts States() {
        RowTexts states;
        for (const RowTexts& row : ShownRows()) states.push_back(row[1] + " " + row[2]);
        return states;
    }
    // The paths of all rows.
    RowTexts Paths() {
        RowTexts paths;
        for (const RowTexts& row : ShownRows()) paths.push_back(row[10] + row[4]);
        return paths;
    }
    bool WasRead(const std::string& valueName) {
        const RowTexts reads = Machine().Journal().ArgumentsOf("RegQueryValueExA");
        return std::any_of(reads.begin(), reads.end(), [&](const std::string& read) {
            return read.ends_with(", " + valueName);
        });
    }
    const ImageList& Images() { return *List("lstvButtons").Images(); }
};

TEST_F(ButtonListTest, HasItsColumns) {
    Open();
    EXPECT_EQ(List("lstvButtons").Columns(),
              (RowTexts{"Class ID", "Enabled", "Scope", "Button Text", "File Name", "Size (KB)",
                        "Created On", "Company Name", "Prodcut Name", "File Description", "Path"}));
}

TEST_F(ButtonListTest, ShowsAButtonWithAllThatItsFileTells) {
    Set(ClassA, "ButtonText", "Turn");
    Set(ClassA, "MenuText", "Not shown");
    Set(ClassA, "Exec", "C:\\Tools\\Turn.exe");
    Machine()
        .AddFile("C:\\Tools\\Turn.exe")
        .Content(std::string(1536, 'x'))
        .Created(2003, 5, 7)
        .Version({{"CompanyName", "Sample Works"},
                  {"ProductName", "Sample Suite"},
                  {"FileDescription", "Drives the lathe"}});
    Open();
    EXPECT_EQ(ShownRows(),
              (std::vector<RowTexts>{{ClassA, "True", "All Users", "Turn", "Turn.exe", "1.5",
                                      "05/07/2003", "Sample Works", "Sample Suite",
                                      "Drives the lathe", "C:\\Tools\\"}}));
}

TEST_F(ButtonListTest, ReadsAHeldButtonFromWhereItIsHeld) {
    const std::string key = KeyOf(ClassA, held::Buttons);
    SetValue(Hive::CurrentUser, key, "ButtonText", "Turn");
    SetValue(Hive::CurrentUser, key, "Script", "C:\\Tools\\gone.htm");
    Open();
    EXPECT_EQ(ShownRows(),
              (std::vector<RowTexts>{{ClassA, "False", "Current User", "Turn", "gone.htm", "", "",
                                      "", "", "", "C:\\Tools\\"}}));
    EXPECT_EQ(FirstRow().TextColor(), DisabledColor);
}

TEST_F(ButtonListTest, ListsTheHeldButtonsInTheOrderOfTheLiveOnesUnlikeToolbars) {
    for (const Hive hive : {Hive::CurrentUser, Hive::LocalMachine}) {
        for (const char* holder : {held::Buttons, live::Buttons}) {
            SetValue(hive, KeyOf(ClassA, holder), "Script", "x");
        }
    }
    Open();
    EXPECT_EQ(States(), (RowTexts{"True All Users", "True Current User", "False All Users",
                                  "False Current User"}));
}

// ---- The file: the first of four that is there

TEST_F(ButtonListTest, LooksNoFurtherThanAProgramThatIsThere) {
    Set(ClassA, "Exec", "C:\\a.exe");
    Set(ClassA, "ClsidExtension", ClassB);
    Set(ClassA, "BandCLSID", ClassB);
    Set(ClassA, "Script", "C:\\a.htm");
    Machine().AddFile("C:\\a.exe");
    AddClass(ClassB, "C:\\b.dll");
    Open();
    EXPECT_EQ(Paths(), RowTexts{"C:\\a.exe"});
    for (const char* valueName : {"ClsidExtension", "BandCLSID", "Script"}) {
        EXPECT_FALSE(WasRead(valueName)) << valueName;
    }
}

TEST_F(ButtonListTest, TakesAFolderForAProgramThatIsThere) {
    Set(ClassA, "Exec", "C:\\Tools");
    Set(ClassA, "Script", "C:\\a.htm");
    Machine().AddFolder("C:\\Tools");
    Open();
    EXPECT_EQ(Paths(), RowTexts{"C:\\Tools"});
}

TEST_F(ButtonListTest, TakesTheClassOfTheExtensionWhereThereIsNoProgram) {
    Set(ClassA, "Exec", "C:\\gone.exe");
    Set(ClassA, "ClsidExtension", ClassB);
    Set(ClassA, "BandCLSID", ClassC);
    AddClass(ClassB, "C:\\b.dll");
    AddClass(ClassC, "C:\\c.dll");
    Open();
    EXPECT_EQ(Paths(), RowTexts{"C:\\b.dll"});
    EXPECT_FALSE(WasRead("BandCLSID"));
    EXPECT_FALSE(WasRead("Script"));
}

TEST_F(ButtonListTest, TakesTheClassOfTheBandWhereTheExtensionHasNoFile) {
    Set(ClassA, "ClsidExtension", ClassB);
    Set(ClassA, "BandCLSID", ClassC);
    Set(ClassA, "Script", "C:\\a.htm");
    RegisterClass(ClassB, "C:\\gone.dll");
    AddClass(ClassC, "C:\\c.dll");
    Open();
    EXPECT_EQ(Paths(), RowTexts{"C:\\c.dll"});
    EXPECT_FALSE(WasRead("Script"));
}

TEST_F(ButtonListTest, TakesTheScriptLastWhetherItIsThereOrNot) {
    for (const char* clsid : {ClassA, ClassB}) {
        Set(clsid, "Exec", "C:\\gone.exe");
        Set(clsid, "ClsidExtension", ClassC);
        Set(clsid, "BandCLSID", ClassC);
    }
    RegisterClass(ClassC, "C:\\gone.dll");
    Set(ClassA, "Script", "C:\\a.htm");
    Set(ClassB, "Script", "C:\\gone.htm");
    Machine().AddFile("C:\\a.htm");
    Open();
    EXPECT_EQ(Paths(), (RowTexts{"C:\\a.htm", "C:\\gone.htm"}));
    EXPECT_EQ(ColumnOf("lstvButtons", 5), (RowTexts{"0.0", ""}));
}

TEST_F(ButtonListTest, TakesNoFileOfAClassThatItDoesNotName) {
    Set(ClassA, "Script", "C:\\gone.htm");
    SetValue(Hive::ClassesRoot, "CLSID\\InprocServer32", "", "C:\\stray.dll");
    Machine().AddFile("C:\\stray.dll");
    Open();
    EXPECT_EQ(Paths(), RowTexts{"C:\\gone.htm"});
}

// Each attempt replaces what the one before it found, also by nothing.
TEST_F(ButtonListTest, HidesAButtonWhoseProgramIsGoneAndThatNamesNothingElse) {
    Set(ClassA, "ButtonText", "Gone");
    Set(ClassA, "Exec", "C:\\gone.exe");
    Open();
    EXPECT_EQ(ShownRows(), std::vector<RowTexts>());
}

TEST_F(ButtonListTest, HidesAButtonWhoseClassesHaveNoFileAndThatHasNoScript) {
    Set(ClassA, "ClsidExtension", ClassB);
    Set(ClassA, "BandCLSID", ClassB);
    RegisterClass(ClassB, "C:\\gone.dll");
    Open();
    EXPECT_EQ(ShownRows(), std::vector<RowTexts>());
}

TEST_F(ButtonListTest, HidesAButtonThatNamesNothingAtAll) {
    Set(ClassA, "ButtonText", "Empty");
    Set(ClassA, "MenuText", "Empty");
    Set(ClassA, "Icon", "C:\\a.ico");
    AddKey(Hive::LocalMachine, KeyOf(ClassB));
    Open();
    EXPECT_EQ(ShownRows(), std::vector<RowTexts>());
}

// The last backslash of an address may be missing, which makes all of it the name.
TEST_F(ButtonListTest, ShowsAScriptThatIsAnAddressByItsText) {
    Set(ClassA, "ButtonText", "Web");
    Set(ClassA, "Script", "res://C:\\Tools\\bar.dll/script.htm");
    Set(ClassB, "Script", "http://example.com/a.htm");
    Open();
    EXPECT_EQ(ShownRows(),
              (std::vector<RowTexts>{{ClassA, "True", "All Users", "Web", "bar.dll/script.htm", "",
                                      "", "", "", "", "res://C:\\Tools\\"},
                                     {ClassB, "True", "All Users", "", "http://example.com/a.htm",
                                      "", "", "", "", "", ""}}));
}

TEST_F(ButtonListTest, CleansThePathOfEachOfTheFour) {
    Set(ClassA, "Exec", "%SystemRoot%\\a.exe");
    Set(ClassB, "ClsidExtension", ClassB);
    Set(ClassC, "BandCLSID", ClassC);
    Set(ClassD, "Script", "%SystemRoot%\\d.htm");
    RegisterClass(ClassB, "%SystemRoot%\\b.dll");
    RegisterClass(ClassC, "%SystemRoot%\\c.dll");
    for (const char* name : {"a.exe", "b.dll", "c.dll"}) {
        Machine().AddFile(std::string("C:\\WINDOWS\\") + name);
    }
    Open();
    EXPECT_EQ(Paths(), (RowTexts{"C:\\WINDOWS\\a.exe", "C:\\WINDOWS\\b.dll", "C:\\WINDOWS\\c.dll",
                                 "C:\\WINDOWS\\d.htm"}));
    EXPECT_EQ(ColumnOf("lstvButtons", 5), (RowTexts{"0.0", "0.0", "0.0", ""}));
}

TEST_F(ButtonListTest, SuspectsAButtonByItsOwnClassAndNotByThatOfItsFile) {
    SuspectClasses("{0a5e7c11-2f30-4b61-9d0a-6c1e5b7f0001}");
    Set(ClassA, "Script", "C:\\gone.htm");
    Set(ClassB, "ClsidExtension", ClassA);
    AddClass(ClassA, "C:\\a.dll");
    Open();
    EXPECT_EQ(RowNamed("lstvButtons", ClassA)->TextColor(), SuspiciousColor);
    EXPECT_EQ(RowNamed("lstvButtons", ClassB)->TextColor(), std::nullopt);
}

// ---- The picture: of "Icon" alone

class ButtonIconTest : public ButtonListTest {
  protected:
    const Picture small = {1, 1, {0xFF0000AA}};
    const Picture large = {1, 1, {0xFF0000BB}};

    // A button with its file.
    void PutButton(const std::string& icon) {
        Set(ClassA, "Exec", "C:\\a.exe");
        Set(ClassA, "Icon", icon);
        Machine().AddFile("C:\\a.exe").Icon(0, small, large);
    }
    std::size_t LoadedIcons() { return Images().Count() - 1; }
};

TEST_F(ButtonIconTest, IsNeverThatOfTheFile) {
    PutButton("");
    Open();
    EXPECT_EQ(FirstRow().Image(), 1u);
    EXPECT_EQ(LoadedIcons(), 0u);
}

struct IconCase {
    const char* text;
    int index;
};

TEST_F(ButtonIconTest, IsTheOneOfTheFileAndOfTheIndexBehindTheLastComma) {
    const IconCase cases[] = {
        {"C:\\icons.dll", 0},          {"C:\\icons.dll,3", 3},      {"C:\\icons.dll,-101", -101},
        {"C:\\icons.dll, 12", 12},     {"C:\\icons.dll,", 0},       {"C:\\icons.dll,x", 0},
        {"C:\\icons.dll,7 and so", 7}, {"C:\\a,b\\icons.dll,5", 5},
    };
    for (const char* path : {"C:\\icons.dll", "C:\\a,b\\icons.dll"}) {
        MemoryEntry& file = Machine().AddFile(path);
        for (const IconCase& each : cases) file.Icon(each.index, large, {1, each.index, {1}});
    }
    PutButton("");
    Open();
    for (const IconCase& each : cases) {
        SCOPED_TRACE(each.text);
        Set(ClassA, "Icon", each.text);
        Click("cmdRefreshButton");
        ASSERT_EQ(FirstRow().Image(), 2u);
        EXPECT_EQ(std::get<Picture>(Images().At(2)), (Picture{1, each.index, {1}}));
    }
    EXPECT_EQ(Machine().shell.OpenIconCount(), 0u);
}

TEST_F(ButtonIconTest, IsTheStockPictureWhereItsFileHasNone) {
    const char* const icons[] = {
        "C:\\gone.ico", "C:\\gone.ico,2",    "C:\\plain.ico",       "C:\\plain.ico,-2147483649",
        ",5",           "C:\\has,comma.ico", "%SystemRoot%\\i.ico", "\"C:\\i.ico\""};
    Machine().AddFile("C:\\plain.ico");
    Machine().AddFile("C:\\i.ico").Icon(0, large, small);
    Machine().AddFile("C:\\has,comma.ico").Icon(0, large, small);
    Machine().AddFile("C:\\WINDOWS\\i.ico").Icon(0, large, small);
    PutButton("");
    Open();
    for (const char* icon : icons) {
        SCOPED_TRACE(icon);
        Set(ClassA, "Icon", icon);
        Click("cmdRefreshButton");
        EXPECT_EQ(FirstRow().Image(), 1u);
        EXPECT_EQ(LoadedIcons(), 0u);
    }
}

// The icon is loaded all the same.
TEST_F(ButtonIconTest, IsTheStockPictureForAButtonWhoseFileIsGone) {
    Set(ClassA, "Script", "C:\\gone.htm");
    Set(ClassA, "Icon", "C:\\i.ico");
    Machine().AddFile("C:\\i.ico").Icon(0, large, small);
    Open();
    EXPECT_EQ(FirstRow().Image(), 1u);
    EXPECT_EQ(LoadedIcons(), 1u);
}

// The system would look for it in other folders.
TEST_F(ButtonIconTest, IsNotAskedOfAFileThatIsNotThere) {
    PutButton("gone.dll,3");
    Open();
    EXPECT_EQ(Machine().Journal().CountOf("ExtractIconExA"), 0u);
}

TEST_F(ButtonIconTest, IsNotLoadedForAButtonThatMakesNoRow) {
    Set(ClassA, "Icon", "C:\\i.ico");
    Machine().AddFile("C:\\i.ico").Icon(0, large, small);
    Open();
    EXPECT_EQ(LoadedIcons(), 0u);
}

TEST_F(ButtonIconTest, IsReadFromAValueOfAnyType) {
    PutButton("");
    Machine().AddFile("C:\\i.ico").Icon(2, large, small);
    for (const std::uint32_t type : {registryType::Binary, registryType::None, 99u}) {
        Machine().registry.SetRaw(Hive::LocalMachine, KeyOf(ClassA), "Icon", type,
                                  {'C', ':', '\\', 'i', '.', 'i', 'c', 'o', ',', '2'});
        if (type == registryType::Binary) Open();
        Click("cmdRefreshButton");
        EXPECT_EQ(FirstRow().Image(), 2u);
    }
}

}  // namespace
}  // namespace velkarix
