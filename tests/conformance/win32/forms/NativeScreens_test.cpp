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

}  // namespace
}  // namespace velkarix
