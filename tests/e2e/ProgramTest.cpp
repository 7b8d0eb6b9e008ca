#include "ProgramTest.h"

#include <vector>

#include "Input.h"
#include "Process.h"
#include "Setup.h"
#include "Wait.h"

namespace velkarix::e2e {

namespace {

std::string RecorderLog() {
    return SamplePath("SampleRecorder.log");
}

constexpr const char* RunningSampleNames[] = {"SampleIdle.exe", "SampleSuspect.exe",
                                              "SampleSafe.exe"};

// The sample programs run as long as the tests do.
class RunningSamples : public testing::Environment {
  public:
    void SetUp() override {
        for (const char* name : RunningSampleNames) {
            samples_.emplace_back(SamplePath(name));
            ASSERT_TRUE(samples_.back()) << name << " doesn't start";
        }
    }
    void TearDown() override {
        samples_.clear();
        RemoveDirectoryA(ScratchFolder().c_str());
    }

  private:
    std::vector<Process> samples_;
};

const testing::Environment* const runningSamples =
    testing::AddGlobalTestEnvironment(new RunningSamples);

}  // namespace

ProgramTest::ProgramTest(const std::string& title) : install_(title) {
    install_.Write("Settings.ini", "[Main]\r\nFirstRun=1\r\n[Update]\r\nCheckUpdate=0\r\n");
    if (!ListsFolders()) StandInForFolders();
    ForgetOpened();
}

void ProgramTest::StandInForFolders() const {
    for (const char* name : RunningSampleNames) {
        CopyFileA(SamplePath(name).c_str(), install_.Path(name).c_str(), TRUE);
    }
    install_.Write("SystemProcess.vkl", install_.Read("SystemProcess.vkl") + "services.exe\r\n");
}

void ProgramTest::ForgetOpened() {
    DeleteFileA(RecorderLog().c_str());
}

Program& ProgramTest::Start(const std::string& folder) {
    program_.reset();
    program_.emplace(install_, folder);
    EXPECT_TRUE(program_->Main()) << "the main window doesn't come";
    return *program_;
}

int ProgramTest::RowOf(const std::string& name) {
    const std::optional<int> row = List().Find(name);
    EXPECT_TRUE(row) << name << " isn't listed";
    return row.value_or(0);
}

void ProgramTest::SelectRow(const ListWindow& list, int row) {
    BringToFront(Running().Main());
    list.Show(row);
    // Two clicks at one place would be a double click.
    POINT place = Inside(list.LabelArea(row));
    aside_ = !aside_;
    if (aside_) place.x += 10;
    ClickAt(place);
    EXPECT_TRUE(WaitUntil([&] { return list.Selected() == row; }))
        << list.Text(row, 0) << " can't be selected";
}

void ProgramTest::Tick(const ListWindow& list, int row, bool ticked) {
    BringToFront(Running().Main());
    list.Show(row);
    ClickAt(list.CheckBox(row));
    EXPECT_TRUE(WaitUntil([&] { return list.Checked(row) == ticked; }))
        << list.Text(row, 0) << " doesn't take the tick";
}

bool ProgramTest::TabTo(const std::string& name) {
    constexpr int MostControls = 60;
    for (int i = 0; i < MostControls; ++i) {
        const Window before = FocusOf(Running().Main().Thread());
        if (before.Name() == name) return true;
        PressKey(VK_TAB);
        WaitUntil([&] { return FocusOf(Running().Main().Thread()) != before; }, 2000);
    }
    return false;
}

std::string ProgramTest::Opened() {
    std::string text;
    WaitUntil([&text] { return !(text = ReadWholeFile(RecorderLog())).empty(); });
    return text;
}

}  // namespace velkarix::e2e
