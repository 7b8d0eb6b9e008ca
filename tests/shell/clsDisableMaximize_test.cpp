#include "shell/clsDisableMaximize.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

constexpr std::uint32_t Maximize = 61488;
constexpr auto OwnNumber = static_cast<std::uint32_t>(-11);

class DisableMaximizeTest : public testing::Test {
  protected:
    const MenuItemInfo* Item(std::uint32_t id) {
        const auto found = std::find_if(window.menuItems.begin(), window.menuItems.end(),
                                        [id](const MenuItemInfo& item) { return item.id == id; });
        return found == window.menuItems.end() ? nullptr : &*found;
    }
    void Freeze() { clsDisableMaximize(machine.windows).DisableMaxButton(window.handle); }

    MemoryMachine machine;
    MemoryWindow& window = machine.windows.Add("VelkarixForm", "Velkarix");
};

TEST_F(DisableMaximizeTest, MakesTheSystemLoseTheMenuItemAndGreysIt) {
    Freeze();
    EXPECT_EQ(Item(Maximize), nullptr);
    ASSERT_NE(Item(OwnNumber), nullptr);
    EXPECT_EQ(Item(OwnNumber)->state & 3u, 3u);
}

TEST_F(DisableMaximizeTest, TakesTheBoxAndTheSizingFrameAway) {
    window.longs[-16] = 0x14CF0000;
    Freeze();
    EXPECT_EQ(window.longs[-16], 0x14CA0000);
}

TEST_F(DisableMaximizeTest, HasTheTitleBarAndTheFrameDrawnAnew) {
    Freeze();
    EXPECT_EQ(window.messages,
              (std::vector<SentMessage>{{134, static_cast<std::uintptr_t>(-1), 0}}));
    EXPECT_EQ(window.placings, (std::vector<WindowPlacing>{{-2, 0, 0, 0, 0, 39}}));
}

TEST_F(DisableMaximizeTest, MakesItsCallsInThisOrder) {
    Freeze();
    EXPECT_EQ(
        machine.Journal().Names(),
        (std::vector<std::string>{"GetSystemMenu", "GetMenuItemInfoA", "SetMenuItemInfoA",
                                  "SetMenuItemInfoA", "SendMessageA", "GetWindowLongA",
                                  "SetWindowLongA", "GetParent", "SetParent", "SetWindowPos"}));
}

TEST_F(DisableMaximizeTest, PassesTheMenuOverWhenTheItemCanNotBeRead) {
    window.menuItems.clear();
    Freeze();
    EXPECT_EQ(machine.Journal().CountOf("SetMenuItemInfoA"), 0u);
    EXPECT_TRUE(window.messages.empty());
    EXPECT_EQ(window.placings.size(), 1u);
}

}  // namespace
}  // namespace velkarix
