#include "shell/FolderListing.h"

#include "tests/shell/ItemFixture.h"

namespace velkarix {
namespace {

using Names = std::vector<std::string>;

class FolderListingTest : public ItemFixture {
  protected:
    Names List(const std::string& folder) { return ListFolder(application, folder, "*.lnk"); }
};

TEST_F(FolderListingTest, GivesTheFilesThatFit) {
    machine.AddFile("C:\\Folder\\a.lnk");
    machine.AddFile("C:\\Folder\\b.txt");
    EXPECT_EQ(List("C:\\Folder"), Names{"a.lnk"});
    EXPECT_TRUE(application.unread.Empty());
}

TEST_F(FolderListingTest, AFolderWithoutSuchFilesOrNoneAtAllHidesNothing) {
    machine.AddFolder("C:\\Folder");
    EXPECT_EQ(List("C:\\Folder"), Names());
    EXPECT_EQ(List("C:\\Missing"), Names());
    EXPECT_TRUE(application.unread.Empty());
}

TEST_F(FolderListingTest, AFolderThatCanNotBeReadIsUnreadUntilItCan) {
    machine.AddFile("C:\\Folder\\a.lnk");
    machine.FailAlways("FindFirstFileA");
    EXPECT_EQ(List("C:\\Folder"), Names());
    EXPECT_EQ(application.unread.Names(), Names{"C:\\Folder"});
}

}  // namespace
}  // namespace velkarix
