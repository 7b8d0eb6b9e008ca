// Deleting items of the browser: only when the user agrees, and never without a file that brings
// them back.
#include <algorithm>

#include "BrowserTest.h"
#include "RegistryMerge.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class BrowserDelete : public BrowserItemTest {
  protected:
    // Selects the item's row and clicks the button that deletes it. The question that comes.
    Window Ask(bool enabled) {
        Show(Item().list);
        SelectItem(Item(), enabled);
        EXPECT_TRUE(Running().Control(Item().list.remove).Click());
        return Running().Message();
    }
    std::string Question() const {
        return "Are you sure you want to delete the selected item: \r\n\r\n" + Item().text;
    }
    // Has the system's own editor put back what the file says.
    void Merge(const std::string& file) const {
        ASSERT_TRUE(MergeRegistryFile(install_.Path("Backup\\" + file)));
    }
    void ExpectNameOfThisList(const std::string& file) const {
        const std::string end = std::string("_") + Item().list.backup + ".reg";
        ASSERT_TRUE(file.ends_with(end)) << file;
        const std::string stamp = file.substr(0, file.size() - end.size());
        EXPECT_EQ(stamp.find_first_not_of("0123456789_"), std::string::npos) << stamp;
        EXPECT_EQ(std::ranges::count(stamp, '_'), 5) << stamp;
    }
    void DeleteAndMerge(bool enabled) {
        const std::vector<BrowserPlace> before = ReadPlaces();
        OpenBrowser();
        const Window question = Ask(enabled);
        ASSERT_TRUE(question);
        EXPECT_EQ(MessageText(question), Question());
        ASSERT_TRUE(Answer(question, IDYES));
        ASSERT_TRUE(WaitUntil([&] { return !IsListed(Item(), enabled); }));
        EXPECT_FALSE(ReadItem(Item(), enabled));
        const std::vector<std::string> files = RegistryFiles();
        ASSERT_EQ(files.size(), 1u);
        ExpectNameOfThisList(files[0]);
        Merge(files[0]);
        EXPECT_EQ(ReadPlaces(), before);
        ASSERT_TRUE(Running().Press(Item().list.refresh));
        EXPECT_TRUE(IsListed(Item(), enabled));
    }
};

TEST_P(BrowserDelete, ALiveItemsRegistryFileBringsBackExactlyWhatWasThere) {
    DeleteAndMerge(true);
}

TEST_P(BrowserDelete, ADisabledItemsRegistryFileBringsBackExactlyWhatWasThere) {
    CopyToHeld(Item());
    DeleteAndMerge(false);
}

INSTANTIATE_TEST_SUITE_P(Each, BrowserDelete, testing::ValuesIn(SampleItems), TitleOf);

class EverySystemBrowserDelete : public BrowserDelete {};

TEST_P(EverySystemBrowserDelete, TheRegistryFileBringsBackExactlyWhatWasThere) {
    DeleteAndMerge(true);
}

// A key with subkeys, and a value: the families of the system delete keys in different ways.
INSTANTIATE_TEST_SUITE_P(Some, EverySystemBrowserDelete,
                         testing::Values(SampleItems.front(), SampleItems.back()), TitleOf);

class BrowserDeleteNothing : public BrowserTest {};

TEST_F(BrowserDeleteNothing, NoKeepsTheItem) {
    OpenBrowser();
    for (const SampleItem& item : SampleItems) {
        Show(item.list);
        SelectItem(item, true);
        EXPECT_TRUE(Running().Control(item.list.remove).Click());
        const Window question = Running().Message();
        ASSERT_TRUE(question);
        EXPECT_EQ(question.Text(), "Velkarix");
        EXPECT_NE(GetDlgItem(question.Handle(), IDYES), nullptr);
        ASSERT_TRUE(Answer(question, IDNO));
        ASSERT_TRUE(Running().Press(item.list.refresh));
        EXPECT_TRUE(IsListed(item, true)) << item;
    }
    EXPECT_EQ(ReadPlaces(), PlacesBefore());
    EXPECT_TRUE(RegistryFiles().empty());
}

TEST_F(BrowserDeleteNothing, WithoutASelectedRowNothingIsAsked) {
    OpenBrowser();
    for (const BrowserList* each : BrowserLists) {
        Show(*each);
        ASSERT_TRUE(Running().Press(each->refresh));
        ASSERT_TRUE(Running().Press(each->remove));
    }
    EXPECT_EQ(ReadPlaces(), PlacesBefore());
}

}  // namespace
}  // namespace velkarix::e2e
