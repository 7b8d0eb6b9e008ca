// A program's file that is in use and can't be deleted: it goes when the system starts next.
#include "Setup.h"
#include "TargetTest.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

// The environment variable by which the program tells the NT family, for as long as it lives.
class FamilyVariable {
  public:
    explicit FamilyVariable(const char* value) {
        had_ = GetEnvironmentVariableA("OS", before_, sizeof before_) != 0;
        SetEnvironmentVariableA("OS", value);
    }
    ~FamilyVariable() { SetEnvironmentVariableA("OS", had_ ? before_ : nullptr); }
    FamilyVariable(const FamilyVariable&) = delete;
    FamilyVariable& operator=(const FamilyVariable&) = delete;

  private:
    char before_[64] = "";
    bool had_ = false;
};

std::string WinInit() {
    char folder[MAX_PATH] = "";
    GetWindowsDirectoryA(folder, MAX_PATH);
    return std::string(folder) + "\\WinInit.ini";
}

std::string ShortPath(const std::string& path) {
    char text[MAX_PATH] = "";
    GetShortPathNameA(path.c_str(), text, MAX_PATH);
    return text;
}

// The files that the NT family's system moves or deletes when it starts, each with a NUL.
std::string PendingFiles() {
    char files[4096] = "";
    DWORD size = sizeof files;
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, "System\\CurrentControlSet\\Control\\Session Manager", 0,
                      KEY_READ, &key) != ERROR_SUCCESS) {
        return {};
    }
    const LONG found = RegQueryValueExA(key, "PendingFileRenameOperations", nullptr, nullptr,
                                        reinterpret_cast<BYTE*>(files), &size);
    RegCloseKey(key);
    return found == ERROR_SUCCESS ? std::string(files, size) : std::string();
}

// What the system does with files when it starts.
bool StartTheSystemAnew() {
    return Process("wineboot.exe", "", "-r").WaitForExit().has_value();
}

class EverySystemDeleteAtNextStart : public TargetTest {
  protected:
    EverySystemDeleteAtNextStart() { DeleteFileA(WinInit().c_str()); }
    ~EverySystemDeleteAtNextStart() override {
        Release();
        DeleteFileA(WinInit().c_str());
    }

    // Has the copy deleted while its file is in use, and gives this answer when it fails.
    void DeleteWhileInUse(int answer) {
        StartTarget();
        path_ = ListedPath();
        held_ = CreateFileA(install_.Path(Target).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                            OPEN_EXISTING, 0, nullptr);
        ASSERT_NE(held_, INVALID_HANDLE_VALUE);
        AnswerTo(Ask("cmdDelete"), deleteQuestion_, IDYES);
        AnswerTo(Running().Message(),
                 "Error occurred while deleting the file.\r\n" +
                     SystemErrorText(ERROR_SHARING_VIOLATION) +
                     "Would you like it to be deleted on next reboot?",
                 answer);
        ASSERT_TRUE(WaitUntil([this] { return !List().Find(Target); }));
        ASSERT_EQ(Running().Close(), 0u);
        EXPECT_TRUE(install_.Exists(Target));
        Release();
    }
    // The path by which the file is named for the next start: the short form of what is listed.
    std::string NamedPath() const {
        const std::string full = ShortPath(install_.Path(Target));
        return path_ == Target ? full.substr(full.rfind('\\') + 1) : full;
    }

  private:
    void Release() {
        if (held_ != INVALID_HANDLE_VALUE) CloseHandle(held_);
        held_ = INVALID_HANDLE_VALUE;
    }

    HANDLE held_ = INVALID_HANDLE_VALUE;
    std::string path_;
};

TEST_F(EverySystemDeleteAtNextStart, TheNtFamilyIsAskedToDeleteTheFile) {
    const FamilyVariable family("Windows_NT");
    DeleteWhileInUse(IDYES);
    const std::string path = NamedPath() == Target ? install_.Path(Target) : NamedPath();
    EXPECT_NE(PendingFiles().find("\\??\\" + path + '\0'), std::string::npos) << PendingFiles();
    EXPECT_EQ(GetFileAttributesA(WinInit().c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(BackupFiles().size(), 2u);
    ASSERT_TRUE(StartTheSystemAnew());
    EXPECT_FALSE(install_.Exists(Target));
}

TEST_F(EverySystemDeleteAtNextStart, TheOlderFamilyHasItNamedInWinInit) {
    const FamilyVariable family(nullptr);
    DeleteWhileInUse(IDYES);
    EXPECT_EQ(ReadWholeFile(WinInit()), "[Rename]\r\nNUL=" + NamedPath() + "\r\n");
    EXPECT_EQ(PendingFiles().find(Target), std::string::npos);
    EXPECT_EQ(BackupFiles().size(), 2u);
}

// Without this test telling the program which family it runs on.
TEST_F(EverySystemDeleteAtNextStart, ItIsDoneAsTheSystemKnowsIt) {
    DeleteWhileInUse(IDYES);
    const bool pending = PendingFiles().find(ShortPath(install_.Path(Target))) != std::string::npos;
    const std::string named = "[Rename]\r\nNUL=" + NamedPath() + "\r\n";
    EXPECT_EQ(pending, !IsSystemOf95Family()) << PendingFiles();
    EXPECT_EQ(ReadWholeFile(WinInit()), IsSystemOf95Family() ? named : "");
}

class DeleteAtNextStart : public EverySystemDeleteAtNextStart {};

TEST_F(DeleteAtNextStart, TheOlderFamilysSystemDeletesTheFile) {
    if (!ListsFolders()) GTEST_SKIP() << NoFolders;
    const FamilyVariable family("Windows_98");
    DeleteWhileInUse(IDYES);
    ASSERT_TRUE(StartTheSystemAnew());
    EXPECT_FALSE(install_.Exists(Target));
}

TEST_F(DeleteAtNextStart, TheLineGoesBehindWhatIsNamedAlready) {
    const FamilyVariable family(nullptr);
    const HANDLE file = CreateFileA(WinInit().c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    constexpr char Before[] = "[Rename]\r\nNUL=C:\\OTHER.DLL";
    WriteFile(file, Before, sizeof Before - 1, &written, nullptr);
    CloseHandle(file);
    DeleteWhileInUse(IDYES);
    EXPECT_EQ(ReadWholeFile(WinInit()), std::string(Before) + "\r\nNUL=" + NamedPath() + "\r\n");
}

TEST_F(DeleteAtNextStart, NoKeepsTheFileAndWithdrawsItsBackup) {
    const FamilyVariable family("Windows_NT");
    DeleteWhileInUse(IDNO);
    EXPECT_TRUE(BackupFiles().empty());
    EXPECT_EQ(PendingFiles().find(Target), std::string::npos);
    EXPECT_TRUE(install_.Exists(Target));
}

}  // namespace
}  // namespace velkarix::e2e
