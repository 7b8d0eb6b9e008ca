#include "process/ProcessColumns.h"

#include <gtest/gtest.h>

namespace velkarix {
namespace {

TEST(ProcessName, IsWhatStandsBehindTheLastBackslash) {
    EXPECT_EQ(ProcessName("C:\\WINDOWS\\explorer.exe"), "explorer.exe");
    EXPECT_EQ(ProcessName("C:\\"), "");
}

TEST(ProcessName, IsTheWholePathWithoutABackslashBehindItsFirstCharacter) {
    EXPECT_EQ(ProcessName("System"), "System");
    EXPECT_EQ(ProcessName("\\System"), "\\System");
    EXPECT_EQ(ProcessName(""), "");
}

TEST(ProcessFolder, KeepsItsLastBackslash) {
    EXPECT_EQ(ProcessFolder("C:\\WINDOWS\\explorer.exe"), "C:\\WINDOWS\\");
    EXPECT_EQ(ProcessFolder("System"), "");
}

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
