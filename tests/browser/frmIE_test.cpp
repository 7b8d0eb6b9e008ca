// Which view of the browser page is shown, and when each is filled.
#include "browser/frmIE.h"

#include <algorithm>

#include "tests/browser/BrowserFrame.h"

namespace velkarix {
namespace {

using FrmIETest = BrowserFrame;

// ---- Switching

TEST_F(FrmIETest, BeginsWithTheFirstViewAndSubView) {
    Open();
    EXPECT_EQ(Visible("fmIE"), Indices{0});
    EXPECT_EQ(Visible("fmIEAdvanced"), Indices{0});
    EXPECT_TRUE(ViewButton(0).Pressed());
    EXPECT_EQ(Tabs().Selected(), 1);
    EXPECT_FALSE(Page().SwitchView(0));
    EXPECT_FALSE(Page().SwitchAdvancedView(0));
}

TEST_F(FrmIETest, SwitchesToAnotherView) {
    Open();
    EXPECT_TRUE(Page().SwitchView(6));
    EXPECT_EQ(Visible("fmIE"), Indices{6});
    EXPECT_FALSE(ViewButton(0).Pressed());
    EXPECT_TRUE(ViewButton(6).Pressed());
    EXPECT_FALSE(Page().SwitchView(6));
    EXPECT_EQ(Visible("fmIE"), Indices{6});
    EXPECT_TRUE(ViewButton(6).Pressed());
}

TEST_F(FrmIETest, SwitchesToAnotherSubView) {
    Open();
    EXPECT_TRUE(Page().SwitchAdvancedView(2));
    EXPECT_EQ(Visible("fmIEAdvanced"), Indices{2});
    EXPECT_FALSE(Page().SwitchAdvancedView(2));
    EXPECT_EQ(Visible("fmIEAdvanced"), Indices{2});
}

TEST_F(FrmIETest, ShowsTheViewOfTheButtonAndFocusesItsList) {
    Open();
    for (const std::size_t view : {1u, 2u, 3u, 4u, 5u, 6u, 7u, 0u}) {
        Forget();
        EXPECT_TRUE(Click(Views[view].button));
        EXPECT_EQ(Visible("fmIE"), Indices{view});
        const RowTexts focus = Views[view].list == nullptr
                                   ? RowTexts()
                                   : RowTexts{std::string("focus ") + Views[view].list};
        EXPECT_EQ(program.desktop.events, focus);
    }
}

TEST_F(FrmIETest, DoesNothingAtAllForTheButtonOfTheViewThatIsShown) {
    Open();
    for (std::size_t view = 0; view < std::size(Views); ++view) {
        Page().SwitchView(static_cast<std::int16_t>(view));
        Forget();
        EXPECT_TRUE(Click(Views[view].button));
        EXPECT_TRUE(program.desktop.events.empty());
        EXPECT_TRUE(Machine().Journal().Calls().empty());
        EXPECT_EQ(Visible("fmIE"), Indices{view});
    }
}

TEST_F(FrmIETest, ShowsTheSubViewOfTheTab) {
    Open();
    Click("cmdAdvance");
    Forget();
    for (const int tab : {4, 2, 2, 3, 1}) {
        Tabs().UserSelect(tab);
        EXPECT_EQ(Visible("fmIEAdvanced"), Indices{static_cast<std::size_t>(tab - 1)});
    }
    EXPECT_TRUE(Machine().Journal().Calls().empty());
    EXPECT_TRUE(program.desktop.events.empty());
}

TEST_F(FrmIETest, KeepsTheSubViewWhileAnotherViewIsShown) {
    Open();
    Tabs().UserSelect(3);
    Click("cmdBHO");
    Click("cmdAdvance");
    EXPECT_EQ(Visible("fmIEAdvanced"), Indices{2});
}

TEST_F(FrmIETest, GoesBackToTheFirstViewWhenItIsUnloaded) {
    Open();
    Click("cmdDomain");
    Page().Form_Unload();
    EXPECT_EQ(Visible("fmIE"), Indices{0});
    EXPECT_FALSE(Page().SwitchView(0));
}

TEST_F(FrmIETest, BeginsAnewWhenItIsEnteredAgain) {
    Open();
    Click("cmdDomain");
    program.Get<Button>("frmMain", "cmdOptions").Raise("Click");
    program.Get<Button>("frmMain", "cmdIE").Raise("Click");
    EXPECT_EQ(Visible("fmIE"), Indices{0});
}

// ---- Filling

// The keys that were opened, one after another; values of one key count as one.
RowTexts OpenedKeys(const CallJournal& journal) {
    RowTexts keys;
    for (const Call& call : journal.Calls()) {
        if (call.name.starts_with("RegOpenKey")) keys.push_back(call.arguments);
    }
    keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
    return keys;
}

TEST_F(FrmIETest, FillsEachViewButTheAddressesOnceWhenItIsCreated) {
    program.Start();
    Forget();
    program.Get<Button>("frmMain", "cmdIE").Raise("Click");
    const std::string machine = "HKLM\\";
    const std::string user = "HKCU\\";
    const std::string classes = "HKCR\\";
    const std::string settings =
        "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";
    EXPECT_EQ(OpenedKeys(Machine().Journal()), (RowTexts{machine + live::BHOs,
                                                         machine + held::BHOs,
                                                         machine + live::Toolbars,
                                                         user + live::UserToolbars,
                                                         user + held::Toolbars,
                                                         machine + held::Toolbars,
                                                         machine + live::Buttons,
                                                         user + live::Buttons,
                                                         machine + held::Buttons,
                                                         user + held::Buttons,
                                                         machine + live::Menus,
                                                         user + live::Menus,
                                                         user + held::Menus,
                                                         machine + held::Menus,
                                                         classes + live::Filters,
                                                         classes + live::Handlers,
                                                         classes + held::Filters,
                                                         classes + held::Handlers,
                                                         user + live::Domains,
                                                         user + held::Domains,
                                                         settings,
                                                         user + live::Hooks,
                                                         user + held::Hooks,
                                                         settings + "\\ZoneMap\\ProtocolDefaults",
                                                         settings + "\\Zones\\0"}));
}

TEST_F(FrmIETest, ShowsWhatItsListsFound) {
    PutClasses(Machine());
    for (const ListCase* list : AllLists) Put(*list, list->places[0], true, "A");
    Open();
    for (const ListCase* list : AllLists) EXPECT_EQ(ListOf(*list).RowCount(), 1u) << list->list;
}

// The addresses alone are read again.
TEST_F(FrmIETest, FillsNoListWhenItIsShown) {
    Open();
    for (std::size_t view = 0; view < std::size(Views); ++view) {
        Page().SwitchView(view == 0 ? 7 : 0);
        Forget();
        Click(Views[view].button);
        EXPECT_EQ(Machine().Journal().Calls().empty(), view != URLs) << Views[view].button;
    }
}

TEST_F(FrmIETest, IsFilledAgainWhenItIsEnteredAgain) {
    PutClasses(Machine());
    Open();
    program.Get<Button>("frmMain", "cmdOptions").Raise("Click");
    Put(BHOs, BHOs.places[0], true, "A");
    program.Get<Button>("frmMain", "cmdIE").Raise("Click");
    EXPECT_EQ(ListOf(BHOs).RowCount(), 1u);
}

TEST_F(FrmIETest, RefreshesTheListThatIsShownByItsKey) {
    PutClasses(Machine());
    Open();
    for (const ListCase* list : AllLists) Put(*list, list->places[0], true, "A");
    const std::pair<std::int16_t, const ListCase*> shown[] = {
        {0, &BHOs},      {1, &Toolbars}, {2, &Buttons}, {3, &Menus},
        {5, &Protocols}, {6, &Domains},  {7, &Hooks}};
    std::size_t filled = 0;
    for (const auto& [view, list] : shown) {
        Page().SwitchView(view);
        EXPECT_TRUE(Page().RaiseKey({Key::F5}));
        EXPECT_EQ(ListOf(*list).RowCount(), 1u) << list->list;
        ++filled;
        std::size_t rows = 0;
        for (const ListCase* each : AllLists) rows += ListOf(*each).RowCount();
        EXPECT_EQ(rows, filled);
    }
}

TEST_F(FrmIETest, RefreshesNothingWhereNoListIsShown) {
    Open();
    Page().SwitchView(URLs);
    Forget();
    EXPECT_FALSE(Page().RaiseKey({Key::F5}));
    Page().SwitchView(Advanced);
    Tabs().UserSelect(2);
    EXPECT_FALSE(Page().RaiseKey({Key::F5}));
    EXPECT_TRUE(Machine().Journal().Calls().empty());
}

TEST_F(FrmIETest, ReportsAndDeletesInTheListThatIsShownByTheirKeys) {
    PutClasses(Machine());
    for (const ListCase* list : AllLists) Put(*list, list->places[0], true, "A");
    Open();
    const std::pair<std::int16_t, const ListCase*> shown[] = {
        {0, &BHOs},      {1, &Toolbars}, {2, &Buttons}, {3, &Menus},
        {5, &Protocols}, {6, &Domains},  {7, &Hooks}};
    for (const auto& [view, list] : shown) {
        Page().SwitchView(view);
        ListView& rows = ListOf(*list);
        rows.Select(&rows.Row(0));
        program.desktop.saveRequests.clear();
        EXPECT_TRUE(Page().RaiseKey({Key::P, true}));
        EXPECT_EQ(program.desktop.saveRequests.size(), 1u) << list->list;
        EXPECT_FALSE(Page().RaiseKey({Key::Delete}));
        EXPECT_EQ(rows.RowCount(), 1u) << list->list;
        program.desktop.answers = {MessageAnswer::Yes};
        EXPECT_TRUE(Page().RaiseKey({Key::Delete}, &rows));
        EXPECT_EQ(rows.RowCount(), 0u) << list->list;
    }
}

}  // namespace
}  // namespace velkarix
