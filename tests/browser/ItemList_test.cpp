// What all lists of the browser page share in how they find their rows.
#include "browser/ItemList.h"

#include <algorithm>

#include "tests/browser/ScannedLists.h"

namespace velkarix {
namespace {

// How many rows there were whenever the columns were to be fitted.
struct FitWatcher : ControlView {
    explicit FitWatcher(ListView& listToWatch) : list(listToWatch) {}
    void Changed(Aspect aspect) override {
        if (aspect == Aspect::ColumnWidths) rowsWhenFitted.push_back(list.RowCount());
    }

    ListView& list;
    std::vector<std::size_t> rowsWhenFitted;
};

using ItemListTest = ScannedListPage;

// ---- Where the rows come from

TEST_P(ItemListTest, ShowsNothingAndSaysNothingWhereNoKeyIsThere) {
    Open();
    EXPECT_EQ(TheList().RowCount(), 0u);
    EXPECT_EQ(Messages(), RowTexts());
    EXPECT_EQ(Machine().registry.OpenKeyCount(), 0u);
}

TEST_P(ItemListTest, ShowsWhatIsHeldWhereNoLiveKeyIsThere) {
    PutHeld(ClassA);
    Open();
    EXPECT_EQ(Names(), RowTexts{ClassA});
    EXPECT_EQ(Column(TheCase().enabled), RowTexts{"False"});
}

TEST_P(ItemListTest, ShowsAnItemThatIsLiveAndHeldTwice) {
    PutLive(ClassA);
    PutHeld(ClassA);
    Open();
    EXPECT_EQ(Names(), (RowTexts{ClassA, ClassA}));
    EXPECT_EQ(Column(TheCase().enabled), (RowTexts{"True", "False"}));
}

TEST_P(ItemListTest, ShowsAllLiveItemsBeforeTheHeldOnesEachInTheOrderOfTheRegistry) {
    for (const char* name : {ClassB, ClassD}) PutLive(name);
    for (const char* name : {ClassA, ClassC}) PutHeld(name);
    Open();
    EXPECT_EQ(Names(), (RowTexts{ClassB, ClassD, ClassA, ClassC}));
    EXPECT_EQ(Column(TheCase().enabled), (RowTexts{"True", "True", "False", "False"}));
}

// Its row would stand for the key of all items, and a deletion would take them all away.
TEST_P(ItemListTest, PassesOverAnItemWhoseNameBeginsWithANul) {
    using namespace std::string_literals;
    PutLive("\0hidden"s);
    PutHeld("\0hidden"s);
    PutLive(ClassA);
    Open();
    EXPECT_EQ(Names(), RowTexts{ClassA});
}

TEST_P(ItemListTest, LooksForItemsInNoOtherHive) {
    RegisterClass(ClassA, "C:\\gone.dll");
    const auto isPlaceHive = [&](Hive hive) {
        return std::any_of(TheCase().places.begin(), TheCase().places.end(),
                           [&](const PlaceCase& place) { return place.hive == hive; });
    };
    for (const Hive hive : {Hive::LocalMachine, Hive::CurrentUser, Hive::ClassesRoot}) {
        if (isPlaceHive(hive)) continue;
        for (const PlaceCase& place : TheCase().places) {
            PutNamed(hive, place.live, ClassA, ClassA);
            PutNamed(hive, place.held, ClassA, ClassA);
        }
    }
    Open();
    EXPECT_EQ(Names(), RowTexts());
}

TEST_P(ItemListTest, ShowsWhatCameSinceWhenRefreshed) {
    Open();
    PutLive(ClassA);
    EXPECT_EQ(Names(), RowTexts());
    Refresh();
    EXPECT_EQ(Names(), RowTexts{ClassA});
}

TEST_P(ItemListTest, DropsTicksAndSelectionWhenRefreshed) {
    PutLive(ClassA);
    Open();
    Tick(TheCase().list, 0);
    TheList().UserSelect(&Row(0));
    Refresh();
    EXPECT_FALSE(Row(0).Checked());
    EXPECT_EQ(TheList().SelectedRow(), nullptr);
}

TEST_P(ItemListTest, ChecksAndSelectsNothingByItself) {
    PutLive(ClassA);
    Open();
    EXPECT_TRUE(TheList().CheckBoxes());
    EXPECT_FALSE(Row(0).Checked());
    EXPECT_EQ(TheList().SelectedRow(), nullptr);
}

TEST_P(ItemListTest, DropsTheSortWhenRefreshed) {
    for (const char* name : {ClassA, ClassB}) PutLive(name);
    Open();
    TheList().UserColumnClick(1);
    EXPECT_EQ(Names(), (RowTexts{ClassB, ClassA}));
    Refresh();
    EXPECT_EQ(Names(), (RowTexts{ClassA, ClassB}));
    TheList().UserColumnClick(1);
    EXPECT_EQ(Names(), (RowTexts{ClassB, ClassA}));
}

TEST_P(ItemListTest, FitsItsColumnsAfterTheRowsAreThere) {
    PutLive(ClassA);
    Open();
    FitWatcher watcher(TheList());
    TheList().AttachView(&watcher);
    Refresh();
    TheList().AttachView(nullptr);
    EXPECT_EQ(watcher.rowsWhenFitted, std::vector<std::size_t>{1});
}

// ---- Marks

TEST_P(ItemListTest, GreysTheHeldAndLeavesTheLiveUncoloured) {
    PutLive(ClassA);
    PutHeld(ClassB);
    Open();
    EXPECT_EQ(Row(0).TextColor(), std::nullopt);
    EXPECT_EQ(Row(1).TextColor(), DisabledColor);
    EXPECT_FALSE(Row(0).Bold());
    EXPECT_FALSE(Row(1).Bold());
}

TEST_P(ItemListTest, TakesTheColourOfTheHeldFromTheSettings) {
    program.AddInstalledFile("Settings.ini").Content("[Main]\r\nDisColor=4660\r\n");
    PutHeld(ClassA);
    Open();
    EXPECT_EQ(Row(0).TextColor(), Color{4660});
}

// ---- Names as the field has them

TEST_P(ItemListTest, TakesNamesOfAnyBytesAsTheyAre) {
    const std::string names[] = {"{&Save && Send", "{blanks  and, commas}",
                                 "{Caf\xE9 \xC4\xD6\xDC\x80\xFF"};
    for (const std::string& name : names) {
        PutLive(name);
    }
    Open();
    EXPECT_EQ(Names(), RowTexts(std::begin(names), std::end(names)));
    for (const std::string& name : names) {
        EXPECT_EQ(RowNamed(TheCase().list, TheCase().textPrefix + name)->Key(), name);
    }
}

// A longer name ends the listing: what stands behind it isn't seen.
TEST_P(ItemListTest, ListsNamesUpToTheLengthThatTheListingTakes) {
    const std::size_t longest = TheCase().values ? 259 : 254;
    RegisterClass(ClassA, "C:\\gone.dll");
    std::string names[] = {"{a", "{b", "{c", "{d"};
    names[1].append(longest - 2, 'b');
    names[2].append(longest - 1, 'c');
    for (const std::string& name : names) {
        PutNamed(Place().hive, Place().live, name, ClassA);
    }
    Open();
    // Also where the path of the key of such a name is longer than a call takes.
    EXPECT_EQ(Names(), (RowTexts{names[0], names[1]}));
    const RowTexts unread = program.application.unread.Names();
    const auto countUnread = [&unread](const std::string& key) {
        return std::count_if(unread.begin(), unread.end(), [&key](const std::string& place) {
            return place.ends_with("\\" + key);
        });
    };
    EXPECT_EQ(countUnread(Place().live), 1);  // its listing
    EXPECT_EQ(countUnread(LiveKey(names[1])), 0);
    EXPECT_EQ(Messages(), RowTexts());
}

// ---- What can't be read

TEST_P(ItemListTest, ShowsNothingOfAKeyThatMayNotBeRead) {
    PutLive(ClassA);
    PutHeld(ClassB);
    Machine().registry.Restrict(Place().hive, Place().live, std::nullopt);
    Open();
    EXPECT_EQ(Names(), RowTexts{ClassB});
    EXPECT_EQ(Messages(), RowTexts());
}

TEST_P(ItemListTest, ShowsNothingAndSaysNothingWhenNoKeyMayBeOpened) {
    PutLive(ClassA);
    Open();
    Machine().FailAlways("RegOpenKeyA");
    Machine().FailAlways("RegOpenKeyExA");
    Refresh();
    EXPECT_EQ(Names(), RowTexts());
    EXPECT_EQ(Messages(), RowTexts());
}

INSTANTIATE_TEST_SUITE_P(, ItemListTest,
                         testing::Values(BHOScan, ToolbarScan, ButtonScan, MenuScan, ProtocolScan,
                                         DomainScan, HookScan),
                         ScanName);

}  // namespace
}  // namespace velkarix
