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
    // Has everything drawn that waits.
    static void Settle(const Window& top) {
        RedrawWindow(top.Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
    // What the user can do something with.
    static std::set<HWND> Stops(const Window& top) {
        std::set<HWND> stops;
        for (const Window& each : top.Children()) {
            const bool isStop = (each.Style() & WS_TABSTOP) != 0;
            if (isStop && each.Visible() && each.Enabled()) stops.insert(each.Handle());
        }
        return stops;
    }
    static std::string NamesOf(const std::set<HWND>& controls) {
        std::string names;
        for (const HWND each : controls) names += Window(each).Name() + " ";
        return names;
    }
    // Walks by Tab until the control is reached again that it was at first, which is once round.
    void WalkRound(const Window& top) {
        const Window first = Tab(top);
        ASSERT_TRUE(first);
        std::set<HWND> reached;
        while (!reached.contains(first.Handle())) {
            Settle(top);
            const Capture before(top.Area());
            const Window now = Tab(top);
            ASSERT_TRUE(now) << "no way on, after " << NamesOf(reached);
            EXPECT_TRUE(Differs(before, now, top))
                << now.Name() << " doesn't show that it has the focus";
            ASSERT_TRUE(reached.insert(now.Handle()).second)
                << now.Name() << " again, before " << first.Name();
        }
        EXPECT_EQ(reached, Stops(top)) << NamesOf(reached) << "\nand " << NamesOf(Stops(top));
    }
};

TEST_F(Focus, IsSeenOnEveryControlOfEveryPlace) {
    for (const Place& place : AllPlaces()) {
        const testing::ScopedTrace trace(__FILE__, __LINE__, NameOf(place));
        ASSERT_TRUE(GoTo(Running(), place));
        MoveTo({0, 0});
        WalkRound(Running().Main());
    }
}

TEST_F(Focus, IsSeenInTheDialogOfAFile) {
    SelectRow("SampleIdle.exe");
    ASSERT_TRUE(Running().Control("cmdViewInformation").Click());
    const Window dialog = Running().Dialog("frmviewInfo");
    ASSERT_TRUE(dialog);
    ASSERT_TRUE(BringToFront(dialog));
    ASSERT_TRUE(WaitUntil([&] { return IsChild(dialog.Handle(), Focused(dialog).Handle()); }));
    MoveTo({0, 0});
    WalkRound(dialog);
    EXPECT_TRUE(dialog.Find("cmdOk").Click());
}

}  // namespace
}  // namespace velkarix::e2e
