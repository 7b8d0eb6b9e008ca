#include "tests/process/ProcessPage.h"

namespace velkarix {
namespace {

class SafeListCommandsTest : public ProcessPage {
  protected:
    std::string File() { return program.InstalledText("SafeProcess.vkl"); }
    void SafeListFile(const std::string& text) {
        program.AddInstalledFile("SafeProcess.vkl").Content(text);
    }
    static constexpr const char* SafeListPath = "C:\\Velkarix\\SafeProcess.vkl";
    const std::string lineOfA = std::string(Md5OfA) + "\r\n";
    const std::string lineOfAbc = std::string(Md5OfAbc) + "\r\n";
};

TEST_F(SafeListCommandsTest, HidesWhatTheUserCallsSafe) {
    Run(1, "C:\\a.exe", "a");
    Run(2, "C:\\b.exe", "b");
    SafeListFile(lineOfA);
    program.Start();
    EXPECT_EQ(RowNames(), (RowTexts{"b.exe"}));
    Click("optFilter(0)");
    EXPECT_EQ(RowNames(), (RowTexts{"a.exe", "b.exe"}));
}

TEST_F(SafeListCommandsTest, AddsTheCheckedRowsAndTakesThemAway) {
    Run(1, "C:\\a.exe", "a");
    Run(2, "C:\\abc.exe", "abc");
    Run(3, "C:\\other.exe", "other");
    SafeListFile("before\r\n");
    program.Start();
    Tick("a.exe");
    Tick("abc.exe");
    Click("cmdAdd");
    EXPECT_EQ(RowNames(), (RowTexts{"other.exe"}));
    EXPECT_EQ(File(), "before\r\n" + lineOfAbc + lineOfA);  // from the last row to the first
    Click("cmdRefresh");
    EXPECT_EQ(RowNames(), (RowTexts{"other.exe"}));
}

TEST_F(SafeListCommandsTest, WritesNothingWhenNothingIsChecked) {
    Run(1, "C:\\a.exe", "a");
    program.Start();
    Click("cmdAdd");
    EXPECT_FALSE(program.machine.disk.Exists("C:\\Velkarix\\SafeProcess.vkl"));
}

TEST_F(SafeListCommandsTest, LeavesAnUncheckedProcessOfTheSameFileUntilTheNextRefresh) {
    Run(1, "C:\\a.exe", "a");
    Run(2, "C:\\a.exe", "a");
    program.Start();
    List().UserCheck(List().Row(0), true);
    Click("cmdAdd");
    EXPECT_EQ(RowNames(), (RowTexts{"a.exe"}));
    program.machine.Journal().Clear();
    Click("cmdRefresh");
    EXPECT_EQ(List().RowCount(), 0u);
    EXPECT_EQ(program.machine.Journal().CountOf("CryptCreateHash"), 0u);
}

TEST_F(SafeListCommandsTest, LeavesTheSecondOfTwoCheckedRowsOfOneFileChecked) {
    Run(1, "C:\\a.exe", "a");
    Run(2, "C:\\a.exe", "a");
    program.Start();
    List().UserCheck(List().Row(0), true);
    List().UserCheck(List().Row(1), true);
    Click("cmdAdd");
    ASSERT_EQ(List().RowCount(), 1u);
    EXPECT_TRUE(List().Row(0).Checked());
    EXPECT_EQ(File(), lineOfA);
}

TEST_F(SafeListCommandsTest, EntersAFileThatIsGoneByItsLowerCasePath) {
    program.machine.AddProcess(1, "C:\\Tools\\GONE.exe");
    program.Start();
    Tick("GONE.exe");
    Click("cmdAdd");
    EXPECT_EQ(File(), "c:\\tools\\gone.exe\r\n");
    LeaveAndComeBack();
    EXPECT_EQ(List().RowCount(), 0u);
}

TEST_F(SafeListCommandsTest, KeepsEmptyLinesWhenItAdds) {
    Run(1, "C:\\a.exe", "a");
    SafeListFile("x\r\n\r\ny\r\n");
    program.Start();
    Tick("a.exe");
    Click("cmdAdd");
    EXPECT_EQ(File(), "x\r\n\r\ny\r\n" + lineOfA);
}

TEST_F(SafeListCommandsTest, RemovesTheCheckedRowsClearsTheirMarksAndDropsEmptyLines) {
    Run(1, "C:\\a.exe", "a");
    Run(2, "C:\\other.exe", "other");
    SafeListFile("x\r\n\r\n" + lineOfA);
    ShowAll();
    program.Start();
    Tick("a.exe");
    Tick("other.exe");
    Click("cmdRemove");
    EXPECT_EQ(RowNames(), (RowTexts{"a.exe", "other.exe"}));
    EXPECT_FALSE(RowNamed("a.exe")->Checked());
    EXPECT_TRUE(RowNamed("other.exe")->Checked());
    EXPECT_EQ(File(), "x\r\n");
}

TEST_F(SafeListCommandsTest, LeavesTheFileAloneWhenNothingWasRemoved) {
    Run(1, "C:\\a.exe", "a");
    SafeListFile("x\r\n\r\n");
    ShowAll();
    program.Start();
    Tick("a.exe");
    Click("cmdRemove");
    EXPECT_EQ(File(), "x\r\n\r\n");
}

// What the first look worked out stays: the file was safe then, so it was never judged.
TEST_F(SafeListCommandsTest, ShowsARemovedFileAgainUncolouredAndUnhashedUntilTheNextStart) {
    Run(1, "C:\\a.exe", "a");
    program.AddInstalledFile("SusProcess.vkl").Content(Md5OfA);
    SafeListFile(lineOfA);
    program.Start();
    Click("optFilter(0)");
    Tick("a.exe");
    Click("cmdRemove");
    program.machine.Journal().Clear();
    Click("optFilter(1)");
    EXPECT_EQ(RowNames(), (RowTexts{"a.exe"}));
    EXPECT_FALSE(List().Row(0).TextColor().has_value());
    EXPECT_EQ(program.machine.Journal().CountOf("CryptCreateHash"), 0u);
}

TEST_F(SafeListCommandsTest, ShowsAFileThatChangedSinceItWasCalledSafe) {
    Run(1, "C:\\a.exe", "changed by an update");
    SafeListFile(lineOfA);
    program.Start();
    EXPECT_EQ(RowNames(), (RowTexts{"a.exe"}));
}

TEST_F(SafeListCommandsTest, SaysThatAnAdditionCouldNotBeWrittenAndKeepsItInMemory) {
    Run(1, "C:\\a.exe", "a");
    SafeListFile("x\r\n");
    program.machine.AddFile("C:\\Velkarix\\SafeProcess.vkl").ReadOnly();
    program.Start();
    Tick("a.exe");
    Click("cmdAdd");
    ASSERT_EQ(program.desktop.messages.size(), 1u);
    EXPECT_EQ(program.desktop.messages[0].text, "Error Occurred cmdAdd: \r\nAccess is denied.\r\n");
    EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Information);
    EXPECT_EQ(File(), "x\r\n");
    Click("cmdRefresh");
    EXPECT_EQ(List().RowCount(), 0u);
    LeaveAndComeBack();
    EXPECT_EQ(List().RowCount(), 0u);  // the verdict that was marked safe lives on
}

TEST_F(SafeListCommandsTest, NeverWritesOverAListThatCouldNotBeRead) {
    Run(1, "C:\\a.exe", "a");
    SafeListFile("x\r\n");
    program.machine.AddFile(SafeListPath).Unreadable();
    program.Start();
    Tick("a.exe");
    Click("cmdAdd");
    ASSERT_EQ(program.desktop.messages.size(), 1u);
    EXPECT_EQ(program.desktop.messages[0].text,
              "Error Occurred cmdAdd: \r\n" +
                  program.application.registry.GetSystemErrorText(error::SharingViolation));
    EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Information);
    EXPECT_EQ(File(), "x\r\n");
    EXPECT_EQ(RowNames(), RowTexts{"a.exe"});
    EXPECT_TRUE(RowNamed("a.exe")->Checked());

