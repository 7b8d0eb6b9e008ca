// What the browser page is made of: its views, their captions and looks, and where they stand.
#include <algorithm>

#include "tests/browser/BrowserFrame.h"
#include "tests/forms/LayoutLint.h"

namespace velkarix {
namespace {

using FrmIEControls = BrowserFrame;

TEST_F(FrmIEControls, NamesItsViewsInTheOrderOfTheirIndices) {
    Open();
    for (std::size_t i = 0; i < std::size(Views); ++i) {
        SCOPED_TRACE(Views[i].button);
        EXPECT_EQ(ViewButton(i).Text(), Views[i].words);
        EXPECT_EQ(program.Get<Frame>("frmIE", Element("fmIE", i)).Text(), Views[i].caption);
        if (Views[i].list == nullptr) continue;
        EXPECT_EQ(List(Views[i].list).Around(), Page().Find(Element("fmIE", i)));
    }
    EXPECT_EQ(Page().Find("fmIE(8)"), nullptr);
    EXPECT_EQ(Page().Caption(), "Internet Explorer");
}

TEST_F(FrmIEControls, NamesItsSubViewsInTheOrderOfTheTabs) {
    Open();
    EXPECT_EQ(Tabs().Captions(), (RowTexts{std::begin(SubViews), std::end(SubViews)}));
    EXPECT_EQ(Tabs().Around(), Page().Find("fmIE(7)"));
    for (std::size_t i = 0; i < std::size(SubViews); ++i) {
        ASSERT_NE(Page().Find(Element("fmIEAdvanced", i)), nullptr);
        EXPECT_EQ(Page().Find(Element("fmIEAdvanced", i))->Around(), &Tabs());
    }
    EXPECT_EQ(Page().Find("fmIEAdvanced(4)"), nullptr);
    EXPECT_EQ(List("lstvHook").Around(), Page().Find("fmIEAdvanced(0)"));
}

// Settings stand below the lists, whatever their index is.
TEST_F(FrmIEControls, OrdersTheStripFromTheTop) {
    Open();
    RowTexts strip;
    int last = -1;
    for (const Placement& each : ShownPlacements(Page(), {0, 0, 800, 600})) {
        if (each.control->Around() != Page().Find("picButtonHolder")) continue;
        EXPECT_GT(each.area.y, last);
        last = each.area.y;
        strip.push_back(each.control->Name());
    }
    EXPECT_EQ(strip, (RowTexts{"cmdBHO", "cmdToolbar", "cmdButton", "cmdMenu", "cmdProtocol",
                               "cmdDomain", "cmdURLs", "cmdAdvance"}));
}

TEST_F(FrmIEControls, GivesItsControlsTheirLooks) {
    Open();
    EXPECT_EQ(Page().SkinElement(), "free");
    for (const Control* control : Page().Controls()) {
        const std::string& name = control->Name();
        const auto view = std::find_if(std::begin(Views), std::end(Views),
                                       [&](const ViewCase& each) { return each.button == name; });
        std::string element;
        if (view != std::end(Views)) {
            element = view->skinElement;
        } else if (dynamic_cast<const Button*>(control) != nullptr && name != "cmdProxyApply") {
            element = "button";
        } else if (name.starts_with("fmIE(")) {
            element = "Frame";
        } else if (name == "fmIEAdvanced(3)") {
            element = "free";
        } else if (dynamic_cast<const TabStrip*>(control) != nullptr) {
            element = "Tab";
        }
        EXPECT_EQ(control->SkinElement(), element) << name;
    }
}

TEST_F(FrmIEControls, PlacesEverythingInsideThePageInEachView) {
    LookAtEachView([this] {
        ExpectInside(Page());
        ExpectNoOverlap(Page());
    });
}

// The next stands below, or beside and no higher than where the one before it begins. The view
// begins anew at the top, beside the strip; so does each of the prefixes' columns.
TEST_F(FrmIEControls, GoesThroughItsControlsAsTheyAreReadInEachView) {
    LookAtEachView([this] {
        const auto placements = ShownPlacements(Page(), {0, 0, 800, 600});
        const Placement* last = nullptr;
        for (const Control* control : Page().Controls()) {
            const auto next =
                std::find_if(placements.begin(), placements.end(),
                             [&](const Placement& each) { return each.control == control; });
            if (next == placements.end()) continue;
            const bool leavesStrip = last != nullptr && last->control->Name() == "cmdAdvance";
            const Control* around = control->Around();
            const bool inColumns = around != nullptr && around->Name() == "fmURLPrefixes";
            if (last != nullptr) {
                const Rect& a = last->area;
                const Rect& b = next->area;
                const bool below = b.y >= a.y + a.height;
                const bool beside =
                    b.x >= a.x + a.width && (leavesStrip || inColumns || b.y >= a.y);
                EXPECT_TRUE(leavesStrip ? beside : below || beside)
                    << last->control->Name() << " " << control->Name();
            }
            last = &*next;
        }
    });
}

TEST_F(FrmIEControls, ShowsOneViewsControlsAtATime) {
    LookAtEachView([this] {
        EXPECT_EQ(Visible("fmIE").size(), 1u);
        EXPECT_EQ(Visible("fmIEAdvanced").size(), 1u);
        std::size_t lists = 0;
        for (const ListCase* list : AllLists) lists += ListOf(*list).Shown() ? 1 : 0;
        EXPECT_LE(lists, 1u);
    });
}

}  // namespace
}  // namespace velkarix
