// Putting running programs on the user's safe list, and taking them off again.
#include <algorithm>

#include "Input.h"
#include "ProgramTest.h"
#include "Setup.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class SafeList : public ProgramTest {
  protected:
    void ClickCheckBox(const std::string& name, bool expected) {
        Tick(List(), RowOf(name), expected);
    }
    std::string File() { return install_.Read("SafeProcess.vkl"); }
};

TEST_F(SafeList, AClickOnTheCheckBoxTicksTheRowAndASecondClickUnticksIt) {
    Start();
    ASSERT_FALSE(List().Checked(RowOf("SampleSafe.exe")));
    ClickCheckBox("SampleSafe.exe", true);
    EXPECT_FALSE(List().Checked(RowOf("SampleIdle.exe")));
    ClickCheckBox("SampleSafe.exe", false);
}

TEST_F(SafeList, SpaceTicksTheSelectedRow) {
    Start();
    SelectRow("SampleSafe.exe");
    PressKey(VK_SPACE);
    EXPECT_TRUE(WaitUntil([this] { return List().Checked(RowOf("SampleSafe.exe")); }));
    PressKey(VK_SPACE);
    EXPECT_TRUE(WaitUntil([this] { return !List().Checked(RowOf("SampleSafe.exe")); }));
}

TEST_F(SafeList, AddingHidesTheRowAndWritesTheDigestToTheFile) {
    Start();
    ClickCheckBox("SampleSafe.exe", true);
    const int before = List().RowCount();
    ASSERT_TRUE(Running().Press("cmdAdd"));
    EXPECT_EQ(List().RowCount(), before - 1);
    EXPECT_FALSE(List().Find("SampleSafe.exe"));
    const std::string file = File();
    ASSERT_EQ(file.size(), 34u) << file;
    EXPECT_EQ(file.find_first_not_of("0123456789abcdef"), 32u) << file;
    EXPECT_EQ(file.substr(32), "\r\n");

    ASSERT_EQ(Running().Close(), 0u);
    Start();
    EXPECT_FALSE(List().Find("SampleSafe.exe")) << "the list isn't read at the next start";
}

TEST_F(SafeList, RemovingUnticksTheRowAndCleansTheFile) {
    Start();
    ClickCheckBox("SampleSafe.exe", true);
    ASSERT_TRUE(Running().Press("cmdAdd"));
    ASSERT_TRUE(Running().Press("optFilter(0)"));
    ASSERT_TRUE(List().Find("SampleSafe.exe"));
    ClickCheckBox("SampleSafe.exe", true);
    ASSERT_TRUE(Running().Press("cmdRemove"));
    EXPECT_FALSE(List().Checked(RowOf("SampleSafe.exe")));
    EXPECT_EQ(File(), "");
    ASSERT_TRUE(Running().Press("optFilter(1)"));
    EXPECT_TRUE(List().Find("SampleSafe.exe"));
}

TEST_F(SafeList, RemovingARowThatIsNotOnTheListKeepsItsTick) {
    Start();
    ASSERT_TRUE(Running().Press("optFilter(0)"));
    ClickCheckBox("SampleIdle.exe", true);
    ASSERT_TRUE(Running().Press("cmdRemove"));
    EXPECT_TRUE(List().Checked(RowOf("SampleIdle.exe")));
    EXPECT_FALSE(install_.Exists("SafeProcess.vkl"));
}

TEST_F(SafeList, AFileThatCannotBeWrittenIsTold) {
    CreateDirectoryA(install_.Path("SafeProcess.vkl").c_str(), nullptr);
    Start();
    ClickCheckBox("SampleSafe.exe", true);
    ASSERT_TRUE(Running().Control("cmdAdd").Click());
    const Window message = Running().Message();
    EXPECT_EQ(MessageText(message).find("Error Occurred cmdAdd: "), 0u) << MessageText(message);
    EXPECT_TRUE(Answer(message, IDOK));
}

TEST_F(SafeList, AddingStandsOpenInFilteredAndRemovingInAll) {
    Start();
    EXPECT_TRUE(Running().Control("cmdAdd").Enabled());
    EXPECT_FALSE(Running().Control("cmdRemove").Enabled());
    ASSERT_TRUE(Running().Press("optFilter(0)"));
    EXPECT_FALSE(Running().Control("cmdAdd").Enabled());
    EXPECT_TRUE(Running().Control("cmdRemove").Enabled());
}

}  // namespace
}  // namespace velkarix::e2e
