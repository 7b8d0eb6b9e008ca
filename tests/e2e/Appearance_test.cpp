// What the user changes in the control panel while the program runs shows in it at once.
#include <windows.h>

#include <cstdlib>
#include <vector>

#include "AskInside.h"
#include "Places.h"
#include "ProgramTest.h"
#include "Screen.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

constexpr COLORREF Black = RGB(0, 0, 0);
constexpr COLORREF White = RGB(255, 255, 255);
constexpr COLORREF Purple = RGB(128, 0, 128);
constexpr int LargeLetters = 19;  // 14 points

class Appearance : public ProgramTest {
  protected:
    Appearance() { Start(); }
    // Programs that are started later would find what was set.
    void TearDown() override {
        while (!colours_.empty()) {
            const auto [index, colour] = colours_.back();
            colours_.pop_back();
            Ask(SetColourQuestion, index << 24 | static_cast<int>(colour));
        }
        if (letters_ != 0) Ask(SetFontQuestion, letters_);
    }
    int Ask(const char* question, int number) {
        return std::atoi(AskInside(Running().Main(), question, number).c_str());
    }
    void SetColour(int index, COLORREF colour) {
        const int before = Ask(SetColourQuestion, index << 24 | static_cast<int>(colour));
        colours_.emplace_back(index, static_cast<COLORREF>(before));
    }
    void SetLetters(int height) {
        const int before = Ask(SetFontQuestion, height);
        if (letters_ == 0) letters_ = before;
    }
    void SetBlackScheme() {
        for (const int index : {COLOR_3DFACE, COLOR_WINDOW}) SetColour(index, Black);
        for (const int index : {COLOR_BTNTEXT, COLOR_WINDOWTEXT, COLOR_HIGHLIGHTTEXT}) {
            SetColour(index, White);
        }
        SetColour(COLOR_HIGHLIGHT, Purple);
    }
    static int Count(const RECT& area, COLORREF wanted) {
        return CountPixels(area, [&](COLORREF colour) { return colour == wanted; });
    }
    // Whether most of an area comes to be of that colour.
    static bool TurnsMostly(const RECT& area, COLORREF colour) {
        const LONG pixels = (area.right - area.left) * (area.bottom - area.top);
        return WaitUntil([&] { return Count(area, colour) > pixels / 2; });
    }
    LONG HeightOf(const char* control) {
        const RECT area = Running().Control(control).Area();
        return area.bottom - area.top;
    }

  private:
    std::vector<std::pair<int, COLORREF>> colours_;
    int letters_ = 0;
};

TEST_F(Appearance, TheProgramsOwnDrawingTurnsBlackWithTheSystem) {
    SetBlackScheme();
    for (const char* control : {"picTop", "lblHelp", "lblAbout", "lblProduct", "picLeft", "cmdIE",
                                "fmFilter", "lstvProcess"}) {
        EXPECT_TRUE(TurnsMostly(Running().Control(control).Area(), Black)) << control;
    }
    EXPECT_TRUE(TurnsMostly(Running().Control("cmdProcess").Area(), Purple)) << "the page on view";
}

TEST_F(Appearance, TheTreeAndItsListTurnBlackToo) {
    ASSERT_TRUE(Running().Press("cmdStartup"));
    SetBlackScheme();
    for (const char* control : {"tvwStartup", "lstvStartup"}) {
        EXPECT_TRUE(TurnsMostly(Running().Control(control).Area(), Black)) << control;
    }
}

TEST_F(Appearance, AMarkThatVanishesOnBlackIsShownReversed) {
    constexpr COLORREF Reversed = RGB(64, 0, 0);
    SetBlackScheme();
    ASSERT_TRUE(Running().Press("cmdIE"));
    const ListWindow helpers = Running().List("lstvBHO");
    int reversed = 0;
    for (int row = 0; row < helpers.RowCount(); ++row) {
        const RECT area = helpers.LabelArea(row);
        const LONG pixels = (area.right - area.left) * (area.bottom - area.top);
        EXPECT_TRUE(WaitUntil([&] { return Count(area, Black) < pixels; })) << row << " is blank";
        if (Count(area, Reversed) > 0) ++reversed;
    }
    EXPECT_GT(reversed, 0);
}

TEST_F(Appearance, AllGrowsWithTheSystemsFont) {
    const LONG button = HeightOf("cmdRefresh");
    const LONG page = HeightOf("cmdIE");
    const LONG title = HeightOf("lblProduct");
    const RECT row = List().LabelArea(0);
    SetLetters(LargeLetters);
    EXPECT_TRUE(WaitUntil([&] { return HeightOf("cmdRefresh") > button; }));
    EXPECT_GT(HeightOf("cmdIE"), page);
    EXPECT_GT(HeightOf("lblProduct"), title);
    const RECT larger = List().LabelArea(0);
    EXPECT_GT(larger.bottom - larger.top, row.bottom - row.top);
    EXPECT_GT(larger.right - larger.left, row.right - row.left) << "the columns are fitted";
    for (const Place& place : AllPlaces()) {
        ASSERT_TRUE(GoTo(Running(), place));
        EXPECT_EQ(AskInside(Running().Main(), CutTextsQuestion), "") << NameOf(place);
    }
}

TEST_F(Appearance, APageThatHasNoRoomScrolls) {
    constexpr int HugeLetters = 80;
    ASSERT_TRUE(Running().Press("cmdOptions"));
    const Window page = Running().Control("frmOptions");
    const Window last = Running().Control("cmdDelete");
    const auto sees = [&](const Window& control) {
        const RECT outer = page.Area();
        const RECT inner = control.Area();
        return inner.top >= outer.top && inner.bottom <= outer.bottom;
    };
    const auto hasBar = [&] { return (page.Style() & WS_VSCROLL) != 0; };
    EXPECT_FALSE(hasBar());
    SetLetters(HugeLetters);
    ASSERT_TRUE(WaitUntil(hasBar));
    EXPECT_FALSE(sees(last));
    page.Send(WM_VSCROLL, SB_BOTTOM);
    EXPECT_TRUE(sees(last));
    page.Send(WM_VSCROLL, SB_TOP);
    EXPECT_FALSE(sees(last));
    page.Send(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA * 20));
    EXPECT_TRUE(sees(last));
    SetLetters(11);
    EXPECT_TRUE(WaitUntil([&] { return !hasBar() && sees(last); }));
}

TEST_F(Appearance, AllShrinksWithIt) {
    const RECT before = Running().Main().Area();
    const LONG button = HeightOf("cmdRefresh");
    SetLetters(LargeLetters);
    ASSERT_TRUE(WaitUntil([&] { return HeightOf("cmdRefresh") > button; }));
    SetLetters(11);
    EXPECT_TRUE(WaitUntil([&] { return HeightOf("cmdRefresh") == button; }));
    const RECT after = Running().Main().Area();
    EXPECT_TRUE(EqualRect(&after, &before));
}

TEST_F(Appearance, ADialogThatIsOpenGrowsToo) {
    ASSERT_TRUE(Running().Control("lblAbout").Click());
    const Window about = Running().Dialog("frmAbout");
    ASSERT_TRUE(about);
    const RECT before = about.Area();
    SetLetters(LargeLetters);
    EXPECT_TRUE(WaitUntil([&] {
        const RECT after = about.Area();
        return after.right - after.left > before.right - before.left;
    }));
    EXPECT_EQ(AskInside(about, CutTextsQuestion), "");
    EXPECT_TRUE(about.Find("cmdOk").Click());
}

}  // namespace
}  // namespace velkarix::e2e
