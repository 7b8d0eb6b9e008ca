#include "shell/FilePaths.h"

#include <gtest/gtest.h>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

using Strings = std::vector<std::string>;

class FilePathsTest : public testing::Test {
  protected:
    FilePathsTest() {
        machine.AddFolder("C:\\Program Files").ShortName("PROGRA~1");
        machine.AddFolder("C:\\Program Files\\Some Tool").ShortName("SOMETO~1").Hidden();
        machine.AddFile("C:\\Program Files\\Some Tool\\long name.exe").ShortName("LONGNA~1.EXE");
    }
    void TearDown() override { EXPECT_EQ(machine.files.OpenSearchCount(), 0u); }

    std::string Clean(const std::string& path) { return CleanPath(machine.Parts(), path); }
    std::string Long(const std::string& path) { return GetLongPath(machine.files, path); }
    std::string Expand(const std::string& path) { return ExpandEnvPath(machine.system, path); }
    std::string OnPath(const std::string& name) { return FindOnPath(machine.Parts(), name); }

    MemoryMachine machine;
};

const std::string ToolPath = "C:\\Program Files\\Some Tool\\long name.exe";

// ---- PathExists

TEST_F(FilePathsTest, FilesAndFoldersExist) {
    EXPECT_TRUE(PathExists(machine.files, ToolPath));
    EXPECT_TRUE(PathExists(machine.files, "C:\\Program Files"));
    EXPECT_FALSE(PathExists(machine.files, "C:\\missing"));
    EXPECT_EQ(machine.Journal().CountOf("GetFileAttributesA"), 0u);
}

TEST_F(FilePathsTest, ExistenceIsToldByTheAttributesWhereTheShellLibraryHasNoCallForIt) {
    machine.files.SetHasPathFileExists(false);
    EXPECT_TRUE(PathExists(machine.files, ToolPath));
    EXPECT_TRUE(PathExists(machine.files, "C:\\Program Files"));
    EXPECT_FALSE(PathExists(machine.files, "C:\\missing"));
}

TEST_F(FilePathsTest, ADeviceIsNoFileAndNotAskedFor) {
    for (const char* path : {"NUL", "con", "C:\\Folder\\Aux.exe", "C:\\com1.dll", "LPT9", "prn .x",
                             "C:\\con\\con", "C:/nul/file.txt", "CLOCK$", "C:\\CONOUT$"}) {
        EXPECT_TRUE(NamesDevice(path)) << path;
        EXPECT_FALSE(PathExists(machine.files, path)) << path;
        EXPECT_EQ(GetLongPath(machine.files, path), path);
    }
    EXPECT_TRUE(machine.Journal().Calls().empty());
    for (const char* path : {"", "C:\\", "C:\\a.con", "COM0", "COM10", "COMA", "\\\\?\\C:\\NUL",
                             "\\\\server\\con\\a.exe", "console.exe", "C:\\null"}) {
        EXPECT_FALSE(NamesDevice(path)) << path;
    }
}

// ---- ExpandEnvPath

TEST_F(FilePathsTest, APathWithoutAPercentSignIsNotHandedToTheSystem) {
    EXPECT_EQ(Expand("C:\\a\\b"), "C:\\a\\b");
    EXPECT_EQ(Expand(""), "");
    EXPECT_TRUE(machine.Journal().Calls().empty());
}

TEST_F(FilePathsTest, VariablesAreReplaced) {
    EXPECT_EQ(Expand("%windir%\\x%SystemDrive%"), "C:\\WINDOWS\\xC:");
}

TEST_F(FilePathsTest, AnUndefinedVariableStaysAsTheSystemLeavesIt) {
    EXPECT_EQ(Expand("%nosuch%\\x"), "%nosuch%\\x");
    EXPECT_EQ(Expand("100%"), "100%");
}

TEST_F(FilePathsTest, ValuesMayAdd255BytesAndWhatFailsIsEmpty) {
    machine.system.SetVariable("long", std::string(255 + 6, 'x'));
    EXPECT_EQ(Expand("%long%"), std::string(261, 'x'));
    machine.system.SetVariable("long", std::string(256 + 6, 'x'));
    EXPECT_EQ(Expand("%long%"), "");
    machine.FailNext("ExpandEnvironmentStringsA");
    EXPECT_EQ(Expand("%windir%"), "");
}

