#include <gtest/gtest.h>

#include <string>

#include "tests/conformance/Home.h"

namespace velkarix {
namespace {

constexpr const char* windowClass = "VelkarixConformance";
constexpr std::uint32_t maximise = 61488;  // the command number of the system menu's item
constexpr std::uint32_t maskState = 1;
constexpr std::uint32_t maskId = 2;
constexpr std::uint32_t previous = 3;  // GW_HWNDPREV
constexpr std::uint32_t next = 2;      // GW_HWNDNEXT
constexpr int style = -16;

// Mutexes outlive a test, so that a repeated one needs another name.
std::string NewMutexName() {
    static int count = 0;
    return "VelkarixConformance." + std::to_string(++count);
}

}  // namespace

class WindowConformance : public Conformance {
  protected:
    WindowSystem& windows_ = machine_.windows;
};

INSTANTIATE_TEST_SUITE_P(Home, WindowConformance, testing::ValuesIn(FamiliesOfHome()),
                         NameOfFamily);

TEST_P(WindowConformance, AMutexIsNewOnlyOnce) {
    const std::string name = NewMutexName();
    EXPECT_FALSE(windows_.CreateMutexA(name));
    EXPECT_TRUE(windows_.CreateMutexA(name));
}

TEST_P(WindowConformance, AMutexOfSomebodyElseExists) {
    const std::string name = NewMutexName();
    home_->MakeMutex(name);
    EXPECT_TRUE(windows_.CreateMutexA(name));
}

TEST_P(WindowConformance, NamesOfMutexesCompareWithCase) {
    const std::string name = NewMutexName();
    home_->MakeMutex("a" + name);
    EXPECT_FALSE(windows_.CreateMutexA("A" + name));
}

TEST_P(WindowConformance, AWindowIsFoundByClassAndCaption) {
    const WindowHandle first = home_->MakeWindow(windowClass, "First");
    const WindowHandle second = home_->MakeWindow(windowClass, "Second");
    EXPECT_EQ(windows_.FindWindowA(windowClass, "First"), first);
    EXPECT_EQ(windows_.FindWindowA(windowClass, "Second"), second);
    EXPECT_EQ(windows_.FindWindowA("velkarixCONFORMANCE", "FIRST"), first);
    EXPECT_EQ(windows_.FindWindowA(windowClass, "Third"), 0u);
    EXPECT_EQ(windows_.FindWindowA("VelkarixOther", "First"), 0u);
}

TEST_P(WindowConformance, TheNewerOfTwoWindowsStandsBefore) {
    const WindowHandle older = home_->MakeWindow(windowClass, "Older");
    const WindowHandle newer = home_->MakeWindow(windowClass, "Newer");
    EXPECT_EQ(windows_.GetWindow(older, previous), newer);
    EXPECT_EQ(windows_.GetWindow(newer, next), older);
    EXPECT_EQ(windows_.GetWindow(0, previous), 0u);
}

TEST_P(WindowConformance, ShowingTellsWhetherAWindowWasVisible) {
    const WindowHandle window = home_->MakeWindow(windowClass, "Window");
    EXPECT_FALSE(windows_.ShowWindow(window, 5));
    EXPECT_TRUE(windows_.ShowWindow(window, 5));
    EXPECT_TRUE(windows_.ShowWindow(window, 0));
    EXPECT_FALSE(windows_.ShowWindow(0, 5));
}

TEST_P(WindowConformance, TheSystemMenuHasAnItemToMaximise) {
    const MenuHandle menu = windows_.GetSystemMenu(home_->MakeWindow(windowClass, "Window"), false);
    ASSERT_NE(menu, 0u);
    MenuItemInfo info{maskState | maskId, 0xFFFF, 0};
    ASSERT_TRUE(windows_.GetMenuItemInfoA(menu, maximise, info));
    EXPECT_EQ(info.id, maximise);
    EXPECT_EQ(info.state, 0u);
    EXPECT_FALSE(windows_.GetMenuItemInfoA(menu, 0x4242, info));
}

TEST_P(WindowConformance, OnlyTheMaskedPartsOfAnItemAreRead) {
    const MenuHandle menu = windows_.GetSystemMenu(home_->MakeWindow(windowClass, "Window"), false);
    MenuItemInfo info{maskState, 0xFFFF, 77};
    ASSERT_TRUE(windows_.GetMenuItemInfoA(menu, maximise, info));
    EXPECT_EQ(info.state, 0u);
    EXPECT_EQ(info.id, 77u);
}

TEST_P(WindowConformance, AnItemIsFoundUnderTheNumberThatItWasGiven) {
    const MenuHandle menu = windows_.GetSystemMenu(home_->MakeWindow(windowClass, "Window"), false);
    constexpr auto hidden = static_cast<std::uint32_t>(-11);
    ASSERT_TRUE(windows_.SetMenuItemInfoA(menu, maximise, {maskId, 0, hidden}));
    MenuItemInfo info{maskState, 0, 0};
    EXPECT_FALSE(windows_.GetMenuItemInfoA(menu, maximise, info));
    ASSERT_TRUE(windows_.SetMenuItemInfoA(menu, hidden, {maskState, 3, 0}));
    ASSERT_TRUE(windows_.GetMenuItemInfoA(menu, hidden, info));
    EXPECT_EQ(info.state, 3u);
    EXPECT_FALSE(windows_.SetMenuItemInfoA(menu, maximise, {maskState, 3, 0}));
}

TEST_P(WindowConformance, SettingAStyleGivesTheOldOne) {
    const WindowHandle window = home_->MakeWindow(windowClass, "Window");
    const std::int32_t before = windows_.GetWindowLongA(window, style);
    EXPECT_EQ(before & 0x00CF0000, 0x00CF0000);
    EXPECT_EQ(windows_.SetWindowLongA(window, style, before & ~0x50000), before);
    EXPECT_EQ(windows_.GetWindowLongA(window, style), before & ~0x50000);
    EXPECT_EQ(windows_.GetWindowLongA(0, style), 0);
}

TEST_P(WindowConformance, ATopLevelWindowHasNoParent) {
    const WindowHandle window = home_->MakeWindow(windowClass, "Window");
    EXPECT_EQ(windows_.GetParent(window), 0u);
    EXPECT_EQ(windows_.GetParent(0), 0u);
    EXPECT_TRUE(windows_.SetWindowPos(window, -2, 0, 0, 0, 0, 39));
    EXPECT_FALSE(windows_.SetWindowPos(0, -2, 0, 0, 0, 0, 39));
}

TEST_P(WindowConformance, NothingIsDoneToNoWindow) {
    EXPECT_EQ(windows_.GetSystemMenu(0, false), 0u);
    EXPECT_FALSE(windows_.OpenIcon(0));
    EXPECT_FALSE(windows_.SetForegroundWindow(0));
    EXPECT_EQ(windows_.SendMessageA(0, 134, 0, 0), 0);
}

}  // namespace velkarix
