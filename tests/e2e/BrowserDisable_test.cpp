// Disabling items of the browser and enabling them again: they move whole, and nothing else does.
#include "BrowserRows.h"
#include "BrowserTest.h"
#include "Input.h"
#include "Screen.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class BrowserDisable : public BrowserItemTest {};

class EverySystemBrowserDisable : public BrowserTest {
  protected:
    // The helper object that the definition lists know.
    const SampleItem& suspect_ = SampleItems.front();
    const std::optional<RegistryTree> whole_ = ReadItem(suspect_, true);

    void ExpectDisabled() {
        EXPECT_EQ(ReadItem(suspect_, false), whole_);
        EXPECT_FALSE(ReadItem(suspect_, true));
        EXPECT_FALSE(IsListed(suspect_, true));
        EXPECT_EQ(ColorOfRow(RowOfItem(suspect_, false)), ColorOf(Mark::SuspiciousAndDisabled));
    }
    void ExpectEnabled() {
        EXPECT_EQ(ReadPlaces(), PlacesBefore());
        EXPECT_FALSE(IsListed(suspect_, false));
        EXPECT_EQ(ColorOfRow(RowOfItem(suspect_, true)), ColorOf(Mark::Suspicious));
    }
    COLORREF ColorOfRow(int row) {
        SelectRow(Running().List("lstvBHO"), 0);
        const RECT area = Running().List("lstvBHO").LabelArea(row);
        WaitUntil([&] { return TextColor(area) != GetSysColor(COLOR_WINDOWTEXT); }, 2000);
        return TextColor(area);
    }
    // Presses the arrow until the row is selected that the list has at that place.
    void MoveTo(int row, WORD arrow) {
        const ListWindow list = Running().List("lstvBHO");
        for (int i = 0; i < list.RowCount() && list.Selected() != row; ++i) {
            const std::optional<int> before = list.Selected();
            PressKey(arrow);
            WaitUntil([&] { return list.Selected() != before; }, 2000);
        }
        ASSERT_EQ(list.Selected(), row);
    }
    void TickBySpace(int row) {
        PressKey(VK_SPACE);
        ASSERT_TRUE(WaitUntil([&] { return Running().List("lstvBHO").Checked(row); }));
    }
};

TEST_P(BrowserDisable, ADisabledItemMovesWholeAndComesBackWhole) {
    const std::optional<RegistryTree> whole = ReadItem(Item(), true);
    ASSERT_TRUE(whole);
    ASSERT_FALSE(ReadItem(Item(), false));
    OpenBrowser();
    Show(Item().list);
    TickItem(Item(), true);
    ASSERT_TRUE(Running().Press(Item().list.disable));
    EXPECT_EQ(ReadItem(Item(), false), whole);
    EXPECT_FALSE(ReadItem(Item(), true));
    EXPECT_FALSE(IsListed(Item(), true));

    TickItem(Item(), false);
    ASSERT_TRUE(Running().Press(Item().list.enable));
    EXPECT_EQ(ReadPlaces(), PlacesBefore());
    EXPECT_FALSE(IsListed(Item(), false));
    EXPECT_TRUE(IsListed(Item(), true));
}

INSTANTIATE_TEST_SUITE_P(Each, BrowserDisable, testing::ValuesIn(SampleItems), TitleOf);

TEST_F(EverySystemBrowserDisable, ASuspectIsDisabledAndEnabledByMouse) {
    OpenBrowser();
    TickItem(suspect_, true);
    ClickAt(Inside(Running().Control("cmdDisableBHO").Area()));
    ASSERT_TRUE(WaitUntil([this] { return IsListed(suspect_, false); }));
    ExpectDisabled();

    TickItem(suspect_, false);
    ClickAt(Inside(Running().Control("cmdEnableBHO").Area()));
    ASSERT_TRUE(WaitUntil([this] { return IsListed(suspect_, true); }));
    ExpectEnabled();
}

TEST_F(EverySystemBrowserDisable, ASuspectIsDisabledAndEnabledByTheKeyboardAlone) {
    Start();
    ASSERT_TRUE(BringToFront(Running().Main()));
    PressKey('2', {VK_CONTROL});
    ASSERT_TRUE(WaitUntil([this] { return Running().Focus() == "lstvBHO"; }));
    MoveTo(RowOfItem(suspect_, true), VK_DOWN);
    TickBySpace(RowOfItem(suspect_, true));
    ASSERT_TRUE(TabTo("cmdDisableBHO"));
    PressKey(VK_RETURN);
    ASSERT_TRUE(WaitUntil([this] { return IsListed(suspect_, false); }));
    EXPECT_EQ(ReadItem(suspect_, false), whole_);
    EXPECT_FALSE(ReadItem(suspect_, true));

    ASSERT_TRUE(TabTo("lstvBHO"));
    PressKey(VK_END);
    MoveTo(RowOfItem(suspect_, false), VK_UP);
    TickBySpace(RowOfItem(suspect_, false));
    ASSERT_TRUE(TabTo("cmdEnableBHO"));
    PressKey(VK_SPACE);
    ASSERT_TRUE(WaitUntil([this] { return IsListed(suspect_, true); }));
    ExpectEnabled();
}

