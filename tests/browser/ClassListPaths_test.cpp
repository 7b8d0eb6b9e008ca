// The paths and texts that classes are registered with in the field.
#include <utility>

#include "tests/browser/ClassPage.h"

namespace velkarix {
namespace {

using ClassPathTest = ClassPage;

TEST_P(ClassPathTest, ExpandsVariablesInThePath) {
    PutLiveClass(ClassA);
    RegisterClass(ClassA, "%SystemRoot%\\a.dll");
    Machine().AddFile("C:\\WINDOWS\\a.dll").Created(2003, 5, 7);
    Open();
    EXPECT_EQ(FolderAndFile(Row(0)), "C:\\WINDOWS\\|a.dll");
    EXPECT_EQ(Row(0).Text(Case().size + 1), "05/07/2003");
}

TEST_P(ClassPathTest, ShowsTheLongFormOfAShortPath) {
    PutLiveClass(ClassA);
    RegisterClass(ClassA, "C:\\PROGRA~1\\SOMELO~1.DLL");
    Machine().AddFolder("C:\\Program Files").ShortName("PROGRA~1");
    Machine().AddFile("C:\\Program Files\\Some long name.dll").ShortName("SOMELO~1.DLL");
    Open();
    EXPECT_EQ(FolderAndFile(Row(0)), "C:\\Program Files\\|Some long name.dll");
    EXPECT_EQ(Row(0).Text(Case().size), "0.0");
}

TEST_P(ClassPathTest, TakesAFolderForAFileThatIsThere) {
    SuspectFiles(Md5OfAbcFile);
    PutLiveClass(ClassA);
    RegisterClass(ClassA, "C:\\Tools");
    Machine().AddFolder("C:\\Tools").Created(2003, 5, 7);
    Open();
    EXPECT_EQ(FolderAndFile(Row(0)), "C:\\|Tools");
    EXPECT_EQ(FactsOf(Row(0)), (RowTexts{"0.0", "05/07/2003", "", "", ""}));
    EXPECT_EQ(Row(0).TextColor(), std::nullopt);
    EXPECT_EQ(Row(0).Image(), 1u);
    EXPECT_EQ(Messages(), RowTexts());
}

TEST_P(ClassPathTest, FindsARelativeNameInTheCurrentFolderOnly) {
    PutLiveClass(ClassA);
    RegisterClass(ClassA, "here.dll");
    program.AddInstalledFile("here.dll").Created(2003, 5, 7);
    Open();
    EXPECT_EQ(FolderAndFile(Row(0)), "|here.dll");
    EXPECT_EQ(Row(0).Text(Case().size + 1), "05/07/2003");
}

TEST_P(ClassPathTest, FindsAFileAlsoWhereTheShellHasNoCallForIt) {
    Machine().files.SetHasPathFileExists(false);
    PutLiveClass(ClassA);
    AddClass(ClassA, "C:\\a.dll").Created(2003, 5, 7);
    Open();
    EXPECT_EQ(FactsOf(Row(0)), (RowTexts{"0.0", "05/07/2003", "", "", ""}));
}

struct RegisteredText {
    const char* text;
    const char* folder;
    const char* file;
};

// Each names nothing that is there, though a file is meant that is: its text stands in two parts.
TEST_P(ClassPathTest, ShowsTheTextOfAPathThatIsNoneInTwoParts) {
    const RegisteredText registered[] = {
        {"\"C:\\Tools\\a.dll\"", "\"C:\\Tools\\", "a.dll\""},
        {"C:\\Tools\\a.dll /switch", "C:\\Tools\\", "a.dll /switch"},
        {"C:\\Tools\\a.dll,-101", "C:\\Tools\\", "a.dll,-101"},
        {"C:\\Tools\\*.dll", "C:\\Tools\\", "*.dll"},
        {"elsewhere.dll", "", "elsewhere.dll"},
        {"\\a.dll", "\\", "\\a.dll"},
        {"%NoSuchVariable%\\a.dll", "%NoSuchVariable%\\", "a.dll"},
        {"C:\\NOSUCH~1\\a.dll", "C:\\NOSUCH~1\\", "a.dll"},
        {"file://C:\\Tools\\a.dll", "file://C:\\Tools\\", "a.dll"},
        {"C:/Gone/a.dll", "", "C:/Gone/a.dll"},
        {"C:\\Gone\\", "C:\\Gone\\", ""},
        {"res://C:\\Tools\\a.dll/x.htm", "res://C:\\Tools\\", "a.dll/x.htm"},
    };
    Machine().AddFile("C:\\Tools\\a.dll").Created(2003, 5, 7);
    PutLive(ClassA);
    Open();
    for (const RegisteredText& each : registered) {
        SCOPED_TRACE(each.text);
        RegisterClass(ClassA, each.text);
        if (Case().kind == ScanKind::Button) {
            SetValue(Place().hive, LiveKey(ClassA), "Script", each.text);
        }
        Refresh();
        ASSERT_EQ(TheList().RowCount(), 1u);
        EXPECT_EQ(Row(0).Text(Case().folder), each.folder);
        EXPECT_EQ(Row(0).Text(Case().file), each.file);
        EXPECT_EQ(FactsOf(Row(0)), NoFacts);
        EXPECT_EQ(Row(0).Image(), 1u);
    }
}

// ---- Values of any type

struct RawPath {
    const char* name;
    std::uint32_t type;
    Bytes data;
};

std::vector<RawPath> RawPaths() {
    const auto bytes = [](std::string_view text) { return Bytes(text.begin(), text.end()); };
    using std::string_view_literals::operator""sv;
    return {
        {"without NUL", registryType::Sz, bytes("C:\\a.dll")},
        {"bytes behind the NUL", registryType::Sz, bytes("C:\\a.dll\0\0garbage"sv)},
        {"expandable", registryType::ExpandSz, bytes("C:\\a.dll\0"sv)},
        {"many texts", registryType::MultiSz, bytes("C:\\a.dll\0C:\\b.dll\0\0"sv)},
        {"bytes", registryType::Binary, bytes("C:\\a.dll")},
        {"no type", registryType::None, bytes("C:\\a.dll\0"sv)},
        {"unknown type", 0xFFFF0008, bytes("C:\\a.dll\0"sv)},
    };
}

TEST_P(ClassPathTest, TakesAPathOfAnyTypeUpToItsNul) {
    PutLiveClass(ClassA);
    Machine().AddFile("C:\\a.dll").Created(2003, 5, 7);
    Open();
    for (const RawPath& path : RawPaths()) {
        SCOPED_TRACE(path.name);
        Machine().registry.SetRaw(Hive::ClassesRoot, InprocKey(ClassA), "", path.type, path.data);
        Refresh();
        ASSERT_EQ(TheList().RowCount(), 1u);
        EXPECT_EQ(FolderAndFile(Row(0)), "C:\\|a.dll");
        EXPECT_EQ(Row(0).Text(Case().size + 1), "05/07/2003");
    }
}

// Numbers and bytes come as what they look like; nothing, and what begins with a NUL, as nothing.
TEST_P(ClassPathTest, ShowsADescriptionOfAnyTypeAsItsBytes) {
    const std::pair<MemoryValue, const char*> descriptions[] = {
        {{"", registryType::Dword, {'A', 'B', 0, 0}}, "AB"},
        {{"", registryType::Dword, {1, 0, 0, 0}}, "\x01"},
        {{"", registryType::Dword, {0, 0, 0, 1}}, ""},
        {{"", registryType::Binary, {0xE9, 0xFF, 0x80}}, "\xE9\xFF\x80"},
        {{"", registryType::MultiSz, {'a', 0, 'b', 0, 0}}, "a"},
        {{"", registryType::None, {'n'}}, "n"},
        {{"", 0x7FFFFFFF, {'u', 'v', 'w'}}, "uvw"},
        {{"", registryType::Sz, {}}, ""},
        {{"", registryType::Binary, {}}, ""},
        {{"", registryType::Sz, {0}}, ""},
    };
    PutLiveClass(ClassA);
    AddClass(ClassA, "C:\\a.dll");
    Open();
    // Where the description stands: with the item itself, or with its class.
    const bool ownKey = Case().kind == ScanKind::Button || Case().kind == ScanKind::Protocol;
    const Hive hive = ownKey ? Place().hive : Hive::ClassesRoot;
    const std::string key = ownKey ? LiveKey(ClassA) : std::string("CLSID\\") + ClassA;
    const char* name = Case().kind == ScanKind::Button ? "ButtonText" : "";
    for (const auto& [value, text] : descriptions) {
        Machine().registry.SetRaw(hive, key, name, value.type, value.data);
        Refresh();
        ASSERT_EQ(TheList().RowCount(), 1u);
        EXPECT_EQ(Row(0).Text(Case().description), text);
        EXPECT_EQ(Row(0).Text(Case().file), "a.dll");
    }
}

INSTANTIATE_TEST_SUITE_P(, ClassPathTest, ClassScans, ScanName);

}  // namespace
}  // namespace velkarix
