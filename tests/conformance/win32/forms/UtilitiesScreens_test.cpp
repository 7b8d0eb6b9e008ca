// The utilities page has more words than any other: all of them are to be seen on every screen.
#include "PageOnScreen.h"
#include "utilities/frmUtilities.h"

namespace velkarix {
namespace {

using UtilitiesOnScreen = PageOnScreen<frmUtilities>;

// What is left of each screen beside its task bar.
TEST(UtilitiesPageOnScreens, ShowsAllOfItsWordsOnScreensOfEverySize) {
    for (const auto& [width, height] : {std::pair{640, 452}, {800, 572}, {1024, 740}}) {
        UtilitiesOnScreen screen(width, height);
        EXPECT_EQ(CutTexts(screen.Window()), "") << width;
    }
}

TEST(UtilitiesPageOnScreens, HasRoomForADateBehindItsWords) {
    UtilitiesOnScreen screen(640, 452);
    Control* label = screen.page.Find("lblLastUpdated");
    label->SetText(label->Text() + " 2004-12-31 12:59:59");
    EXPECT_EQ(CutTexts(screen.Window()), "");
}

}  // namespace
}  // namespace velkarix
