#include "shell/modMain.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/machine/TestProgram.h"

namespace velkarix {
namespace {

using Events = std::vector<std::string>;

TEST(ProgramStart, LoadsTheMainWindowServesEventsAndUnloadsAllInTheEnd) {
    TestProgram program;
    Main(program.application);
    EXPECT_EQ(program.desktop.events,
              (Events{"title Velkarix", "create frmMain", "create frmProcess in picPage",
                      "show frmProcess", "show frmMain", "loop", "destroy frmProcess",
                      "destroy frmMain"}));
}

TEST(ProgramStart, RaisesTheInstanceThatRunsAlreadyAndMakesNothing) {
    TestProgram first;
    Main(first.application);
    TestProgram program;
    program.machine.windows.AddMutex("VelkarixInstance");
    program.machine.windows.Add(ApplicationWindowClass, "Velkarix");
    const WindowHandle main = program.machine.windows.Add("VelkarixForm", "Velkarix").handle;
    Main(program.application);
    EXPECT_EQ(program.machine.windows.Foreground(), main);
    EXPECT_EQ(program.desktop.events, (Events{"title Application is already runnning"}));
    EXPECT_TRUE(program.desktop.messages.empty());
}

TEST(ProgramStart, EndsSilentlyWhileTheOtherInstanceIsStillLoading) {
    TestProgram program;
    program.machine.windows.AddMutex("VelkarixInstance");
    Main(program.application);
    EXPECT_EQ(program.machine.windows.Foreground(), 0u);
    EXPECT_TRUE(program.desktop.messages.empty());
}

TEST(ProgramStart, ServesNoEventsAfterAFaultInItsLoad) {
    TestProgram program;
    program.AddInstalledFile("Settings.ini").Content("[Main]\r\nFontBold=x\r\n");
    Main(program.application);
    EXPECT_EQ(std::count(program.desktop.events.begin(), program.desktop.events.end(), "loop"), 0);
    EXPECT_EQ(program.desktop.messages.size(), 1u);
}

TEST(ProgramStart, RunsOnEachOfTheNineSystems) {
    for (const NamedSystem system : allNamedSystems) {
        TestProgram program(system);
        Main(program.application);
        EXPECT_NE(program.application.WindowsName, "");
        EXPECT_TRUE(program.desktop.messages.empty());
    }
}

}  // namespace
}  // namespace velkarix
