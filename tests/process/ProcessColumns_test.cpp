#include "process/ProcessColumns.h"

#include <gtest/gtest.h>

namespace velkarix {
namespace {

TEST(FullPath, IsTheFolderThenTheName) {
    ListView list("lstvTest", "Test", ProcessColumnCaptions(), {});
    ListRow& row = list.Add("A", "explorer.exe", 1);
    row.SetText(processColumn::Folder, "C:\\WINDOWS\\");
    EXPECT_EQ(FullPath(row), "C:\\WINDOWS\\explorer.exe");
}

TEST(ProcessColumnCaptions, AreTheProductsOwn) {
    EXPECT_EQ(ProcessColumnCaptions(),
              (std::vector<std::string>{"EXE Name", "File Size [Kb]", "Created On", "Company Name",
                                        "Prodcut Name", "Description", "Path"}));
}

}  // namespace
}  // namespace velkarix
