// The program starts, once, and ends.
#include <algorithm>

#include "Input.h"
#include "ProgramTest.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class Start : public ProgramTest {
  protected:
    static std::ptrdiff_t MainWindows() {
        return std::ranges::count(AllTopWindows(), "frmMain", &Window::Name);
    }
    // Starts the program a second time and waits until that instance has ended.
    std::optional<DWORD> StartAgain() {
        return Process(install_.Path("Velkarix.exe"), install_.Folder()).WaitForExit();
    }
};

TEST_F(Start, TheCaptionShowsTitleAndVersion) {
    EXPECT_EQ(ProgramTest::Start().Main().Text(), "Velkarix Version: 1.0");
}

TEST_F(Start, ClosingTheMainWindowEndsTheProgramWithCode0) {
    EXPECT_EQ(ProgramTest::Start().Close(), 0u);
}

TEST_F(Start, TheHiddenApplicationWindowStandsRightBehindTheMainWindow) {
    const Window main = ProgramTest::Start().Main();
    const HWND hidden = FindWindowA("VelkarixApplication", "Velkarix");
    ASSERT_NE(hidden, nullptr);
    EXPECT_FALSE(IsWindowVisible(hidden));
    EXPECT_EQ(GetWindow(hidden, GW_HWNDPREV), main.Handle());
}

TEST_F(Start, TheHiddenWindowFollowsTheMainWindowToTheFront) {
    const Window main = ProgramTest::Start().Main();
    const HWND hidden = FindWindowA("VelkarixApplication", "Velkarix");
    const HWND between =
        CreateWindowExA(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, "STATIC", "between", WS_POPUP, 0, 0,
                        10, 10, nullptr, nullptr, nullptr, nullptr);
    SetWindowPos(between, main.Handle(), 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    EXPECT_EQ(GetWindow(hidden, GW_HWNDPREV), between);
    SetForegroundWindow(GetDesktopWindow());
    ASSERT_TRUE(WaitUntil([&] { return !FocusOf(main.Thread()); }));
    ASSERT_TRUE(BringToFront(main));
    EXPECT_TRUE(WaitUntil([&] { return GetWindow(hidden, GW_HWNDPREV) == main.Handle(); }));
    DestroyWindow(between);
}

TEST_F(Start, ASecondInstanceRaisesTheFirstAndEnds) {
    const Window main = ProgramTest::Start().Main();
    const Window desktop(GetDesktopWindow());
    SetForegroundWindow(desktop.Handle());
    EXPECT_EQ(StartAgain(), 0u);
    EXPECT_TRUE(WaitUntil([&] { return GetForegroundWindow() == main.Handle(); }));
    EXPECT_EQ(MainWindows(), 1);
    EXPECT_TRUE(Running().OwnProcess().Running());
}

TEST_F(Start, ASecondInstanceRestoresAMinimisedFirst) {
    const Window main = ProgramTest::Start().Main();
    main.Post(WM_SYSCOMMAND, SC_MINIMIZE);
    ASSERT_TRUE(WaitUntil([&] { return IsIconic(main.Handle()) != FALSE; }));
    EXPECT_EQ(StartAgain(), 0u);
    EXPECT_TRUE(WaitUntil([&] { return IsIconic(main.Handle()) == FALSE; }));
    EXPECT_TRUE(WaitUntil([&] { return GetForegroundWindow() == main.Handle(); }));
    EXPECT_EQ(MainWindows(), 1);
}

TEST_F(Start, TheProgramCanBeStartedAgainOnceItHasEnded) {
    EXPECT_EQ(ProgramTest::Start().Close(), 0u);
    EXPECT_EQ(ProgramTest::Start().Main().Text(), "Velkarix Version: 1.0");
}

TEST_F(Start, TheFirstPageIsTheProcessesWithTheFirstRowSelected) {
    ProgramTest::Start();
    EXPECT_TRUE(Running().Control("frmProcess").Visible());
    EXPECT_GT(List().RowCount(), 0);
    EXPECT_EQ(List().Selected(), 0);
}

}  // namespace
}  // namespace velkarix::e2e