TEST_F(FilePathsTest, AnExpandedPathEndsAtItsNul) {
    machine.system.SetVariable("odd", std::string("ab\0cd", 5));
    EXPECT_EQ(Expand("%odd%"), "ab");
}

// ---- GetLongPath

TEST_F(FilePathsTest, ShortLevelsBecomeLong) {
    EXPECT_EQ(Long("C:\\PROGRA~1\\SOMETO~1\\LONGNA~1.EXE"), ToolPath);
    EXPECT_EQ(machine.Journal().ArgumentsOf("FindFirstFileA"),
              (Strings{"C:\\PROGRA~1", "C:\\PROGRA~1\\SOMETO~1",
                       "C:\\PROGRA~1\\SOMETO~1\\LONGNA~1.EXE"}));
}

TEST_F(FilePathsTest, LongLevelsGetTheSpellingOfTheDisk) {
    EXPECT_EQ(Long("c:\\program files\\SOMETO~1"), "c:\\Program Files\\Some Tool");
}

TEST_F(FilePathsTest, APathWithALevelThatDoesntExistComesBackUnchanged) {
    EXPECT_EQ(Long("C:\\PROGRA~1\\nosuch~1\\x.exe"), "C:\\PROGRA~1\\nosuch~1\\x.exe");
    EXPECT_EQ(Long("C:\\PROGRA~1\\SOMETO~1\\x.exe"), "C:\\PROGRA~1\\SOMETO~1\\x.exe");
    EXPECT_EQ(Long("C:\\PROGRA~1\\"), "C:\\PROGRA~1\\");
    EXPECT_EQ(Long("\\\\server\\share\\PROGRA~1"), "\\\\server\\share\\PROGRA~1");
    EXPECT_EQ(Long("PROGRA~1 /s"), "PROGRA~1 /s");
}

TEST_F(FilePathsTest, APathThatDoesntTellEachLevelByItsNameComesBackUnchanged) {
    machine.AddFile("C:\\Velkarix\\a~b");
    machine.AddFile("C:\\Velkarix\\Sub\\a~b");
    for (const char* path :
         {"C:/PROGRA~1/SOMETO~1/LONGNA~1.EXE", "C:\\PROGRA~1/SOMETO~1\\LONGNA~1.EXE",
          "C:\\WINDOWS\\..\\PROGRA~1", "C:\\WINDOWS\\.\\..\\PROGRA~1\\SOMETO~1\\..",
          "C:\\PROGRA~1\\SOMETO~1\\*.EXE", "C:\\P??????????~*", "a~b", "Sub\\a~b", "C:Sub\\a~b"}) {
        EXPECT_EQ(Long(path), path);
    }
}

TEST_F(FilePathsTest, TooShortAPathForALevelComesBackUnchanged) {
    EXPECT_EQ(Long(""), "");
    EXPECT_EQ(Long("~"), "~");
    EXPECT_EQ(Long("~1"), "~1");
    EXPECT_TRUE(machine.Journal().Calls().empty());
}

TEST_F(FilePathsTest, ALongNameWithATildeInItStaysTheSame) {
    machine.AddFile("C:\\Program Files\\a~b\\c.exe");
    EXPECT_EQ(Clean("C:\\Program Files\\a~b\\c.exe"), "C:\\Program Files\\a~b\\c.exe");
}

// ---- CleanPath

TEST_F(FilePathsTest, APathWithNeitherSignComesBackAsItIsWithoutACall) {
    EXPECT_EQ(Clean("c:\\PROGRAM files\\x.exe"), "c:\\PROGRAM files\\x.exe");
    EXPECT_EQ(Clean(""), "");
    EXPECT_TRUE(machine.Journal().Calls().empty());
}

