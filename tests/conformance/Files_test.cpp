#include <gtest/gtest.h>

#include <string>

#include "tests/conformance/Home.h"

namespace velkarix {

class FileConformance : public Conformance {
  protected:
    // Opens, writes and closes.
    ErrorCode Write(const std::string& path, FileUse use, const std::string& text) {
        FileHandle file = 0;
        if (const ErrorCode failure = files_.CreateFileA(path, use, file)) {
            return failure;
        }
        std::uint32_t written = 0;
        const ErrorCode result = files_.WriteFile(file, Bytes(text.begin(), text.end()), written);
        EXPECT_EQ(written, text.size());
        EXPECT_TRUE(files_.CloseFile(file));
        return result;
    }
    // Only the result of opening.
    ErrorCode Open(const std::string& path, FileUse use) {
        FileHandle file = 0;
        const ErrorCode result = files_.CreateFileA(path, use, file);
        if (result == error::Success) {
            files_.CloseFile(file);
        }
        return result;
    }

    FileSystem& files_ = machine_.files;
};

INSTANTIATE_TEST_SUITE_P(Home, FileConformance, testing::ValuesIn(FamiliesOfHome()), NameOfFamily);

TEST_P(FileConformance, FilesAndFoldersExistUnderAnyCase) {
    home_->MakeFile(In("File.txt"), "");
    EXPECT_EQ(files_.PathFileExistsA(In("FILE.TXT")), true);
    EXPECT_EQ(files_.PathFileExistsA(folder_), true);
    EXPECT_EQ(files_.PathFileExistsA(folder_ + "\\"), true);
    EXPECT_EQ(files_.PathFileExistsA(In("missing.txt")), false);
    EXPECT_EQ(files_.PathFileExistsA(""), false);
}

TEST_P(FileConformance, APatternIsNoFile) {
    home_->MakeFile(In("File.txt"), "");
    EXPECT_EQ(files_.PathFileExistsA(In("*.txt")), false);
    EXPECT_EQ(files_.PathFileExistsA("\"" + In("File.txt") + "\""), false);
}

TEST_P(FileConformance, SlashesDotsAndDoubledBackslashesLeadToTheSameFile) {
    home_->MakeFile(In("File.txt"), "");
    files_.CreateDirectoryA(In("Sub"));
    EXPECT_EQ(files_.PathFileExistsA(folder_ + "/File.txt"), true);
    EXPECT_EQ(files_.PathFileExistsA(folder_ + "\\\\File.txt"), true);
    EXPECT_EQ(files_.PathFileExistsA(In("Sub\\..\\File.txt")), true);
    EXPECT_EQ(files_.PathFileExistsA(In(".\\File.txt")), true);
}

TEST_P(FileConformance, BlanksAndDotsAtTheEndOfANameDoNotCount) {
    home_->MakeFile(In("File.txt"), "");
    EXPECT_EQ(files_.PathFileExistsA(In("File.txt.")), true);
    EXPECT_EQ(files_.PathFileExistsA(In("File.txt ")), true);
}

TEST_P(FileConformance, ARelativePathStartsFromTheCurrentFolder) {
    home_->MakeFile(In("File.txt"), "");
    files_.CreateDirectoryA(In("Sub"));
    home_->SetCurrentFolder(In("Sub"));
    EXPECT_EQ(files_.PathFileExistsA("File.txt"), false);
    EXPECT_EQ(files_.PathFileExistsA("..\\File.txt"), true);
    home_->SetCurrentFolder(folder_);
    EXPECT_EQ(files_.PathFileExistsA("File.txt"), true);
    EXPECT_EQ(files_.PathFileExistsA(In("File.txt").substr(2)), true);
}

TEST_P(FileConformance, APathMayHave259Bytes) {
    // Windows takes no longer one. Wine does, so the limit itself isn't asserted here.
    const std::string longest = In(std::string(259 - folder_.size() - 1, 'p'));
    EXPECT_EQ(Open(longest, FileUse::Replace), error::Success);
    EXPECT_EQ(files_.PathFileExistsA(longest), true);
}

TEST_P(FileConformance, TheRootOfADriveIsAFolder) {
    const std::string root = folder_.substr(0, 3);
    EXPECT_EQ(files_.PathFileExistsA(root), true);
    EXPECT_NE(files_.GetFileAttributesA(root) & fileAttribute::Directory, 0u);
    EXPECT_EQ(files_.PathFileExistsA(home_->MissingDrive() + "\\"), false);
}

TEST_P(FileConformance, AttributesTellFilesFromFolders) {
    home_->MakeFile(In("file.txt"), "", fileAttribute::ReadOnly);
    EXPECT_NE(files_.GetFileAttributesA(In("file.txt")) & fileAttribute::ReadOnly, 0u);
    EXPECT_EQ(files_.GetFileAttributesA(In("file.txt")) & fileAttribute::Directory, 0u);
    EXPECT_NE(files_.GetFileAttributesA(folder_) & fileAttribute::Directory, 0u);
    EXPECT_EQ(files_.GetFileAttributesA(In("missing")), fileAttribute::Invalid);
}

TEST_P(FileConformance, AFolderIsMadeOneLevelAtATime) {
    EXPECT_EQ(files_.CreateDirectoryA(In("One\\Two")), error::PathNotFound);
    EXPECT_EQ(files_.CreateDirectoryA(In("One")), error::Success);
    EXPECT_EQ(files_.CreateDirectoryA(In("One\\Two")), error::Success);
    EXPECT_EQ(files_.CreateDirectoryA(In("ONE")), error::AlreadyExists);
    EXPECT_EQ(files_.PathFileExistsA(In("One\\Two")), true);
}

TEST_P(FileConformance, AFolderIsNotMadeInPlaceOfAFile) {
    home_->MakeFile(In("file"), "");
    EXPECT_EQ(files_.CreateDirectoryA(In("file")), error::AlreadyExists);
}

TEST_P(FileConformance, OpeningTellsAMissingFileFromAMissingFolder) {
    EXPECT_EQ(Open(In("missing.txt"), FileUse::Read), error::FileNotFound);
    EXPECT_EQ(Open(In("missing\\file.txt"), FileUse::Read), error::PathNotFound);
    EXPECT_EQ(Open(In("missing\\file.txt"), FileUse::Replace), error::PathNotFound);
    EXPECT_EQ(Open(In("missing\\file.txt"), FileUse::Append), error::PathNotFound);
}

TEST_P(FileConformance, NothingIsOpenedOrMadeOnAMissingDrive) {
    // Windows tells that the path is missing, Wine that the file is.
    EXPECT_NE(Open(home_->MissingDrive() + "\\file.txt", FileUse::Read), error::Success);
    EXPECT_NE(Open(home_->MissingDrive() + "\\file.txt", FileUse::Replace), error::Success);
    EXPECT_NE(files_.CreateDirectoryA(home_->MissingDrive() + "\\Folder"), error::Success);
}

TEST_P(FileConformance, AFileIsNoFolder) {
    home_->MakeFile(In("file.txt"), "");
    EXPECT_EQ(Open(In("file.txt\\below"), FileUse::Read), error::PathNotFound);
    EXPECT_EQ(Open(In("file.txt\\below"), FileUse::Replace), error::PathNotFound);
    EXPECT_EQ(files_.CreateDirectoryA(In("file.txt\\below")), error::PathNotFound);
    EXPECT_EQ(files_.PathFileExistsA(In("file.txt\\below")), false);
}

TEST_P(FileConformance, SomeCharactersAreInNoName) {
    for (const char* name : {"a?b", "a*b", "a<b", "a>b", "a|b", "a\"b"}) {
        EXPECT_NE(Open(In(name), FileUse::Replace), error::Success) << name;
        EXPECT_NE(files_.CreateDirectoryA(In(name)), error::Success) << name;
    }
}

TEST_P(FileConformance, AFolderIsNotOpenedAsAFile) {
    EXPECT_EQ(Open(folder_, FileUse::Read), error::AccessDenied);
    EXPECT_EQ(Open(folder_, FileUse::Replace), error::AccessDenied);
}

TEST_P(FileConformance, ADeviceIsNotOpenedAsAFile) {
    // Reading from a device may never end.
    EXPECT_EQ(Open(In("NUL"), FileUse::Read), error::FileNotFound);
}

TEST_P(FileConformance, ADeviceIsThereInEveryFolderAndWithEveryExtension) {
    for (const char* name : {"NUL", "nul.exe", "NUL .dll"}) {
        EXPECT_EQ(files_.PathFileExistsA(In(name)), true) << name;
        EXPECT_EQ(files_.GetFileAttributesA(In(name)), fileAttribute::Archive) << name;
    }
    for (const char* name : {"NULL", "a.NUL", "COM0", "COM10"}) {
        EXPECT_EQ(files_.PathFileExistsA(In(name)), false) << name;
    }
    EXPECT_EQ(files_.PathFileExistsA(In("NUL\\file.txt")), false);
}

TEST_P(FileConformance, APathMayBeTakenAsItStands) {
    home_->MakeFile(In("file.txt"), "abc");
    const std::string path = "\\\\?\\" + In("file.txt");
    EXPECT_EQ(files_.PathFileExistsA(path), true);
    EXPECT_EQ(files_.PathFileExistsA(path + "x"), false);
    EXPECT_EQ(files_.PathFileExistsA("\\\\?\\" + In("x/../file.txt")), false);
    EXPECT_EQ(files_.PathFileExistsA("\\\\?\\"), false);
    FoundFile found;
    const SearchHandle search = files_.FindFirstFileA(path, found);
    ASSERT_NE(search, 0u);
    EXPECT_EQ(found.name, "file.txt");
    EXPECT_TRUE(files_.FindClose(search));
    EXPECT_EQ(Open(path, FileUse::Read), error::Success);
}

TEST_P(FileConformance, AFailedOpeningLeavesTheHandleAlone) {
    FileHandle file = 77;
    EXPECT_NE(files_.CreateFileA(In("missing.txt"), FileUse::Read, file), error::Success);
    EXPECT_EQ(file, 77u);
}

TEST_P(FileConformance, AFileIsReadInPieces) {
    home_->MakeFile(In("file.txt"), "abcdefg");
    FileHandle file = 0;
    ASSERT_EQ(files_.CreateFileA(In("file.txt"), FileUse::Read, file), error::Success);
    EXPECT_EQ(files_.GetFileSize(file), 7u);
    Bytes buffer(4, 0);
    std::uint32_t read = 0;
    EXPECT_EQ(files_.ReadFile(file, buffer, read), error::Success);
    EXPECT_EQ(read, 4u);
    EXPECT_EQ(buffer, (Bytes{'a', 'b', 'c', 'd'}));
    EXPECT_EQ(files_.ReadFile(file, buffer, read), error::Success);
    EXPECT_EQ(read, 3u);
    EXPECT_EQ(buffer, (Bytes{'e', 'f', 'g', 'd'}));
    EXPECT_EQ(files_.ReadFile(file, buffer, read), error::Success);
    EXPECT_EQ(read, 0u);
    EXPECT_TRUE(files_.CloseFile(file));
}

TEST_P(FileConformance, ReplacingMakesAFileAndEmptiesAnOldOne) {
    EXPECT_EQ(Write(In("file.txt"), FileUse::Replace, "a long first text"), error::Success);
    EXPECT_EQ(home_->ContentOf(In("file.txt")), "a long first text");
    EXPECT_EQ(Write(In("file.txt"), FileUse::Replace, "short"), error::Success);
    EXPECT_EQ(home_->ContentOf(In("file.txt")), "short");
}

TEST_P(FileConformance, AppendingMakesAFileAndWritesBehindItsEnd) {
    EXPECT_EQ(Write(In("file.txt"), FileUse::Append, "one"), error::Success);
    EXPECT_EQ(Write(In("file.txt"), FileUse::Append, ", two"), error::Success);
    EXPECT_EQ(home_->ContentOf(In("file.txt")), "one, two");
}

TEST_P(FileConformance, OpeningToReplaceEmptiesTheFileAtOnce) {
    home_->MakeFile(In("file.txt"), "content");
    EXPECT_EQ(Open(In("file.txt"), FileUse::Replace), error::Success);
    EXPECT_EQ(home_->ContentOf(In("file.txt")), "");
}

TEST_P(FileConformance, PiecesAreWrittenOneBehindTheOther) {
    FileHandle file = 0;
    ASSERT_EQ(files_.CreateFileA(In("file.txt"), FileUse::Replace, file), error::Success);
    std::uint32_t written = 0;
    files_.WriteFile(file, Bytes{'a', 'b'}, written);
    files_.WriteFile(file, Bytes{}, written);
    EXPECT_EQ(written, 0u);
    files_.WriteFile(file, Bytes{'c'}, written);
    EXPECT_EQ(files_.GetFileSize(file), 3u);
    files_.CloseFile(file);
    EXPECT_EQ(home_->ContentOf(In("file.txt")), "abc");
}

TEST_P(FileConformance, AWriterMayHaveItsTextPutOnTheDisk) {
    FileHandle file = 0;
    ASSERT_EQ(files_.CreateFileA(In("file.txt"), FileUse::Replace, file), error::Success);
    std::uint32_t written = 0;
    files_.WriteFile(file, Bytes{'a', 'b'}, written);
    EXPECT_EQ(files_.FlushFileBuffers(file), error::Success);
    EXPECT_EQ(home_->ContentOf(In("file.txt")), "ab");
    files_.WriteFile(file, Bytes{'c'}, written);
    files_.CloseFile(file);
    EXPECT_EQ(home_->ContentOf(In("file.txt")), "abc");
}

TEST_P(FileConformance, AReaderMayNotHaveAnythingPutOnTheDisk) {
    home_->MakeFile(In("file.txt"), "text");
    FileHandle file = 0;
    ASSERT_EQ(files_.CreateFileA(In("file.txt"), FileUse::Read, file), error::Success);
    EXPECT_EQ(files_.FlushFileBuffers(file), error::AccessDenied);
    files_.CloseFile(file);
}

TEST_P(FileConformance, AReadOnlyFileIsReadButNotWritten) {
    if (!home_->KeepsReadOnly()) {
        GTEST_SKIP() << "this user may write read-only files";
    }
    home_->MakeFile(In("file.txt"), "text", fileAttribute::ReadOnly);
    EXPECT_EQ(Open(In("file.txt"), FileUse::Read), error::Success);
    EXPECT_EQ(Open(In("file.txt"), FileUse::Replace), error::AccessDenied);
    EXPECT_EQ(Open(In("file.txt"), FileUse::Append), error::AccessDenied);
    EXPECT_EQ(home_->ContentOf(In("file.txt")), "text");
}

TEST_P(FileConformance, AFileThatSomebodyHoldsForHimselfIsNotOpened) {
    home_->MakeFile(In("file.txt"), "text");
    home_->Lock(In("file.txt"));
    EXPECT_EQ(Open(In("file.txt"), FileUse::Read), error::SharingViolation);
    EXPECT_EQ(Open(In("file.txt"), FileUse::Append), error::SharingViolation);
    EXPECT_EQ(files_.PathFileExistsA(In("file.txt")), true);
}

TEST_P(FileConformance, TwoReadersShareAFile) {
    home_->MakeFile(In("file.txt"), "text");
    FileHandle first = 0;
    ASSERT_EQ(files_.CreateFileA(In("file.txt"), FileUse::Read, first), error::Success);
    EXPECT_EQ(Open(In("file.txt"), FileUse::Read), error::Success);
    files_.CloseFile(first);
}

TEST_P(FileConformance, OneWriterSharesAFileWithReadersButNotWithAnotherWriter) {
    FileHandle writer = 0;
    ASSERT_EQ(files_.CreateFileA(In("file.txt"), FileUse::Replace, writer), error::Success);
    EXPECT_EQ(Open(In("file.txt"), FileUse::Read), error::Success);
    EXPECT_EQ(Open(In("file.txt"), FileUse::Replace), error::SharingViolation);
    EXPECT_EQ(Open(In("file.txt"), FileUse::Append), error::SharingViolation);
    files_.CloseFile(writer);
    EXPECT_EQ(Open(In("file.txt"), FileUse::Append), error::Success);
}

TEST_P(FileConformance, AWriterMayComeWhileAReaderIsThere) {
    home_->MakeFile(In("file.txt"), "text");
    FileHandle reader = 0;
    ASSERT_EQ(files_.CreateFileA(In("file.txt"), FileUse::Read, reader), error::Success);
    EXPECT_EQ(Write(In("file.txt"), FileUse::Append, "!"), error::Success);
    EXPECT_EQ(files_.GetFileSize(reader), 5u);
    files_.CloseFile(reader);
}

TEST_P(FileConformance, AHandleServesOnlyWhatItWasOpenedFor) {
    home_->MakeFile(In("file.txt"), "text");
    FileHandle file = 0;
    std::uint32_t count = 0;
    Bytes buffer(4);
    ASSERT_EQ(files_.CreateFileA(In("file.txt"), FileUse::Read, file), error::Success);
    EXPECT_EQ(files_.WriteFile(file, buffer, count), error::AccessDenied);
    files_.CloseFile(file);
    ASSERT_EQ(files_.CreateFileA(In("file.txt"), FileUse::Append, file), error::Success);
    EXPECT_EQ(files_.ReadFile(file, buffer, count), error::AccessDenied);
    files_.CloseFile(file);
}

TEST_P(FileConformance, AClosedFileIsGone) {
    home_->MakeFile(In("file.txt"), "text");
    FileHandle file = 0;
    std::uint32_t count = 0;
    Bytes buffer(4);
    ASSERT_EQ(files_.CreateFileA(In("file.txt"), FileUse::Read, file), error::Success);
    EXPECT_TRUE(files_.CloseFile(file));
    EXPECT_FALSE(files_.CloseFile(file));
    EXPECT_EQ(files_.ReadFile(file, buffer, count), error::InvalidHandle);
    EXPECT_EQ(files_.GetFileSize(file), std::nullopt);
}

}  // namespace velkarix
