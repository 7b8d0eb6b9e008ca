#include "browser/SecurityZoneView.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "ViewTest.h"

namespace velkarix {
namespace {

struct Setting {
    const char* value;
    const char* key;
    const char* text;
};

constexpr Setting Wanted[] = {
    {"1001", "BAAB", "Download signed ActiveX controls"},
    {"1004", "BAAE", "Download unsigned ActiveX controls"},
    {"1200", "BCAA", "Run ActiveX controls and plugins"},
    {"1201", "BCAB", "Initialize, script ActiveX controls not marked safe"},
    {"1405", "BEAF", "Script ActiveX controls marked safe for scripting"},
    {"1804", "BIAE", "Launch applications and files in an IFRAME"},
    {"1803", "BIAD", "File Downloading"},
    {"1604", "BGAE", "Font Downloading"},
    {"1601", "BGAB", "Submit non-encrypted form data"},
    {"1806", "BIAG", "Launch Applications and unsafe files"},
    {"1809", "BIAJ", "Use Popup Blocker"},
};

class SecurityZoneViewTest : public ViewTest<SecurityZoneView> {
  protected:
    static std::string Key(int zone) {
        return "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Zones\\" +
               std::to_string(zone);
    }
    void Store(int zone, const char* value, std::uint32_t data) {
        program.machine.SetDword(Hive::CurrentUser, Key(zone), value, data);
    }
    // All eleven settings of the zone hold `data`.
    void Fill(int zone, std::uint32_t data) {
        for (const Setting& setting : Wanted) Store(zone, setting.value, data);
    }
    std::optional<MemoryValue> ValueOf(int zone, const char* value) {
        return program.machine.registry.ValueAt(Hive::CurrentUser, Key(zone), value);
    }
    ListView& List() { return Get<ListView>("lstvSecurityZone"); }
    ComboBox& Combo() { return Get<ComboBox>("cmbSecurityZone"); }
    TabStrip& Tabs() { return Get<TabStrip>("tbSecurityZone"); }
    std::vector<std::string> Statuses() {
        std::vector<std::string> statuses;
        for (std::size_t i = 0; i < List().RowCount(); ++i) {
            statuses.push_back(List().Row(i).Text(1));
        }
        return statuses;
    }
    void Select(std::size_t row) { List().UserSelect(&List().Row(row)); }
    bool ApplyAndSay(MessageAnswer answer) {
        program.desktop.answers = {answer};
        program.machine.Journal().Clear();
        return Click("cmdSecurityZoneApply");
    }
};

TEST_F(SecurityZoneViewTest, ShowsItsControlsInTabOrder) {
    EXPECT_EQ(TabOrder(),
              (std::vector<std::string>{"tbSecurityZone", "lstvSecurityZone", "txtSecurityZone",
                                        "cmbSecurityZone", "cmdSecurityZoneApply"}));
    EXPECT_EQ(Tabs().Captions(),
              (std::vector<std::string>{"My Computer", "Local Intranet", "Trusted Sites",
                                        "Internet", "Restricted Sites"}));
    EXPECT_EQ(Tabs().Selected(), 1);
    EXPECT_EQ(List().Columns(), (std::vector<std::string>{"Property", "Status"}));
    EXPECT_FALSE(List().CheckBoxes());
    EXPECT_EQ(Combo().Entries(),
              (std::vector<std::string>{"Enabled", "Prompt", "Disabled", "Unknown!"}));
    EXPECT_FALSE(IsEnabled("cmdSecurityZoneApply"));
    ExpectEachControlPlacedOnce();
}

TEST_F(SecurityZoneViewTest, StandsInsideItsTabs) {
    Tabs().SetVisible(false);
    for (const char* control :
         {"lstvSecurityZone", "txtSecurityZone", "cmbSecurityZone", "cmdSecurityZoneApply"}) {
        EXPECT_FALSE(page.Find(control)->Shown()) << control;
    }
}

TEST_F(SecurityZoneViewTest, NamesWhatASettingStandsAt) {
    EXPECT_EQ(SecurityZoneView::ZoneStatusText(0), "Enabled");
    EXPECT_EQ(SecurityZoneView::ZoneStatusText(1), "Prompt");
    EXPECT_EQ(SecurityZoneView::ZoneStatusText(3), "Disabled");
    for (const std::int32_t value : {2, 4, 5, -1, 65536, 0x7FFFFFFF}) {
        EXPECT_EQ(SecurityZoneView::ZoneStatusText(value), "Unknown") << value;
    }
}

TEST_F(SecurityZoneViewTest, ListsTheElevenSettingsInOrder) {
    Fill(0, 3);
    Store(0, "1004", 1);
    Store(0, "1804", 0);
    Store(0, "1809", 2);
    view.loadSecurityZone(0);
    ASSERT_EQ(List().RowCount(), std::size(Wanted));
    std::vector<std::string> reads;
    for (std::size_t i = 0; i < std::size(Wanted); ++i) {
        EXPECT_EQ(List().Row(i).Text(0), Wanted[i].text);
        EXPECT_EQ(List().Row(i).Key(), Wanted[i].key);
        reads.push_back("HKCU\\" + Key(0) + ", " + Wanted[i].value);
    }
    EXPECT_EQ(program.machine.Journal().ArgumentsOf("RegQueryValueExA"), reads);
    EXPECT_EQ(Statuses(), (std::vector<std::string>{"Disabled", "Prompt", "Disabled", "Disabled",
                                                    "Disabled", "Enabled", "Disabled", "Disabled",
                                                    "Disabled", "Disabled", "Unknown"}));
    EXPECT_EQ(List().SelectedRow(), &List().Row(0));
    EXPECT_EQ(Value("txtSecurityZone"), Wanted[0].text);
    EXPECT_EQ(Combo().SelectedText(), "Disabled");
    EXPECT_EQ(program.desktop.events, std::vector<std::string>{"focus lstvSecurityZone"});
}

TEST_F(SecurityZoneViewTest, ShowsNothingFromTheFirstMissingSettingOn) {
    Fill(0, 3);
    for (std::size_t gone = 0; gone < std::size(Wanted); ++gone) {
        program.machine.registry.RemoveKey(Hive::CurrentUser, Key(0));
        for (const Setting& setting : Wanted) {
            if (setting.value != Wanted[gone].value) Store(0, setting.value, 1);
        }
        view.loadSecurityZone(0);
        EXPECT_EQ(Statuses(), std::vector<std::string>(gone, "Prompt")) << Wanted[gone].value;
    }
}

TEST_F(SecurityZoneViewTest, ShowsAllAsEnabledWhereTheZoneCanNotBeOpened) {
    view.loadSecurityZone(2);
    EXPECT_EQ(Statuses(), std::vector<std::string>(11, "Enabled"));
    Fill(2, 3);
    program.machine.registry.Restrict(Hive::CurrentUser, Key(2), std::nullopt);
    view.loadSecurityZone(2);
    EXPECT_EQ(Statuses(), std::vector<std::string>(11, "Enabled"));
    EXPECT_EQ(Told(), std::vector<std::string>());
}

TEST_F(SecurityZoneViewTest, ReadsValuesOfOtherTypesAndSizes) {
    const auto raw = [this](const char* value, std::uint32_t type, Bytes data) {
        program.machine.registry.SetRaw(Hive::CurrentUser, Key(0), value, type, std::move(data));
    };
    Fill(0, 3);
    raw("1001", registryType::Binary, {1});
    raw("1004", registryType::Binary, {3, 0, 0, 0});
    raw("1200", registryType::Dword, {});
    raw("1201", registryType::Sz, {'3', 0});
    // More than the four bytes that are read: it can't be read as a number.
    raw("1405", registryType::Qword, {3, 0, 0, 0, 0, 0, 0, 0});
    view.loadSecurityZone(0);
    EXPECT_EQ(Statuses(), (std::vector<std::string>{"Prompt", "Disabled", "Enabled", "Unknown"}));
}

TEST_F(SecurityZoneViewTest, KeepsBoxAndChoiceWhereAZoneHasNothingToShow) {
    Fill(0, 1);
    view.loadSecurityZone(0);
    Combo().UserSelect(2);
    program.machine.AddKey(Hive::CurrentUser, Key(1));
    Tabs().UserSelect(2);
    EXPECT_EQ(List().RowCount(), 0u);
    EXPECT_EQ(Value("txtSecurityZone"), Wanted[0].text);
    EXPECT_EQ(Combo().SelectedText(), "Disabled");
    page.Run("cmdSecurityZoneApply_Click");
    EXPECT_EQ(Told(), std::vector<std::string>());
    EXPECT_EQ(Changes(), std::vector<std::string>());
    Combo().UserSelect(1);
    EXPECT_FALSE(IsEnabled("cmdSecurityZoneApply"));
}

TEST_F(SecurityZoneViewTest, LoadsTheZoneOfTheTab) {
    for (int zone = 0; zone < 5; ++zone) Fill(zone, zone % 2 == 0 ? 1 : 3);
    Store(3, "1001", 0);
    for (int zone = 4; zone >= 0; --zone) {
        Tabs().UserSelect(zone + 1);
        EXPECT_EQ(List().Row(1).Text(1), zone % 2 == 0 ? "Prompt" : "Disabled") << zone;
        EXPECT_EQ(List().Row(0).Text(1) == "Enabled", zone == 3);
        EXPECT_EQ(List().RowCount(), 11u);
    }
}

TEST_F(SecurityZoneViewTest, WritesTheStatusIntoTheZoneOfTheTab) {
    for (int zone = 0; zone < 5; ++zone) Fill(zone, 0);
    Tabs().UserSelect(4);
    Select(6);
    Combo().UserSelect(2);
    EXPECT_TRUE(ApplyAndSay(MessageAnswer::Yes));
    EXPECT_EQ(Told().size(), 1u);
    ExpectTold("Are you sure you want to change the status of: \r\n\r\nFile Downloading?",
               MessageIcon::Question, MessageButtons::YesNo);
    EXPECT_EQ(Changes(), std::vector<std::string>{"RegSetValueExA HKCU\\" + Key(3) + ", 1803"});
    EXPECT_EQ(ValueOf(3, "1803"), (MemoryValue{"1803", registryType::Dword, {3, 0, 0, 0}}));
    EXPECT_EQ(List().Row(6).Text(1), "Disabled");
    EXPECT_TRUE(IsEnabled("cmdSecurityZoneApply"));
    // That it stands there is all that is read again.
    EXPECT_EQ(program.machine.Journal().CountOf("RegQueryValueExA"), 1u);
}

// As a full report leaves the list: the rows are another zone's, the tab is still the user's.
TEST_F(SecurityZoneViewTest, AppliesToTheTabAlsoWhenAnotherZoneWasLoaded) {
    for (int zone = 0; zone < 5; ++zone) Fill(zone, 0);
    view.loadSecurityZone(4);
    Combo().UserSelect(1);
    ApplyAndSay(MessageAnswer::Yes);
    EXPECT_EQ(ValueOf(0, "1001")->data, (Bytes{1, 0, 0, 0}));
    EXPECT_EQ(ValueOf(4, "1001")->data, (Bytes{0, 0, 0, 0}));
}

TEST_F(SecurityZoneViewTest, WritesEachSettingAndEachStatusByItsNumber) {
    const std::uint8_t stored[] = {0, 1, 3};
    Fill(0, 7);
    view.loadSecurityZone(0);
    for (std::size_t row = 0; row < std::size(Wanted); ++row) {
        Select(row);
        for (std::size_t position = 0; position < std::size(stored); ++position) {
            Combo().UserSelect(static_cast<int>(position));
            EXPECT_TRUE(ApplyAndSay(MessageAnswer::Yes)) << Wanted[row].value << position;
            EXPECT_EQ(ValueOf(0, Wanted[row].value)->data, (Bytes{stored[position], 0, 0, 0}));
        }
    }
    EXPECT_EQ(program.machine.registry.ValueNamesOf(Hive::CurrentUser, Key(0)).size(), 11u);
    EXPECT_EQ(Statuses(), std::vector<std::string>(11, "Disabled"));
}

TEST_F(SecurityZoneViewTest, ReadsAChangeAgainOnTheWayBackToItsTab) {
    Fill(0, 0);
    Fill(1, 0);
    Tabs().UserSelect(1);
    Combo().UserSelect(1);
    ApplyAndSay(MessageAnswer::Yes);
    Tabs().UserSelect(2);
    EXPECT_EQ(List().Row(0).Text(1), "Enabled");
    Tabs().UserSelect(1);
    EXPECT_EQ(List().Row(0).Text(1), "Prompt");
}

TEST_F(SecurityZoneViewTest, OffersNoUnknownStatusUntilAnotherIsPicked) {
    Fill(0, 2);
    view.loadSecurityZone(0);
    EXPECT_EQ(Combo().SelectedText(), "Unknown!");
    EXPECT_FALSE(IsEnabled("cmdSecurityZoneApply"));
    Combo().UserSelect(3);
    EXPECT_FALSE(IsEnabled("cmdSecurityZoneApply"));
    Combo().UserSelect(0);
    EXPECT_TRUE(IsEnabled("cmdSecurityZoneApply"));
}

TEST_F(SecurityZoneViewTest, LeavesTheButtonAsItIsForTheRowsOwnStatus) {
    Fill(0, 1);
    view.loadSecurityZone(0);
    Combo().UserSelect(1);
    EXPECT_FALSE(IsEnabled("cmdSecurityZoneApply"));
    Combo().UserSelect(0);
    Combo().UserSelect(1);
    EXPECT_TRUE(IsEnabled("cmdSecurityZoneApply"));
}

TEST_F(SecurityZoneViewTest, WritesNothingOnANo) {
    Fill(0, 0);
    view.loadSecurityZone(0);
    Combo().UserSelect(1);
    ApplyAndSay(MessageAnswer::No);
    EXPECT_EQ(Changes(), std::vector<std::string>());
    EXPECT_EQ(List().Row(0).Text(1), "Enabled");
}

TEST_F(SecurityZoneViewTest, RefusesToApplyNoStatusOrTheUnknownOne) {
    Fill(0, 0);
    view.loadSecurityZone(0);
    Combo().Select(ComboBox::NoSelection);
    page.Run("cmdSecurityZoneApply_Click");
    ExpectTold("Please select a status to apply.", MessageIcon::Information);
    Combo().Select(3);
    page.Run("cmdSecurityZoneApply_Click");
    ExpectTold("Unknown status cannot be applied. Please change it.", MessageIcon::Information);
    EXPECT_EQ(program.desktop.events.back(), "focus cmbSecurityZone");
    EXPECT_EQ(Changes(), std::vector<std::string>());
}

TEST_F(SecurityZoneViewTest, LeavesTheRowWhereTheKeyCanNotBeMade) {
    Fill(0, 0);
    view.loadSecurityZone(0);
    Combo().UserSelect(1);
    program.machine.FailAlways("RegCreateKeyA");
    ApplyAndSay(MessageAnswer::Yes);
    EXPECT_EQ(List().Row(0).Text(1), "Enabled");
    EXPECT_EQ(Told().size(), 1u);
}

TEST_F(SecurityZoneViewTest, LeavesTheRowWhereTheStatusIsNotStored) {
    Fill(0, 0);
    view.loadSecurityZone(0);
    Combo().UserSelect(1);
    program.machine.FailNext("RegSetValueExA");
    ApplyAndSay(MessageAnswer::Yes);
    EXPECT_EQ(List().Row(0).Text(1), "Enabled");
    EXPECT_EQ(Told().size(), 1u);
    ApplyAndSay(MessageAnswer::Yes);
    EXPECT_EQ(List().Row(0).Text(1), "Prompt");
}

TEST_F(SecurityZoneViewTest, MakesAZoneThatWasMissingWhenItIsGivenAStatus) {
    view.loadSecurityZone(0);
    Combo().UserSelect(2);
    ApplyAndSay(MessageAnswer::Yes);
    EXPECT_EQ(ValueOf(0, "1001")->data, (Bytes{3, 0, 0, 0}));
    EXPECT_EQ(program.machine.registry.OpenKeyCount(), 0u);
}

}  // namespace
}  // namespace velkarix
