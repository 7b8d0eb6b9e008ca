#include <gtest/gtest.h>

#include <string>

#include "tests/conformance/Home.h"

namespace velkarix {

// Copying and deleting files.
class FileMoveConformance : public Conformance {
  protected:
    FileSystem& files_ = machine_.files;
};

INSTANTIATE_TEST_SUITE_P(Home, FileMoveConformance, testing::ValuesIn(FamiliesOfHome()),
                         NameOfFamily);

TEST_P(FileMoveConformance, ACopyHasTheSameBytesAndTheOriginalStays) {
    home_->MakeFile(In("a.bin"), std::string("a\0b\r\n", 5));
    EXPECT_EQ(files_.CopyFileA(In("a.bin"), In("b.bin")), error::Success);
    EXPECT_EQ(home_->ContentOf(In("b.bin")), std::string("a\0b\r\n", 5));
    EXPECT_EQ(home_->ContentOf(In("a.bin")), std::string("a\0b\r\n", 5));
}

TEST_P(FileMoveConformance, ACopyReplacesAFileThatIsThere) {
    home_->MakeFile(In("a.bin"), "new");
    home_->MakeFile(In("b.bin"), "a longer old text");
    EXPECT_EQ(files_.CopyFileA(In("a.bin"), In("B.BIN")), error::Success);
    EXPECT_EQ(home_->ContentOf(In("b.bin")), "new");
}

TEST_P(FileMoveConformance, CopyingTellsAMissingFileFromAMissingFolder) {
    home_->MakeFile(In("a.bin"), "x");
    EXPECT_EQ(files_.CopyFileA(In("missing.bin"), In("b.bin")), error::FileNotFound);
    EXPECT_EQ(files_.CopyFileA(In("a.bin"), In("missing\\b.bin")), error::PathNotFound);
    EXPECT_NE(files_.GetFileAttributesA(In("a.bin")), fileAttribute::Invalid);
    EXPECT_EQ(files_.GetFileAttributesA(In("b.bin")), fileAttribute::Invalid);
}

TEST_P(FileMoveConformance, AFileThatSomebodyHoldsForHimselfIsNotCopied) {
    home_->MakeFile(In("a.bin"), "x");
    home_->Lock(In("a.bin"));
    EXPECT_EQ(files_.CopyFileA(In("a.bin"), In("b.bin")), error::SharingViolation);
}

TEST_P(FileMoveConformance, ADeletedFileIsGone) {
    home_->MakeFile(In("a.bin"), "x");
    EXPECT_EQ(files_.DeleteFileA(In("A.BIN")), error::Success);
    EXPECT_EQ(files_.GetFileAttributesA(In("a.bin")), fileAttribute::Invalid);
    EXPECT_EQ(files_.DeleteFileA(In("a.bin")), error::FileNotFound);
    EXPECT_EQ(files_.DeleteFileA(In("missing\\a.bin")), error::PathNotFound);
}

TEST_P(FileMoveConformance, AFolderIsNotDeletedAsAFile) {
    files_.CreateDirectoryA(In("Sub"));
    EXPECT_EQ(files_.DeleteFileA(In("Sub")), error::AccessDenied);
}

TEST_P(FileMoveConformance, AFileThatSomebodyHoldsForHimselfIsNotDeleted) {
    home_->MakeFile(In("a.bin"), "x");
    home_->Lock(In("a.bin"));
    EXPECT_EQ(files_.DeleteFileA(In("a.bin")), error::SharingViolation);
    EXPECT_NE(files_.GetFileAttributesA(In("a.bin")), fileAttribute::Invalid);
}

TEST_P(FileMoveConformance, AShortPathLeadsToTheSameFile) {
    home_->MakeFile(In("a long name.text"), "x");
    home_->ShortPathOf(In("a long name.text"));
    const std::string shortPath = files_.GetShortPathNameA(In("a long name.text"), 255);
    EXPECT_NE(shortPath, In("a long name.text"));
    EXPECT_EQ(home_->ContentOf(shortPath), "x");
}

TEST_P(FileMoveConformance, WhatIsNotThereHasNoShortPath) {
    EXPECT_EQ(files_.GetShortPathNameA(In("missing.txt"), 255), "");
    home_->MakeFile(In("a.bin"), "x");
    EXPECT_EQ(files_.GetShortPathNameA(In("a.bin"), 3), "");
}

}  // namespace velkarix
