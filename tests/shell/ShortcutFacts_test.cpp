#include "shell/ShortcutFacts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

const std::string Path = "C:\\Startup\\Tool.lnk";
const Shortcut Tool{"C:\\Tool\\tool.exe", "/min \"a b\"", "C:\\Tool\\icons.dll,-3"};

class ShortcutSourceTest : public testing::Test {
  protected:
    ShortcutSourceTest() { machine.AddFile(Path).Shortcut(Tool); }

    std::optional<Shortcut> Open(const std::string& path = Path) {
        return ShortcutSource(machine.shortcuts).Open(path);
    }
    std::vector<std::string> Calls() { return machine.Journal().Names(); }

    MemoryMachine machine;
};

TEST_F(ShortcutSourceTest, TheAutomationObjectIsAskedFirstAndAlone) {
    EXPECT_EQ(Open(), Tool);
    EXPECT_EQ(Calls(),
              (std::vector<std::string>{"MakeScriptShell", "MakeShellLink", "CreateShortcut"}));
    EXPECT_EQ(machine.Journal().ArgumentsOf("CreateShortcut"), std::vector<std::string>{Path});
}

TEST_F(ShortcutSourceTest, TheObjectsAreMadeOnceForAllFiles) {
    machine.AddFile("C:\\b.lnk").Shortcut({"C:\\b.exe", "", ""});
    ShortcutSource source(machine.shortcuts);
    EXPECT_EQ(source.Open(Path), Tool);
    EXPECT_EQ(source.Open("C:\\b.lnk"), (Shortcut{"C:\\b.exe", "", ",0"}));
    EXPECT_EQ(machine.Journal().CountOf("MakeScriptShell"), 1u);
    EXPECT_EQ(machine.Journal().CountOf("MakeShellLink"), 1u);
}

TEST_F(ShortcutSourceTest, WithoutTheAutomationObjectTheLinkObjectServes) {
    machine.shortcuts.SetHasScriptShell(false);
    EXPECT_TRUE(ShortcutSource(machine.shortcuts).Available());
    EXPECT_EQ(Open(), Tool);
}

TEST_F(ShortcutSourceTest, WithoutTheLinkObjectTheOtherServes) {
    machine.shortcuts.SetHasShellLink(false);
    EXPECT_TRUE(ShortcutSource(machine.shortcuts).Available());
    EXPECT_EQ(Open(), Tool);
}

TEST_F(ShortcutSourceTest, WhatTheAutomationObjectCannotReadTheLinkObjectReads) {
    machine.FailNext("CreateShortcut");
    EXPECT_EQ(Open(), Tool);
    EXPECT_EQ(machine.Journal().ArgumentsOf("Load"), std::vector<std::string>{Path});
}

TEST_F(ShortcutSourceTest, AnAutomationObjectThatLoadsNothingHidesNoShortcut) {
    machine.shortcuts.SetScriptShellLoads(false);
    EXPECT_EQ(Open(), Tool);
}

TEST_F(ShortcutSourceTest, AShortcutToWhatIsNoFileHasNoTarget) {
    const Shortcut panel{"", "", "C:\\WINDOWS\\SYSTEM\\main.cpl,1"};
    machine.AddFile("C:\\Mouse.lnk").Shortcut(panel);
    EXPECT_EQ(Open("C:\\Mouse.lnk"), panel);
    machine.shortcuts.SetHasShellLink(false);
    EXPECT_EQ(Open("C:\\Mouse.lnk"), panel);
}

TEST_F(ShortcutSourceTest, WhatNobodyCanReadIsNothing) {
    machine.AddFile("C:\\empty.lnk");
    machine.AddFile("C:\\text.lnk").Content("[InternetShortcut]");
    machine.AddFile("C:\\held.lnk").Shortcut(Tool).Unreadable();
    for (const char* path : {"C:\\empty.lnk", "C:\\text.lnk", "C:\\held.lnk", "C:\\missing.lnk"}) {
        EXPECT_EQ(Open(path), std::nullopt) << path;
    }
    machine.FailNext("CreateShortcut");
    machine.FailNext("Load");
    EXPECT_EQ(Open(), std::nullopt);
}

TEST_F(ShortcutSourceTest, ASystemWithNeitherCannotReadShortcuts) {
    machine.SetSystem(NamedSystem::WindowsNt351);
    ShortcutSource source(machine.shortcuts);
    EXPECT_FALSE(source.Available());
    EXPECT_EQ(source.Open(Path), std::nullopt);
}

}  // namespace
}  // namespace velkarix
