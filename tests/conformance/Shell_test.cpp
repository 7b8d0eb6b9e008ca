#include <gtest/gtest.h>

#include <string>

#include "tests/conformance/Home.h"

namespace velkarix {

class ShellConformance : public Conformance {
  protected:
    Shell& shell_ = machine_.shell;
};

INSTANTIATE_TEST_SUITE_P(Home, ShellConformance, testing::ValuesIn(FamiliesOfHome()), NameOfFamily);

TEST_P(ShellConformance, AProgramThatIsThereStarts) {
    EXPECT_GT(shell_.WinExec("\"" + home_->QuietProgram() + "\"", 0), 31u);
    EXPECT_GT(shell_.WinExec(home_->QuietProgram(), 0), 31u);
    EXPECT_GT(shell_.ShellExecuteA(0, "open", home_->QuietProgram(), "", "", 0), 32u);
}

TEST_P(ShellConformance, AProgramInTheSystemFolderStartsByItsNameAlone) {
    const std::string path = home_->QuietProgram();
    const std::string name = path.substr(path.find_last_of('\\') + 1);
    EXPECT_GT(shell_.WinExec(name, 0), 31u);
    EXPECT_GT(shell_.WinExec(name.substr(0, name.size() - 4), 0), 31u);
}

TEST_P(ShellConformance, APathWithBlanksStartsWithoutQuotesToo) {
    machine_.files.CreateDirectoryA(In("two words"));
    const std::string path = In("two words\\my quiet.exe");
    home_->MakeFile(path, home_->ContentOf(home_->QuietProgram()));
    EXPECT_GT(shell_.WinExec(path, 0), 31u);
    EXPECT_GT(shell_.WinExec("\"" + path + "\"", 0), 31u);
}

TEST_P(ShellConformance, WhatIsMissingDoesNotStart) {
    EXPECT_EQ(shell_.WinExec(In("missing.exe"), 0), error::FileNotFound);
    EXPECT_EQ(shell_.WinExec("\"" + In("missing.exe") + "\" /s", 0), error::FileNotFound);
    EXPECT_EQ(shell_.WinExec("velkarixmissing.exe", 0), error::FileNotFound);
    EXPECT_EQ(shell_.ShellExecuteA(0, "open", In("missing.exe"), "", "", 1), error::FileNotFound);
}

TEST_P(ShellConformance, NothingStartsFromAMissingFolder) {
    // Windows tells a missing folder (3) from a missing file, Wine doesn't.
    EXPECT_LE(shell_.WinExec(In("missing\\missing.exe"), 0), 31u);
}

TEST_P(ShellConformance, AnIconComesInTwoSizes) {
    home_->MakeIconFile(In("icon.ico"));
    const ExtractedIcons icons = shell_.ExtractIconExA(In("icon.ico"), 0);
    EXPECT_GT(icons.count, 0u);
    const auto large = shell_.DrawIconEx(icons.largeIcon);
    const auto small = shell_.DrawIconEx(icons.smallIcon);
    ASSERT_TRUE(large.has_value());
    ASSERT_TRUE(small.has_value());
    EXPECT_GT(large->width, small->width);
    EXPECT_EQ(large->pixels.size(), static_cast<std::size_t>(large->width * large->height));
    EXPECT_TRUE(shell_.DestroyIcon(icons.largeIcon));
    EXPECT_TRUE(shell_.DestroyIcon(icons.smallIcon));
}

TEST_P(ShellConformance, AnIconsPixelsAreItsColours) {
    home_->MakeIconFile(In("icon.ico"));
    const ExtractedIcons icons = shell_.ExtractIconExA(In("icon.ico"), 0);
    const auto large = shell_.DrawIconEx(icons.largeIcon);
    ASSERT_TRUE(large.has_value());
    EXPECT_EQ(large->pixels.front(), 0xFFFF0000u);
    EXPECT_EQ(large->pixels.back(), 0xFFFF0000u);
    shell_.DestroyIcon(icons.largeIcon);
    shell_.DestroyIcon(icons.smallIcon);
}

TEST_P(ShellConformance, AFileWithoutThatIconGivesNone) {
    home_->MakeIconFile(In("icon.ico"));
    home_->MakeFile(In("file.txt"), "no icon");
    for (const ExtractedIcons& icons :
         {shell_.ExtractIconExA(In("file.txt"), 0), shell_.ExtractIconExA(In("missing.exe"), 0),
          shell_.ExtractIconExA(In("icon.ico"), 5)}) {
        EXPECT_EQ(icons.count, 0u);
        EXPECT_EQ(icons.largeIcon, 0u);
        EXPECT_EQ(icons.smallIcon, 0u);
    }
}

TEST_P(ShellConformance, NoIconIsNotDrawn) {
    EXPECT_EQ(shell_.DrawIconEx(0), std::nullopt);
    EXPECT_FALSE(shell_.DestroyIcon(0));
}

}  // namespace velkarix