    // Once it can be read the addition stands behind what it holds.
    program.machine.AddFile(SafeListPath).unreadable = false;
    Click("cmdAdd");
    EXPECT_EQ(File(), "x\r\n" + std::string(lineOfA));
    EXPECT_EQ(program.desktop.messages.size(), 1u);
}

TEST_F(SafeListCommandsTest, RemovesNothingFromAListThatCouldNotBeRead) {
    Run(1, "C:\\a.exe", "a");
    SafeListFile("x\r\n" + std::string(lineOfA));
    ShowAll();
    program.machine.AddFile(SafeListPath).Unreadable();
    program.Start();
    Tick("a.exe");
    Click("cmdRemove");
    EXPECT_EQ(File(), "x\r\n" + std::string(lineOfA));
    program.machine.AddFile(SafeListPath).unreadable = false;
    Click("cmdRemove");
    EXPECT_EQ(File(), "x\r\n");
    EXPECT_TRUE(program.desktop.messages.empty());
}

TEST_F(SafeListCommandsTest, SaysNothingWhenARemovalCouldNotBeWritten) {
    Run(1, "C:\\a.exe", "a");
    SafeListFile(lineOfA);
    program.machine.AddFile("C:\\Velkarix\\SafeProcess.vkl").ReadOnly();
    ShowAll();
    program.Start();
    Tick("a.exe");
    Click("cmdRemove");
    EXPECT_TRUE(program.desktop.messages.empty());
    EXPECT_EQ(File(), lineOfA);
}

}  // namespace
}  // namespace velkarix
