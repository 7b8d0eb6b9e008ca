#include "NativeViews.h"
#include "WorkAreaOf.h"

namespace velkarix {
namespace {

// As large as what the smallest supported screen leaves beside its task bar.
class NativeSmallScreenTest : private WorkAreaOf, public NativeViewsTest {
  protected:
    NativeSmallScreenTest() : WorkAreaOf(Pixels(640), Pixels(452)) {}
};

TEST_F(NativeSmallScreenTest, MainWindowStandsInsideTheWorkArea) {
    const RECT area = AreaOf(reinterpret_cast<HWND>(desktop.HandleOf(*main)));
    EXPECT_GE(area.left, 0);
    EXPECT_GE(area.top, 0);
    EXPECT_LE(area.right, Pixels(640));
    EXPECT_LE(area.bottom, Pixels(452));
}

TEST_F(NativeSmallScreenTest, EightViewButtonsFitUnderABanner) {
    const RECT first = AreaOf(Window("cmdFirst"));
    const RECT second = AreaOf(Window("cmdSecond"));
    const LONG banner = Pixels(64);
    const RECT whole = AreaOf(Window("pagViews"));
    EXPECT_LE(8 * (first.bottom - first.top) + 7 * (second.top - first.bottom),
              whole.bottom - whole.top - banner);
}

TEST_F(NativeSmallScreenTest, NothingStandsBeyondTheEdgesOfThePage) {
    const RECT whole = AreaOf(Window("pagViews"));
    for (const Control* control : views->Controls()) {
        const RECT area = AreaOf(Window(control->Name()));
        EXPECT_LE(area.right, whole.right) << control->Name();
        EXPECT_LE(area.bottom, whole.bottom) << control->Name();
    }
}

class Tall : public Form {
  public:
    Tall() : Form("frmTall", "Tall", FormKind::Dialog) {
        Layout column = Column({});
        std::vector<Control*> controls;
        for (int i = 0; i < 20; ++i) {
            const std::string name = "cmd" + std::to_string(i);
            buttons_.push_back(std::make_unique<Button>(name.c_str(), "A button", [] {}));
            controls.push_back(buttons_.back().get());
            column.children.push_back(Item(*buttons_.back()));
        }
        SetControls(std::move(controls));
        SetLayout(std::move(column));
    }

  private:
    std::vector<std::unique_ptr<Button>> buttons_;
};

// A bar takes room, which mustn't make the other one necessary.
TEST_F(NativeFormsTest, DialogThatIsTooHighForTheScreenHasOneBar) {
    const WorkAreaOf screen(Pixels(640), Pixels(300));
    Tall form;
    desktop.Create(form, nullptr);
    const auto window = reinterpret_cast<HWND>(desktop.HandleOf(form));
    ShowWindow(window, SW_SHOWNA);
    const LONG style = GetWindowLongA(window, GWL_STYLE);
    EXPECT_NE(style & WS_VSCROLL, 0);
    EXPECT_EQ(style & WS_HSCROLL, 0);
    desktop.Destroy(form);
}

}  // namespace
}  // namespace velkarix
