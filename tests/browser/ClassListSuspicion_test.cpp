// When a class or its file is suspicious, and how that shows.
#include "tests/browser/ClassPage.h"

namespace velkarix {
namespace {

using ClassSuspicionTest = ClassPage;

TEST_P(ClassSuspicionTest, SuspectsAClassWithoutRegardToItsCaseInTheRegistry) {
    SuspectClasses(LowerClassA);
    PutLiveClass(ClassA);
    AddClass(ClassA, "C:\\a.dll");
    Open();
    EXPECT_EQ(Row(0).TextColor(), SuspiciousColor);
    EXPECT_TRUE(Row(0).Bold());
}

TEST_P(ClassSuspicionTest, ComputesNoHashWhenTheClassIsKnown) {
    SuspectClasses(LowerClassA);
    PutLiveClass(ClassA);
    PutHeldClass(ClassA);
    AddClass(ClassA, "C:\\a.dll").Content("abc");
    Open();
    EXPECT_EQ(HashesComputed(), 0u);
}

TEST_P(ClassSuspicionTest, NeverFindsAClassThatTheDefinitionListHasInCapitals) {
    SuspectClasses(ClassA);
    PutLiveClass(ClassA);
    AddClass(ClassA, "C:\\a.dll").Content("abc");
    Open();
    EXPECT_EQ(Row(0).TextColor(), std::nullopt);
    EXPECT_EQ(HashesComputed(), 1u);
}

TEST_P(ClassSuspicionTest, SuspectsAClassThatIsAPartOfAnEntry) {
    SuspectClasses("x" + std::string(LowerClassA) + " some toolbar");
    PutLiveClass(ClassA);
    AddClass(ClassA, "C:\\a.dll");
    Open();
    EXPECT_EQ(Row(0).TextColor(), SuspiciousColor);
}

TEST_P(ClassSuspicionTest, SuspectsAFileWhateverItsClass) {
    SuspectFiles(Md5OfAbcFile);
    PutLiveClass(ClassA);
    PutLiveClass(ClassB);
    AddClass(ClassA, "C:\\a.dll").Content("abc");
    AddClass(ClassB, "C:\\b.dll").Content("abcd");
    Open();
    EXPECT_EQ(Row(0).TextColor(), SuspiciousColor);
    EXPECT_TRUE(Row(0).Bold());
    EXPECT_EQ(Row(1).TextColor(), std::nullopt);
    EXPECT_FALSE(Row(1).Bold());
}

TEST_P(ClassSuspicionTest, LooksForClassesAndFilesEachInItsOwnDefinitionList) {
    SuspectFiles(LowerClassA);
    SuspectClasses(Md5OfAbcFile);
    PutLiveClass(ClassA);
    AddClass(ClassA, "C:\\a.dll").Content("abc");
    Open();
    EXPECT_EQ(Row(0).TextColor(), std::nullopt);
}

TEST_P(ClassSuspicionTest, SuspectsAKnownClassWhoseFileIsGoneAndOpensNoFile) {
    SuspectClasses(LowerClassA);
    SuspectFiles(Md5OfAbcFile);
    for (const char* clsid : {ClassA, ClassB}) {
        PutLive(clsid);
        RegisterClass(clsid, "C:\\gone.dll");
    }
    Open();
    EXPECT_EQ(Row(0).TextColor(), SuspiciousColor);
    EXPECT_EQ(Row(1).TextColor(), std::nullopt);
    for (const std::string& opened : Machine().Journal().ArgumentsOf("CreateFileA")) {
        EXPECT_EQ(opened.find("gone"), std::string::npos) << opened;
    }
}

TEST_P(ClassSuspicionTest, DoesNotSuspectAFileThatCannotBeRead) {
    SuspectFiles(std::string(Md5OfAbcFile) + "\r\n\r\n");
    PutLiveClass(ClassA);
    AddClass(ClassA, "C:\\a.dll").Content("abc").Unreadable();
    Open();
    EXPECT_EQ(Row(0).TextColor(), std::nullopt);
    EXPECT_EQ(Row(0).Text(Case().size), "0.0");
    EXPECT_EQ(Messages(), RowTexts());
}

TEST_P(ClassSuspicionTest, GivesASuspiciousHeldRowAColourOfItsOwn) {
    SuspectClasses(LowerClassA);
    PutHeldClass(ClassA);
    PutHeldClass(ClassB);
    AddClass(ClassA, "C:\\a.dll");
    AddClass(ClassB, "C:\\b.dll");
    Open();
    EXPECT_EQ(Row(0).TextColor(), SuspiciousDisabledColor);
    EXPECT_TRUE(Row(0).Bold());
    EXPECT_EQ(Row(1).TextColor(), DisabledColor);
    EXPECT_FALSE(Row(1).Bold());
}

TEST_P(ClassSuspicionTest, TakesColoursAndWeightFromTheSettings) {
    program.AddInstalledFile("Settings.ini")
        .Content("[Main]\r\nSusColor=1\r\nDisColor=2\r\nSusDisColor=3\r\nFontBold=0\r\n");
    SuspectClasses(LowerClassA);
    PutLiveClass(ClassA);
    PutHeldClass(ClassA);
    PutHeldClass(ClassB);
    AddClass(ClassA, "C:\\a.dll");
    AddClass(ClassB, "C:\\b.dll");
    Open();
    EXPECT_EQ(Row(0).TextColor(), Color{1});
    EXPECT_EQ(Row(1).TextColor(), Color{3});
    EXPECT_EQ(Row(2).TextColor(), Color{2});
    EXPECT_FALSE(Row(0).Bold());
    EXPECT_FALSE(Row(1).Bold());
}

TEST_P(ClassSuspicionTest, JudgesAnewWhenRefreshed) {
    SuspectFiles(Md5OfAbcFile);
    PutLiveClass(ClassA);
    MemoryEntry& file = AddClass(ClassA, "C:\\a.dll").Content("abc");
    Open();
    EXPECT_EQ(Row(0).TextColor(), SuspiciousColor);
    file.Content("harmless now");
    Refresh();
    EXPECT_EQ(Row(0).TextColor(), std::nullopt);
    EXPECT_FALSE(Row(0).Bold());
}

INSTANTIATE_TEST_SUITE_P(, ClassSuspicionTest, ClassScans, ScanName);

}  // namespace
}  // namespace velkarix
