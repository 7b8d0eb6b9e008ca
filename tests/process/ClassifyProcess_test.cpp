#include "process/ClassifyProcess.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/machine/TestProgram.h"

namespace velkarix {
namespace {

constexpr const char* Md5OfAbc = "900150983cd24fb0d6963f7d28e17f72";

class ClassifyTest : public testing::Test {
  protected:
    void SetList(DefinitionList& list, const std::string& text) {
        program.AddInstalledFile("list.vkl").Content(text);
        LoadDefinitionList(program.application.machine.files, list, "C:\\Velkarix\\list.vkl");
    }
    ProcessVerdict Classify(const std::string& path) {
        return ClassifyProcess(program.application, safeList, cache, path);
    }

    TestProgram program;
    SafeProcesses safeList;
    VerdictCache cache;
};

TEST_F(ClassifyTest, KnowsAFileByItsContentWhateverItsName) {
    program.machine.AddFile("C:\\renamed.exe").Content("abc");
    SetList(program.application.SusProcessList, Md5OfAbc);
    const ProcessVerdict verdict = Classify("c:\\renamed.exe");
    EXPECT_EQ(verdict.Key, Md5OfAbc);
    EXPECT_TRUE(verdict.IsSuspicious);
    EXPECT_FALSE(verdict.IsSystem);
    EXPECT_FALSE(verdict.IsSafe);
}

TEST_F(ClassifyTest, LosesTheVerdictOfAPatchedFile) {
    program.machine.AddFile("C:\\a.exe").Content("abcd");
    SetList(program.application.SusProcessList, Md5OfAbc);
    EXPECT_FALSE(Classify("c:\\a.exe").IsSuspicious);
}

TEST_F(ClassifyTest, FallsBackOnTheLowerCasePathWhenThereIsNoDigest) {
    SetList(program.application.SusProcessList, "c:\\gone.exe");
    const ProcessVerdict verdict = Classify("c:\\gone.exe");
    EXPECT_EQ(verdict.Key, "c:\\gone.exe");
    EXPECT_TRUE(verdict.IsSuspicious);
}

TEST_F(ClassifyTest, FallsBackOnThePathWhenTheFileOrTheServiceCanNotBeHad) {
    program.machine.AddFile("C:\\locked.exe").Content("abc").Unreadable();
    EXPECT_EQ(Classify("c:\\locked.exe").Key, "c:\\locked.exe");
    program.machine.AddFile("C:\\a.exe").Content("abc");
    program.machine.FailNext("CryptCreateHash");
    EXPECT_EQ(Classify("c:\\a.exe").Key, "c:\\a.exe");
}

TEST_F(ClassifyTest, DoesNotLookASystemFileUpAmongTheSuspicious) {
    program.machine.AddFile("C:\\a.exe").Content("abc");
    SetList(program.application.SystemProcessList, Md5OfAbc);
    SetList(program.application.SusProcessList, Md5OfAbc);
    const ProcessVerdict verdict = Classify("c:\\a.exe");
    EXPECT_TRUE(verdict.IsSystem);
    EXPECT_FALSE(verdict.IsSuspicious);
}

TEST_F(ClassifyTest, LetsTheSafeListBeatTheSuspiciousOne) {
    program.machine.AddFile("C:\\a.exe").Content("abc");
    SetList(program.application.SusProcessList, Md5OfAbc);
    safeList = {Md5OfAbc};
    const ProcessVerdict verdict = Classify("c:\\a.exe");
    EXPECT_TRUE(verdict.IsSafe);
    EXPECT_FALSE(verdict.IsSuspicious);
}

TEST_F(ClassifyTest, LeavesAnUnknownFileUnjudged) {
    program.machine.AddFile("C:\\a.exe").Content("abc");
    const ProcessVerdict verdict = Classify("c:\\a.exe");
    EXPECT_FALSE(verdict.IsSafe || verdict.IsSystem || verdict.IsSuspicious);
}

TEST_F(ClassifyTest, NeverMatchesUpperCaseEntries) {
    program.machine.AddFile("C:\\a.exe").Content("abc");
    SetList(program.application.SusProcessList, "900150983CD24FB0D6963F7D28E17F72");
    EXPECT_FALSE(Classify("c:\\a.exe").IsSuspicious);
}

TEST_F(ClassifyTest, LooksAtNoFileTwice) {
    program.machine.AddFile("C:\\a.exe").Content("abc");
    Classify("c:\\a.exe");
    program.machine.Journal().Clear();
    program.machine.AddFile("C:\\a.exe").Content("changed");
    EXPECT_EQ(Classify("c:\\a.exe").Key, Md5OfAbc);
    EXPECT_TRUE(program.machine.Journal().Calls().empty());
    EXPECT_EQ(cache.Count(), 1u);
}

TEST_F(ClassifyTest, JudgesAnEmptyPathWithoutAMatch) {
    SetList(program.application.SusProcessList, "anything");
    const ProcessVerdict verdict = Classify("");
    EXPECT_FALSE(verdict.IsSafe || verdict.IsSystem || verdict.IsSuspicious);
}

TEST(IsBootProcessPath, KnowsTheThreeNativePaths) {
    EXPECT_TRUE(IsBootProcessPath("\\??\\c:\\windows\\system32\\csrss.exe"));
    EXPECT_TRUE(IsBootProcessPath("\\??\\c:\\windows\\system32\\winlogon.exe"));
    EXPECT_TRUE(IsBootProcessPath("\\systemroot\\system32\\smss.exe"));
}

TEST(IsBootProcessPath, TakesAnyTwoCharactersForTheQuestionMarks) {
    EXPECT_TRUE(IsBootProcessPath("\\ab\\x\\csrss.exe"));
    EXPECT_FALSE(IsBootProcessPath("\\a\\x\\csrss.exe"));
}

TEST(IsBootProcessPath, LeavesOrdinaryPathsToTheNormalRule) {
    EXPECT_FALSE(IsBootProcessPath("c:\\windows\\system32\\csrss.exe"));
    EXPECT_FALSE(IsBootProcessPath("\\??\\csrss.exe"));
    EXPECT_FALSE(IsBootProcessPath("\\??\\c:\\evil\\smss.exe"));
    EXPECT_FALSE(IsBootProcessPath(""));
}

}  // namespace
}  // namespace velkarix