TEST_F(FilePathsTest, VariablesComeBeforeShortNames) {
    machine.system.SetVariable("tools", "C:\\PROGRA~1\\SOMETO~1");
    EXPECT_EQ(Clean("%tools%\\LONGNA~1.EXE"), ToolPath);
    EXPECT_EQ(Clean("%SystemDrive%\\PROGRA~1"), "C:\\Program Files");
    EXPECT_EQ(Clean("%nosuch%\\x"), "%nosuch%\\x");
}

TEST_F(FilePathsTest, EachIsDoneAtMostOnce) {
    machine.system.SetVariable("outer", "%windir%\\x");
    EXPECT_EQ(Clean("%outer%"), "%windir%\\x");
    EXPECT_EQ(machine.Journal().CountOf("ExpandEnvironmentStringsA"), 1u);
}

TEST_F(FilePathsTest, PathsOfMoreThan260BytesAndAnyLettersPassThrough) {
    const std::string path = "C:\\" + std::string(1000, 'x') + "\\\xC4\xF6\xFC\xFF.exe";
    EXPECT_EQ(Clean(path), path);
    EXPECT_EQ(Clean(path + "~"), path + "~");
    EXPECT_EQ(Clean("%windir%" + path), "C:\\WINDOWS" + path);
}

// ---- FindOnPath

TEST_F(FilePathsTest, FindsTheFirstOnThePath) {
    machine.AddFile("C:\\WINDOWS\\tool.exe");
    machine.system.SetVariable("path", "C:\\nowhere;C:\\WINDOWS;C:\\WINDOWS\\SYSTEM32");
    EXPECT_EQ(OnPath("tool.exe"), "C:\\WINDOWS\\tool.exe");
    EXPECT_EQ(machine.Journal().ArgumentsOf("GetEnvironmentVariableA"), (Strings{"path"}));
    EXPECT_EQ(machine.Journal().ArgumentsOf("PathFileExistsA"),
              (Strings{"C:\\nowhere\\tool.exe", "C:\\WINDOWS\\tool.exe"}));
}

TEST_F(FilePathsTest, ASingleFolderWorksAsManyDo) {
    machine.AddFile("C:\\WINDOWS\\tool.exe");
    machine.system.SetVariable("path", "C:\\WINDOWS");
    EXPECT_EQ(OnPath("tool.exe"), "C:\\WINDOWS\\tool.exe");
    EXPECT_EQ(OnPath("other.exe"), "");
}

TEST_F(FilePathsTest, AFoldersOwnBackslashIsNotLookedAt) {
    machine.system.SetVariable("path", "C:\\WINDOWS\\;;D:");
    EXPECT_EQ(OnPath("tool.exe"), "");
    EXPECT_EQ(machine.Journal().ArgumentsOf("PathFileExistsA"),
              (Strings{"C:\\WINDOWS\\\\tool.exe", "\\tool.exe", "D:\\tool.exe"}));
}

TEST_F(FilePathsTest, WithoutThePathNothingIsFound) {
    machine.system.SetVariable("path", "");
    EXPECT_EQ(OnPath("tool.exe"), "");
    EXPECT_EQ(machine.Journal().CountOf("PathFileExistsA"), 0u);
}

// ---- ListFolderFiles

TEST_F(FilePathsTest, ListsReadOnlyAndHiddenFilesToo) {
    machine.AddFile("C:\\x\\a.lnk");
    machine.AddFile("C:\\x\\b.LNK").Hidden();
    machine.AddFile("C:\\x\\c.lnk").ReadOnly();
    machine.AddFile("C:\\x\\d.txt");
    machine.AddFile("C:\\x\\e.lnk").With(fileAttribute::System);
    machine.AddFolder("C:\\x\\f.lnk");
    EXPECT_EQ(ListFolderFiles(machine.files, "C:\\x", "*.lnk"),
              (Strings{"a.lnk", "b.LNK", "c.lnk"}));
    EXPECT_EQ(ListFolderFiles(machine.files, "C:\\x", "*"),
              (Strings{"a.lnk", "b.LNK", "c.lnk", "d.txt"}));
}

