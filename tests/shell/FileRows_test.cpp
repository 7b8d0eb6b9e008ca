#include "shell/FileRows.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

constexpr const char* Pictures[] = {SoftwarePicture};

class FileRowsTest : public testing::Test {
  protected:
    MemoryMachine machine;
    ListView list{
        "lstvTest", "Test", {"Name", "Size", "Created", "Company", "Product", "What"}, {}};
    ImageList images;
};

TEST_F(FileRowsTest, BeginWithTheDefaultPictureAlone) {
    images.Add(Picture{});
    images.Add(Picture{});
    list.Add("A", "row", 2);
    ClearRows(list, images, Pictures);
    EXPECT_EQ(list.RowCount(), 0u);
    ASSERT_EQ(images.Count(), DefaultImage);
    EXPECT_EQ(std::get<StockPicture>(images.At(DefaultImage)).name, "Software");
    EXPECT_EQ(list.Images(), &images);
}

TEST_F(FileRowsTest, ShowTheFactsOfTheFileInTheColumnsOfTheList) {
    machine.AddFile("C:\\a.dll")
        .Content(std::string(1536, 'x'))
        .Created(2003, 5, 7)
        .Version(
            {{"CompanyName", "Works"}, {"ProductName", "Suite"}, {"FileDescription", "Draws"}});
    ListRow& row = list.Add("A", "a.dll", 1);
    ShowFileFacts(row, {1, 2, 3, 4, 5}, ReadFileFacts(machine.Parts(), "C:\\a.dll"));
    const char* const expected[] = {"a.dll", "1.5", "05/07/2003", "Works", "Suite", "Draws"};
    for (std::size_t column = 0; column < std::size(expected); ++column) {
        EXPECT_EQ(row.Text(column), expected[column]);
    }
}

TEST_F(FileRowsTest, TakeTheDefaultPictureForAFileWithoutAnIcon) {
    ClearRows(list, images, Pictures);
    machine.AddFile("C:\\plain.dll").Content("x");
    EXPECT_EQ(AddFileIcon(machine.shell, images, "C:\\plain.dll"), DefaultImage);
    EXPECT_EQ(images.Count(), 1u);
}

TEST_F(FileRowsTest, ShowNoPicturesInAListThatHasNone) {
    ClearRows(list, images, {});
    EXPECT_EQ(list.Images(), nullptr);
}

}  // namespace
}  // namespace velkarix
