// What the rows tell that show a class and the file behind it.
#include "browser/ClassList.h"

#include "tests/browser/ClassPage.h"

namespace velkarix {
namespace {

using ClassListTest = ClassPage;

TEST_P(ClassListTest, ShowsWhatIsHeldInFull) {
    PutHeldClass(ClassA);
    AddClass(ClassA, "C:\\Tools\\Lathe.dll", "Turns")
        .Content(std::string(1536, 'x'))
        .Created(2003, 5, 7)
        .Version({{"CompanyName", "Sample Works"},
                  {"ProductName", "Sample Suite"},
                  {"FileDescription", "Drives the lathe"}});
    Open();
    ASSERT_EQ(Names(), RowTexts{ClassA});
    EXPECT_EQ(FactsOf(Row(0)),
              (RowTexts{"1.5", "05/07/2003", "Sample Works", "Sample Suite", "Drives the lathe"}));
    EXPECT_EQ(FolderAndFile(Row(0)), "C:\\Tools\\|Lathe.dll");
}

TEST_P(ClassListTest, ShowsDateAndSizeOfAFileWithoutVersion) {
    PutLiveClass(ClassA);
    AddClass(ClassA, "C:\\a.dll").Created(1999, 12, 31);
    Open();
    EXPECT_EQ(FactsOf(Row(0)), (RowTexts{"0.0", "12/31/1999", "", "", ""}));
}

TEST_P(ClassListTest, DoesNotMixTheFactsOfItsRows) {
    for (const char* clsid : {ClassA, ClassB, ClassC}) PutLiveClass(clsid);
    AddClass(ClassA, "C:\\a.dll").Created(2001, 1, 1).Version({{"CompanyName", "Of A"}});
    AddClass(ClassB, "C:\\b.dll").Created(2002, 2, 2);
    AddClass(ClassC, "C:\\c.dll").Created(2003, 3, 3).Version({{"ProductName", "Of C"}});
    Open();
    EXPECT_EQ(FactsOf(Row(0)), (RowTexts{"0.0", "01/01/2001", "Of A", "", ""}));
    EXPECT_EQ(FactsOf(Row(1)), (RowTexts{"0.0", "02/02/2002", "", "", ""}));
    EXPECT_EQ(FactsOf(Row(2)), (RowTexts{"0.0", "03/03/2003", "", "Of C", ""}));
}

// A path that is longer than any file's is no file.
TEST_P(ClassListTest, TakesAPathOfAnyLength) {
    PutLiveClass(ClassA);
    std::string path = "C:\\";
    path.append(5000, 'x').append("\\a.dll");
    RegisterClass(ClassA, path);
    if (Case().kind == ScanKind::Button) {
        SetValue(Place().hive, LiveKey(ClassA), "Script", path);
    }
    Open();
    EXPECT_EQ(Row(0).Text(Case().file), "a.dll");
    EXPECT_EQ(Row(0).Text(Case().folder).size(), 5004u);
    EXPECT_EQ(FactsOf(Row(0)), NoFacts);
}

TEST_P(ClassListTest, ShowsARowWithoutFactsWhereTheClassMayNotBeRead) {
    PutLive(ClassA);
    PutLive(ClassB);
    AddClass(ClassA, "C:\\a.dll", "Of A").Version({{"CompanyName", "Maker of A"}});
    AddClass(ClassB, "C:\\b.dll", "Of B");
    Machine().registry.Restrict(Hive::ClassesRoot, std::string("CLSID\\") + ClassB, std::nullopt);
    Open();
    ASSERT_EQ(Names(), (RowTexts{ClassA, ClassB}));
    EXPECT_EQ(FactsOf(Row(1)), NoFacts);
    EXPECT_EQ(Messages(), RowTexts());
}

INSTANTIATE_TEST_SUITE_P(, ClassListTest, ClassScans, ScanName);

// ---- Lists in which a row comes whatever becomes of its file, and shows the file's own icon

using OwnIconListTest = ClassPage;

TEST_P(OwnIconListTest, ShowsAClassThatIsNotRegisteredWithoutFacts) {
    PutLiveClass(ClassA);
    Open();
    ASSERT_EQ(Names(), RowTexts{ClassA});
    EXPECT_EQ(Row(0).Text(Case().description), "");
    EXPECT_EQ(FolderAndFile(Row(0)), "|");
    EXPECT_EQ(FactsOf(Row(0)), NoFacts);
    EXPECT_EQ(Row(0).Image(), 1u);
}

TEST_P(OwnIconListTest, ShowsAClassWhosePathHasNoDefaultValueWithoutFacts) {
    PutLiveClass(ClassA);
    SetValue(Hive::ClassesRoot, InprocKey(ClassA), "ThreadingModel", "Apartment");
    Open();
    ASSERT_EQ(Names(), RowTexts{ClassA});
    EXPECT_EQ(FolderAndFile(Row(0)), "|");
    EXPECT_EQ(FactsOf(Row(0)), NoFacts);
    EXPECT_EQ(Row(0).Image(), 1u);
}

TEST_P(OwnIconListTest, ShowsAClassWhosePathIsNoTextAtAllWithoutFacts) {
    PutLiveClass(ClassA);
    Open();
    const Bytes unread[] = {{}, {0}, {0, 0, 0, 0, 'x'}};
    for (const Bytes& data : unread) {
        for (const std::uint32_t type :
             {registryType::Sz, registryType::Dword, registryType::Binary, registryType::None}) {
            Machine().registry.SetRaw(Hive::ClassesRoot, InprocKey(ClassA), "", type, data);
            Refresh();
            EXPECT_EQ(FolderAndFile(Row(0)), "|");
            EXPECT_EQ(FactsOf(Row(0)), NoFacts);
        }
    }
}

TEST_P(OwnIconListTest, BeginsItsPicturesWithTheStockPicture) {
    Open();
    ASSERT_EQ(ImageCount(), 1u);
    EXPECT_EQ(std::get<StockPicture>(TheList().Images()->At(1)).name, "Software");
}

TEST_P(OwnIconListTest, AddsTheSmallIconOfEachFileAlsoOfOneThatItHas) {
    const Picture small = {1, 1, {0xFF000001}};
    const Picture large = {1, 1, {0xFF000002}};
    for (const char* clsid : {ClassA, ClassB, ClassC, ClassD}) PutLiveClass(clsid);
    AddClass(ClassA, "C:\\a.dll").Icon(0, large, small);
    AddClass(ClassB, "C:\\plain.dll");
    RegisterClass(ClassC, "C:\\a.dll");
    RegisterClass(ClassD, "C:\\gone.dll");
    Open();
    ASSERT_EQ(ImageCount(), 3u);
    EXPECT_EQ(Row(0).Image(), 2u);
    EXPECT_EQ(Row(1).Image(), 1u);
    EXPECT_EQ(Row(2).Image(), 3u);
    EXPECT_EQ(Row(3).Image(), 1u);
    EXPECT_EQ(std::get<Picture>(TheList().Images()->At(2)), small);
    EXPECT_EQ(std::get<Picture>(TheList().Images()->At(3)), small);
    EXPECT_EQ(Machine().shell.OpenIconCount(), 0u);
}

// The system would look for it in other folders.
TEST_P(OwnIconListTest, AsksNoIconOfAFileThatIsNotThere) {
    PutLiveClass(ClassA);
    RegisterClass(ClassA, "gone.dll");
    Open();
    EXPECT_EQ(Row(0).Image(), 1u);
    EXPECT_EQ(Machine().Journal().CountOf("ExtractIconExA"), 0u);
}

TEST_P(OwnIconListTest, BeginsItsPicturesAnewWhenRefreshed) {
    PutLiveClass(ClassA);
    AddClass(ClassA, "C:\\a.dll").Icon(0, {}, {1, 1, {7}});
    Open();
    Refresh();
    Refresh();
    EXPECT_EQ(ImageCount(), 2u);
    EXPECT_EQ(Row(0).Image(), 2u);
}

INSTANTIATE_TEST_SUITE_P(, OwnIconListTest,
                         testing::Values(BHOScan, ToolbarScan, ProtocolScan, HookScan), ScanName);

}  // namespace
}  // namespace velkarix
