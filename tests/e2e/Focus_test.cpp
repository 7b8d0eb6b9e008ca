// Whoever works by keyboard sees where the focus is, on every control that can have it.
#include <set>
#include <string>

#include "Input.h"
#include "Places.h"
#include "ProgramTest.h"
#include "Screen.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

constexpr int MostControls = 60;  // on one page, with those of the main window

class Focus : public ProgramTest {
  protected:
    Focus() {
        Start();
        BringToFront(Running().Main());
        MoveTo({0, 0});  // what is under the mouse looks different
    }
    Window Focused(const Window& top) { return FocusOf(top.Thread()); }
    // Presses Tab, and gives what has the focus then; none when that was the only one.
    Window Tab(const Window& top) {
        const Window before = Focused(top);
        PressKey(VK_TAB);
        return WaitUntil([&] { return Focused(top) != before; }) ? Focused(top) : Window();
    }
    // A caret blinks, so what differs may take its time.
    static bool Differs(const Capture& before, const Window& control, const Window& top) {
        return WaitUntil([&] { return Capture(top.Area()).Differing(before, control.Area()) > 0; },
                         3000);
    }
    // Walks once round by Tab. How many controls were reached.
    std::size_t WalkRound(const Window& top) {
        std::set<HWND> seen;
        for (int i = 0; i < MostControls; ++i) {
            Sleep(20);  // for what is still drawing
            const Capture before(top.Area());
            const Window now = Tab(top);
            if (!now || !seen.insert(now.Handle()).second) break;
            EXPECT_TRUE(Differs(before, now, top))
                << now.Name() << " doesn't show that it has the focus";
        }
        return seen.size();
    }
};

TEST_F(Focus, IsSeenOnEveryControlOfEveryPlace) {
    for (const Place& place : AllPlaces()) {
        const testing::ScopedTrace trace(__FILE__, __LINE__, NameOf(place));
        ASSERT_TRUE(GoTo(Running(), place));
        MoveTo({0, 0});
        EXPECT_GT(WalkRound(Running().Main()), 8u);  // pages and links, and what the page has
    }
}

TEST_F(Focus, IsSeenInTheDialogOfAFile) {
    SelectRow("SampleIdle.exe");
    ASSERT_TRUE(Running().Control("cmdViewInformation").Click());
    const Window dialog = Running().Dialog("frmviewInfo");
    ASSERT_TRUE(dialog);
    ASSERT_TRUE(BringToFront(dialog));
    MoveTo({0, 0});
    EXPECT_GT(WalkRound(dialog), 8u);
    EXPECT_TRUE(dialog.Find("cmdOk").Click());
}

}  // namespace
}  // namespace velkarix::e2e