TEST_F(FilePathsTest, TheDotsAreNoFiles) {
    struct DotFiles : MemoryFileSystem {
        using MemoryFileSystem::MemoryFileSystem;
        SearchHandle FindFirstFileA(const std::string&, FoundFile& found) override {
            found = {0, 0, 0, "."};
            return 1;
        }
        bool FindNextFileA(SearchHandle, FoundFile& found) override {
            if (++count > 2) return false;
            found = {0, 0, 0, count == 1 ? ".." : "..."};
            return true;
        }
        int count = 0;
    } files(machine.Journal(), machine.disk);
    EXPECT_EQ(ListFolderFiles(files, "C:\\x", "*"), (Strings{"..."}));
}

TEST_F(FilePathsTest, AMissingFolderHasNoFiles) {
    EXPECT_EQ(ListFolderFiles(machine.files, "C:\\nowhere", "*"), Strings());
}

// ---- Sizes

TEST(SizeTextTest, ShowsKilobytesWithOneDigitRoundedUpFromTheHalf) {
    EXPECT_EQ(SizeText(0), "0.0");
    EXPECT_EQ(SizeText(51), "0.0");
    EXPECT_EQ(SizeText(52), "0.1");
    EXPECT_EQ(SizeText(256), "0.3");
    EXPECT_EQ(SizeText(768), "0.8");
    EXPECT_EQ(SizeText(972), "0.9");
    EXPECT_EQ(SizeText(973), "1.0");
    EXPECT_EQ(SizeText(1023), "1.0");
    EXPECT_EQ(SizeText(1024), "1.0");
    EXPECT_EQ(SizeText(1024 + 256), "1.3");
    EXPECT_EQ(SizeText(1536), "1.5");
    EXPECT_EQ(SizeText(123'456'789), "120563.3");
}

TEST(SizeTextTest, ShowsTheLargestFiles) {
    EXPECT_EQ(SizeText(5'000'000'000), "4882812.5");
    EXPECT_EQ(SizeText(UINT64_MAX), "18014398509481984.0");
}

TEST_F(FilePathsTest, TheSizeIsThatOfTheDirectoryEntry) {
    machine.AddFile("C:\\x\\a.bin").Content(std::string(1536, 'x')).Unreadable();
    EXPECT_EQ(FileLength(machine.files, "C:\\x\\a.bin"), 1536u);
    EXPECT_EQ(FileSizeText(machine.files, "C:\\x\\a.bin"), "1.5");
    EXPECT_EQ(machine.Journal().CountOf("CreateFileA"), 0u);
}

TEST_F(FilePathsTest, AMissingFileHasNoSize) {
    EXPECT_EQ(FileLength(machine.files, "C:\\missing"), std::nullopt);
    EXPECT_EQ(FileSizeText(machine.files, "C:\\missing"), "");
}

// ---- ShowInExplorer

TEST_F(FilePathsTest, ShowInExplorerSelectsThePathWithoutQuotes) {
    ShowInExplorer(machine.shell, 77, "C:\\a b\\c.exe");
    EXPECT_EQ(
        machine.shell.Opened(),
        (std::vector<ShellOpening>{{77, "Open", "explorer.exe", "/select,C:\\a b\\c.exe", "", 1}}));
}

TEST(FileNameOf, IsWhatStandsBehindTheLastBackslash) {
    EXPECT_EQ(FileNameOf("C:\\WINDOWS\\explorer.exe"), "explorer.exe");
    EXPECT_EQ(FileNameOf("C:\\"), "");
}

TEST(FileNameOf, IsTheWholePathWithoutABackslashBehindItsFirstCharacter) {
    EXPECT_EQ(FileNameOf("System"), "System");
    EXPECT_EQ(FileNameOf("\\System"), "\\System");
    EXPECT_EQ(FileNameOf(""), "");
}

TEST(FolderOf, KeepsItsLastBackslash) {
    EXPECT_EQ(FolderOf("C:\\WINDOWS\\explorer.exe"), "C:\\WINDOWS\\");
    EXPECT_EQ(FolderOf("System"), "");
}

}  // namespace
}  // namespace velkarix
