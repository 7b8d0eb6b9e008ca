#include "shell/ShortcutFacts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/machine/MemoryMachine.h"
#include "tests/machine/ShortcutFile.h"

namespace velkarix {
namespace {

const std::string Path = "C:\\Startup\\Tool.lnk";
const Shortcut Tool{"C:\\Tool\\tool.exe", "/min \"a b\"", "C:\\Tool\\icons.dll,-3"};

class ShortcutSourceTest : public testing::Test {
  protected:
    ShortcutSourceTest() { machine.AddFile(Path).Shortcut(Tool); }

    std::optional<Shortcut> Open(const std::string& path = Path) {
        return ShortcutSource(machine.shortcuts, machine.files).Open(path);
    }
    MemoryMachine machine;
};

TEST_F(ShortcutSourceTest, TheAutomationObjectIsAskedFirstAndAlone) {
    EXPECT_EQ(Open(), Tool);
    EXPECT_EQ(machine.Journal().CountOf("Load"), 0u);
    EXPECT_EQ(machine.Journal().ArgumentsOf("CreateShortcut"), std::vector<std::string>{Path});
}

TEST_F(ShortcutSourceTest, TheObjectsAreMadeOnceForAllFiles) {
    machine.AddFile("C:\\b.lnk").Shortcut({"C:\\b.exe", "", ""});
    ShortcutSource source(machine.shortcuts, machine.files);
    EXPECT_EQ(source.Open(Path), Tool);
    EXPECT_EQ(source.Open("C:\\b.lnk"), (Shortcut{"C:\\b.exe", "", ",0"}));
    EXPECT_EQ(machine.Journal().CountOf("MakeScriptShell"), 1u);
    EXPECT_EQ(machine.Journal().CountOf("MakeShellLink"), 1u);
}

TEST_F(ShortcutSourceTest, WithoutTheAutomationObjectTheLinkObjectServes) {
    machine.shortcuts.SetHasScriptShell(false);
    EXPECT_TRUE(ShortcutSource(machine.shortcuts, machine.files).Available());
    EXPECT_EQ(Open(), Tool);
}

TEST_F(ShortcutSourceTest, WithoutTheLinkObjectTheOtherServes) {
    machine.shortcuts.SetHasShellLink(false);
    EXPECT_TRUE(ShortcutSource(machine.shortcuts, machine.files).Available());
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

TEST_F(ShortcutSourceTest, ABrokenFileIsKeptFromTheSystemsObjects) {
    Bytes broken = MakeShortcutFile(Tool);
    broken[0x4C] = 0xFF;  // the size of the first part
    machine.AddFile("C:\\broken.lnk").Content(broken);
    machine.AddFile("C:\\large.lnk").Shortcut(Tool).content.resize(1024 * 1024 + 1);
    machine.AddFile("C:\\most.lnk").Shortcut(Tool).content.resize(1024 * 1024);
    EXPECT_EQ(Open("C:\\broken.lnk"), std::nullopt);
    EXPECT_EQ(Open("C:\\large.lnk"), std::nullopt);
    machine.FailNext("ReadFile");
    EXPECT_EQ(Open(), std::nullopt);
    EXPECT_EQ(machine.Journal().CountOf("CreateShortcut"), 0u);
    EXPECT_EQ(machine.Journal().CountOf("Load"), 0u);
    EXPECT_EQ(Open("C:\\most.lnk"), Tool);
}

TEST_F(ShortcutSourceTest, ASystemWithNeitherCannotReadShortcuts) {
    machine.SetSystem(NamedSystem::WindowsNt351);
    ShortcutSource source(machine.shortcuts, machine.files);
    EXPECT_FALSE(source.Available());
    EXPECT_EQ(source.Open(Path), std::nullopt);
}

}  // namespace
}  // namespace velkarix
