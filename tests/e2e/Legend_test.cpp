// The legend of the options page: what the user chooses there is how rows look from then on.
#include <algorithm>
#include <functional>

#include "Input.h"
#include "ProgramTest.h"
#include "Screen.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class Legend : public ProgramTest {
  protected:
    Legend() {
        Start();
        ToPage("cmdOptions");
    }
    void ToPage(const char* button) {
        EXPECT_TRUE(Running().Press(button));
        BringToFront(Running().Main());
    }
    // Double-clicks the box of suspicious items. The dialog that asks for its colour.
    Window AskForColour() {
        DoubleClickAt(Inside(Running().Control("picSuspicious").Area()));
        return Running().SystemDialog();
    }
    std::string Setting(const char* key) { return install_.Ini("Settings.ini", "Main", key); }
    // Clicks the box for bold rows, whose setting is to become `setting`, and has them drawn anew.
    void ClickBold(const char* setting) {
        ToPage("cmdOptions");
        ClickAt(Inside(Running().Control("chkFontBold").Area()));
        ASSERT_TRUE(WaitUntil([&] { return Setting("FontBold") == setting; }));
        ToPage("cmdProcess");
    }
    // The pixels of the suspicious row's name that count, once the row is drawn.
    int Pixels(const std::function<bool(COLORREF)>& counts) {
        SelectRow("SampleSafe.exe");  // what is selected has the colours of the selection
        const RECT area = List().LabelArea(RowOf("SampleSuspect.exe"));
        int count = 0;
        EXPECT_TRUE(WaitUntil([&] { return (count = CountPixels(area, counts)) > 0; }));
        return count;
    }
};

bool IsGreenish(COLORREF color) {
    return GetGValue(color) - std::max(GetRValue(color), GetBValue(color)) > 80;
}

TEST_F(Legend, TheColourChosenForSuspiciousRowsIsTheirsWhenTheyAreListedNext) {
    constexpr COLORREF Chosen = RGB(0, 192, 0);
    const Window dialog = AskForColour();
    ASSERT_TRUE(dialog);
    // It opens with the share of red selected.
    constexpr WORD Keys[] = {'0', VK_TAB, '1', '9', '2', VK_RETURN};
    for (const WORD key : Keys) PressKey(key);
    ASSERT_TRUE(WaitUntil([&] { return !dialog; }));
    EXPECT_TRUE(WaitUntil([&] { return Setting("SusColor") == std::to_string(Chosen); }))
        << Setting("SusColor");
    const RECT box = Running().Control("picSuspicious").Area();
    EXPECT_TRUE(WaitUntil(
        [&] { return CountPixels(box, [](COLORREF color) { return color == Chosen; }) > 100; }));
    ToPage("cmdProcess");
    Pixels(IsGreenish);  // fails when there are none
    EXPECT_EQ(CountPixels(List().LabelArea(RowOf("SampleSuspect.exe")), IsReddish), 0);
}

TEST_F(Legend, CancelLeavesTheColour) {
    const std::string before = install_.Read("Settings.ini");
    const Window dialog = AskForColour();
    ASSERT_TRUE(dialog);
    PressKey('0');
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(WaitUntil([&] { return !dialog; }));
    EXPECT_GT(CountPixels(Running().Control("picSuspicious").Area(), IsReddish), 100);
    EXPECT_EQ(install_.Read("Settings.ini"), before);
}

TEST_F(Legend, SuspiciousRowsAreBoldAsLongAsTheUserWishes) {
    ToPage("cmdProcess");
    const int bold = Pixels(IsReddish);
    ClickBold("0");
    EXPECT_LT(Pixels(IsReddish), bold);
    ClickBold("1");
    EXPECT_EQ(Pixels(IsReddish), bold);
}

}  // namespace
}  // namespace velkarix::e2e