class BrowserDisableOnly : public BrowserTest {
  protected:
    static std::vector<std::string> Keys(const char* holder) {
        std::vector<std::string> names;
        const std::optional<RegistryTree> tree = ReadTree(HKEY_LOCAL_MACHINE, holder);
        if (!tree) return names;
        for (const auto& [name, below] : tree->keys) names.push_back(name);
        return names;
    }
    static constexpr const char* Held = "Software\\Velkarix\\Disabled\\BHO";
    static constexpr const char* WebBrowser =
        "Software\\Microsoft\\Internet Explorer\\Toolbar\\WebBrowser";
};

TEST_F(BrowserDisableOnly, WithoutATickTheCommandsChangeNothing) {
    OpenBrowser();
    for (const BrowserList* each : BrowserLists) {
        const ListWindow list = Show(*each);
        const std::vector<RowTexts> rows = list.Rows();
        SelectRow(list, 0);
        ASSERT_TRUE(Running().Press(each->disable));
        ASSERT_TRUE(Running().Press(each->enable));
        EXPECT_EQ(list.Rows(), rows);
    }
    EXPECT_EQ(ReadPlaces(), PlacesBefore());
}

TEST_F(BrowserDisableOnly, EachCommandTakesItsOwnKindOfTickedRows) {
    OpenBrowser();
    const ListWindow list = Show(BHOs);
    const std::vector<RowTexts> rows = list.Rows();
    const int last = list.RowCount() - 1;
    for (const int row : {0, 1, last}) Tick(list, row);
    ASSERT_TRUE(Running().Press("cmdDisableBHO"));
    EXPECT_EQ(Keys(Held), (std::vector<std::string>{Clsid("0B100001"), Clsid("0B100002"),
                                                    Clsid("0B100011"), Clsid("0B100012")}));
    for (int row = 0; row <= last; ++row) EXPECT_FALSE(list.Checked(row)) << row;

    // Two live rows and a disabled one: the first is live now, the last one held since the start.
    for (const int row : {0, 1, last}) Tick(list, row);
    ASSERT_TRUE(Running().Press("cmdEnableBHO"));
    EXPECT_EQ(Keys(Held),
              (std::vector<std::string>{Clsid("0B100001"), Clsid("0B100002"), Clsid("0B100011")}));
}

TEST_F(BrowserDisableOnly, ALiveToolbarValueOfOneByteComesBackAsAZero) {
    const RegistryValue one{REG_BINARY, {1}};
    const RegistryValue zero{REG_BINARY, {0}};
    const std::string name = Clsid("7B000004");
    WriteValue(HKEY_CURRENT_USER, WebBrowser, name, one);
    const SampleItem item = {"",
                             Toolbars,
                             name,
                             "Current User",
                             HKEY_CURRENT_USER,
                             WebBrowser,
                             "Software\\Velkarix\\Disabled\\Toolbar",
                             name};
    OpenBrowser();
    Show(Toolbars);
    TickItem(item, true);
    ASSERT_TRUE(Running().Press("cmdToolbarDisable"));
    TickItem(item, false);
    ASSERT_TRUE(Running().Press("cmdToolbarEnable"));
    EXPECT_EQ(ReadValue(HKEY_CURRENT_USER, WebBrowser, name), zero);
    EXPECT_FALSE(ReadItem(item, false));
}

TEST_F(BrowserDisableOnly, AllDomainsAreTickedAndUntickedAtOnce) {
    OpenBrowser();
    const ListWindow list = Show(Domains);
    const auto ticked = [&] {
        int count = 0;
        for (int row = 0; row < list.RowCount(); ++row) count += list.Checked(row) ? 1 : 0;
        return count;
    };
    Tick(list, 2);
    ASSERT_TRUE(Running().Press("cmdDomainCheckAll"));
    EXPECT_EQ(ticked(), list.RowCount());
    ASSERT_TRUE(Running().Press("cmdDomainUncheckAll"));
    EXPECT_EQ(ticked(), 0);
}

TEST_F(BrowserDisableOnly, WhatIsDisabledIsStillSoAtTheNextStart) {
    OpenBrowser();
    for (const SampleItem& item : SampleItems) {
        Show(item.list);
        TickItem(item, true);
        ASSERT_TRUE(Running().Press(item.list.disable));
    }
    ASSERT_EQ(Running().Close(), 0u);
    OpenBrowser();
    for (const SampleItem& item : SampleItems) {
        EXPECT_TRUE(IsListed(item, false)) << item;
        EXPECT_FALSE(IsListed(item, true)) << item;
    }
}

}  // namespace
}  // namespace velkarix::e2e
