#include "shell/clsPrevInstance.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/machine/MemoryMachine.h"
#include "tests/machine/RecordingDesktop.h"

namespace velkarix {
namespace {

class PrevInstanceTest : public testing::Test {
  protected:
    void ShowApp() { clsPrevInstance(machine.windows, desktop).ShowApp("Velkarix"); }

    MemoryMachine machine;
    RecordingDesktop desktop;
};

TEST_F(PrevInstanceTest, RaisesTheWindowJustBeforeTheOtherInstancesHiddenOne) {
    machine.windows.Add(ApplicationWindowClass, "Velkarix");
    const WindowHandle main = machine.windows.Add("VelkarixForm", "Velkarix Version: 1.0").handle;
    machine.windows.Find(main)->minimised = true;
    ShowApp();
    EXPECT_EQ(machine.windows.Foreground(), main);
    EXPECT_FALSE(machine.windows.Find(main)->minimised);
    EXPECT_TRUE(machine.windows.Find(main)->visible);
}

TEST_F(PrevInstanceTest, CallsInTheOrderThatBringsItToTheFront) {
    machine.windows.Add(ApplicationWindowClass, "Velkarix");
    machine.windows.Add("VelkarixForm", "Velkarix Version: 1.0");
    ShowApp();
    EXPECT_EQ(machine.Journal().Names(),
              (std::vector<std::string>{"FindWindowA", "GetWindow", "ShowWindow", "OpenIcon",
                                        "SetForegroundWindow"}));
}

TEST_F(PrevInstanceTest, HidesItsOwnWindowFromTheSearchFirst) {
    ShowApp();
    EXPECT_EQ(desktop.applicationTitle, "Application is already runnning");
}

TEST_F(PrevInstanceTest, DoesNothingWhenTheOtherInstanceHasNoWindowYet) {
    machine.windows.Add("Other", "Velkarix");
    ShowApp();
    EXPECT_EQ(machine.Journal().Names(), (std::vector<std::string>{"FindWindowA"}));
}

}  // namespace
}  // namespace velkarix
