#include "forms/Layout.h"

#include <gtest/gtest.h>

#include <map>

#include "forms/Controls.h"

namespace velkarix {
namespace {

// Sizes as a test says them; a gap of 5, groups with 10 around and 20 above.
class TestMetrics : public LayoutMetrics {
  public:
    Size PreferredSize(Control& control) override { return sizes[&control]; }
    Insets GroupInsets(Control&) override { return {10, 20, 10, 10}; }
    int Gap() override { return 5; }
    std::map<const Control*, Size> sizes;
};

class LayoutTest : public testing::Test {
  protected:
    LayoutTest() {
        metrics.sizes[&a] = {30, 20};
        metrics.sizes[&b] = {50, 10};
        metrics.sizes[&c] = {10, 10};
    }
    std::map<const Control*, Rect> Places(const Layout& layout, const Rect& area) {
        std::map<const Control*, Rect> places;
        for (const Placement& each : Arrange(layout, area, metrics)) {
            places[each.control] = each.area;
        }
        return places;
    }

    TestMetrics metrics;
    Label a{"lblA", "A"};
    Label b{"lblB", "B"};
    Label c{"lblC", "C"};
    Frame frame{"fmTest", "Test"};
};

TEST_F(LayoutTest, ARowIsAsWideAsAllAndAsHighAsTheHighest) {
    EXPECT_EQ(MinimumSize(Row({Item(a), Item(b)}), metrics), (Size{85, 20}));
    EXPECT_EQ(MinimumSize(Column({Item(a), Item(b)}), metrics), (Size{50, 35}));
}

TEST_F(LayoutTest, ARowGivesSpareRoomToThoseThatStretch) {
    auto places = Places(Row({Item(a), Item(b, 1)}), {0, 0, 200, 20});
    EXPECT_EQ(places[&a], (Rect{0, 0, 30, 20}));
    EXPECT_EQ(places[&b], (Rect{35, 0, 165, 20}));
}

TEST_F(LayoutTest, SharesAreInTheProportionOfTheStretchAndLeaveNothingOver) {
    auto places = Places(Column({Item(a, 1), Item(b, 2)}), {0, 0, 50, 135});
    EXPECT_EQ(places[&a], (Rect{0, 0, 50, 53}));
    EXPECT_EQ(places[&b], (Rect{0, 58, 50, 77}));
}

TEST_F(LayoutTest, AnItemThatDoesNotStretchStandsInTheMiddleOfItsRow) {
    auto places = Places(Row({Item(a), Item(b)}), {0, 100, 200, 20});
    EXPECT_EQ(places[&b], (Rect{35, 105, 50, 10}));
}

TEST_F(LayoutTest, ASpacePushesItsNeighboursApart) {
    auto places = Places(Row({Item(a), Space(), Item(b)}), {0, 0, 200, 20});
    EXPECT_EQ(places[&b].x, 150);
}

TEST_F(LayoutTest, AUniformRowMakesAllAsWideAsTheWidest) {
    const Layout row = UniformRow({Item(a), Item(b)});
    EXPECT_EQ(MinimumSize(row, metrics), (Size{105, 20}));
    auto places = Places(row, {0, 0, 105, 20});
    EXPECT_EQ(places[&a].width, 50);
    EXPECT_EQ(places[&b].x, 55);
}

TEST_F(LayoutTest, AUniformColumnMakesAllAsHighAsTheHighest) {
    EXPECT_EQ(MinimumSize(UniformColumn({Item(a), Item(b)}), metrics), (Size{50, 45}));
}

TEST_F(LayoutTest, AGridLinesUpItsColumnsAndWidensTheLast) {
    const Layout grid = Grid(2, {Item(c), Item(a), Item(b), Item(c)});
    EXPECT_EQ(MinimumSize(grid, metrics), (Size{85, 35}));
    auto places = Places(Grid(2, {Item(a), Item(b), Item(c), Item(frame)}), {7, 3, 200, 100});
    EXPECT_EQ(places[&a], (Rect{7, 3, 30, 20}));
    EXPECT_EQ(places[&b], (Rect{42, 8, 165, 10}));
    EXPECT_EQ(places[&c].y, 28);
    EXPECT_EQ(places[&c].x, 7);
}

TEST_F(LayoutTest, AGroupStandsAroundItsChildAndBeforeItInTheList) {
    const Layout group = Group(frame, Item(a, 1));
    EXPECT_EQ(MinimumSize(group, metrics), (Size{50, 50}));
    const auto placements = Arrange(group, {0, 0, 100, 100}, metrics);
    ASSERT_EQ(placements.size(), 2u);
    EXPECT_EQ(placements[0].control, &frame);
    EXPECT_EQ(placements[1].area, (Rect{10, 20, 80, 70}));
}

TEST_F(LayoutTest, AStackIsAsLargeAsTheLargestInEachDirection) {
    EXPECT_EQ(MinimumSize(Stack({Item(a), Item(b)}), metrics), (Size{50, 20}));
    EXPECT_EQ(MinimumSize(Stack({}), metrics), (Size{0, 0}));
}

TEST_F(LayoutTest, AStackGivesItsWholePlaceToEachOfItsChildren) {
    auto places = Places(Stack({Group(frame, Item(a, 1)), Item(b, 1)}), {5, 6, 100, 80});
    EXPECT_EQ(places[&frame], (Rect{5, 6, 100, 80}));
    EXPECT_EQ(places[&a], (Rect{15, 26, 80, 50}));
    EXPECT_EQ(places[&b], (Rect{5, 6, 100, 80}));
}

TEST_F(LayoutTest, AGroupIsAsWideAsItsCaptionAtLeast) {
    metrics.sizes[&frame] = {90, 15};
    EXPECT_EQ(MinimumSize(Group(frame, Item(a)), metrics), (Size{90, 50}));
    metrics.sizes[&frame] = {40, 15};
    EXPECT_EQ(MinimumSize(Group(frame, Item(a)), metrics), (Size{50, 50}));
}

TEST_F(LayoutTest, WhatAStackDoesNotShowNeedsNoRoom) {
    const Layout whole = Row({Item(c), Stack({Group(frame, Item(a)), Item(b)})});
    frame.SetVisible(false);
    EXPECT_EQ(MinimumSize(OnView(whole), metrics), (Size{65, 10}));
    frame.SetVisible(true);
    b.SetVisible(false);
    EXPECT_EQ(MinimumSize(OnView(whole), metrics), (Size{65, 50}));
}

TEST_F(LayoutTest, BesideAStackWhatIsHiddenKeepsItsPlace) {
    const Layout whole = Row({Item(a), Item(b)});
    b.SetVisible(false);
    EXPECT_EQ(MinimumSize(OnView(whole), metrics), MinimumSize(whole, metrics));
}

TEST_F(LayoutTest, AStackTakesItsShareOfSpareRoom) {
    auto places = Places(Column({Item(a), Stack({Item(b, 1)}, 1)}), {0, 0, 50, 100});
    EXPECT_EQ(places[&b], (Rect{0, 25, 50, 75}));
}

TEST_F(LayoutTest, MissingRoomIsTakenFromThoseThatStretch) {
    auto places = Places(Row({Item(a), Item(b, 1), Item(c)}), {0, 0, 60, 20});
    EXPECT_EQ(places[&a].width, 30);
    EXPECT_EQ(places[&b], (Rect{35, 0, 10, 20}));
    EXPECT_EQ(places[&c], (Rect{50, 5, 10, 10}));
}

TEST_F(LayoutTest, MissingRoomIsTakenFromAllInProportionWhereNoneStretches) {
    auto places = Places(Row({Item(a), Item(b), Item(c)}), {0, 0, 70, 20});
    EXPECT_EQ(places[&a].width, 20);
    EXPECT_EQ(places[&b], (Rect{25, 5, 34, 10}));
    EXPECT_EQ(places[&c], (Rect{64, 5, 6, 10}));
}

TEST_F(LayoutTest, WhatStretchesGivesAllItHasBeforeTheOthersGive) {
    auto places = Places(Column({Item(a), Item(b, 1)}), {0, 0, 50, 20});
    EXPECT_EQ(places[&a], (Rect{0, 0, 50, 15}));
    EXPECT_EQ(places[&b], (Rect{0, 20, 50, 0}));
}

TEST_F(LayoutTest, AGridTakesMissingRoomFromTheColumnsThatStretch) {
    auto places = Places(Grid(2, {Item(a), Item(b, 1)}), {0, 0, 60, 20});
    EXPECT_EQ(places[&a].width, 30);
    EXPECT_EQ(places[&b], (Rect{35, 0, 25, 20}));
    places = Places(Grid(2, {Item(a), Item(b)}), {0, 0, 45, 20});
    EXPECT_EQ(places[&a].width, 15);
    EXPECT_EQ(places[&b], (Rect{20, 5, 25, 10}));
}

TEST_F(LayoutTest, TooLittleRoomNeverMakesANegativeSize) {
    for (const Placement& each :
         Arrange(Group(frame, Row({Item(a, 1), Item(b)})), {0, 0, 10, 10}, metrics)) {
        EXPECT_GE(each.area.width, 0);
        EXPECT_GE(each.area.height, 0);
    }
}

TEST_F(LayoutTest, AnEmptyRowTakesNoRoom) {
    EXPECT_EQ(MinimumSize(Row({}), metrics), (Size{0, 0}));
    EXPECT_TRUE(Arrange(Row({}), {0, 0, 10, 10}, metrics).empty());
}

TEST_F(LayoutTest, AHiddenDrawerTakesNoRoomAndNoGap) {
    Panel drawer("picDrawer", "", Panel::Look::Drawer);
    const Layout column = Column({Group(drawer, Row({Item(b)})), Item(a, 1), Item(c)});
    EXPECT_EQ(MinimumSize(column, metrics), (Size{70, 80}));
    auto places = Places(column, {0, 0, 100, 200});
    EXPECT_EQ(places[&drawer], (Rect{0, 0, 100, 40}));
    EXPECT_EQ(places[&a], (Rect{0, 45, 100, 140}));
    drawer.SetVisible(false);
    EXPECT_EQ(MinimumSize(column, metrics), (Size{30, 35}));
    places = Places(column, {0, 0, 100, 200});
    EXPECT_EQ(places[&drawer].height, 0);
    EXPECT_EQ(places[&a], (Rect{0, 0, 100, 185}));
    EXPECT_EQ(places[&c], (Rect{0, 190, 100, 10}));
}

TEST_F(LayoutTest, AnyOtherHiddenGroupKeepsItsPlace) {
    const Layout column = Column({Group(frame, Row({Item(b)})), Item(a)});
    frame.SetVisible(false);
    EXPECT_EQ(MinimumSize(column, metrics), (Size{70, 65}));
}

}  // namespace
}  // namespace velkarix
