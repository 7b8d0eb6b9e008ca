#include "browser/ProtocolDefaultsView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ViewTest.h"

namespace velkarix {
namespace {

constexpr const char* Key =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\ProtocolDefaults";

using Rows = std::vector<std::pair<std::string, std::string>>;

class ProtocolDefaultsViewTest : public ViewTest<ProtocolDefaultsView> {
  protected:
    void Zone(const std::string& protocol, std::uint32_t zone) {
        program.machine.SetDword(Hive::CurrentUser, Key, protocol, zone);
    }
    void Raw(const std::string& protocol, std::uint32_t type, Bytes data) {
        program.machine.registry.SetRaw(Hive::CurrentUser, Key, protocol, type, std::move(data));
    }
    ListView& List() { return Get<ListView>("lstvProtocolDefaults"); }
    ComboBox& Combo() { return Get<ComboBox>("cmbProtocolDefaults"); }
    Rows Shown() {
        Rows rows;
        for (std::size_t i = 0; i < List().RowCount(); ++i) {
            rows.emplace_back(List().Row(i).Text(0), List().Row(i).Text(1));
        }
        return rows;
    }
    void Select(std::size_t row) { List().UserSelect(&List().Row(row)); }
    bool ApplyAndSay(MessageAnswer answer) {
        program.desktop.answers = {answer};
        program.machine.Journal().Clear();
        return Click("cmdProtocolDefaultsApply");
    }
};

TEST_F(ProtocolDefaultsViewTest, ShowsItsControlsInTabOrder) {
    EXPECT_EQ(TabOrder(), (std::vector<std::string>{"lstvProtocolDefaults", "lblProtocol",
                                                    "txtProtocolDefaults", "cmbProtocolDefaults",
                                                    "cmdProtocolDefaultsApply"}));
    EXPECT_EQ(page.Find("lblProtocol")->Text(), "Protocol");
    EXPECT_EQ(List().Columns(), (std::vector<std::string>{"Protocol", "Security Zone"}));
    EXPECT_EQ(Combo().Entries(),
              (std::vector<std::string>{"My Computer", "Local Intranet", "Trusted Sites",
                                        "Internet", "Restricted Sites", "Unknown!"}));
    EXPECT_FALSE(IsEnabled("cmdProtocolDefaultsApply"));
    ExpectEachControlPlacedOnce();
}

TEST_F(ProtocolDefaultsViewTest, ListsTheProtocolsInTheRegistrysOrder) {
    Zone("https", 3);
    Zone("file", 0);
    Zone("@ivt", 1);
    Zone("ftp", 4);
    Zone("shell", 2);
    view.LoadProtocolDefaults();
    EXPECT_EQ(Shown(), (Rows{{"https", "Internet"},
                             {"file", "My Computer"},
                             {"@ivt", "Local Intranet"},
                             {"ftp", "Restricted Sites"},
                             {"shell", "Trusted Sites"}}));
    EXPECT_FALSE(List().Sorted());
    EXPECT_EQ(List().SelectedRow(), &List().Row(0));
    EXPECT_EQ(Value("txtProtocolDefaults"), "https");
    EXPECT_EQ(Combo().SelectedText(), "Internet");
    EXPECT_EQ(program.desktop.events, std::vector<std::string>{"focus lstvProtocolDefaults"});
}

TEST_F(ProtocolDefaultsViewTest, PassesOverTheKeysDefaultValue) {
    program.machine.SetValue(Hive::CurrentUser, Key, "", "3");
    Zone("http", 3);
    view.LoadProtocolDefaults();
    EXPECT_EQ(Shown(), (Rows{{"http", "Internet"}}));
}

TEST_F(ProtocolDefaultsViewTest, TakesTextForANumberWhereItIsOne) {
    const std::pair<const char*, const char*> texts[] = {
        {"3", "Internet"},  {" 2 ", "Trusted Sites"}, {"4.0", "Restricted Sites"},
        {"", "Unknown"},    {"3x", "Unknown"},        {"three", "Unknown"},
        {"2.5", "Unknown"}, {"-1", "Unknown"},        {"99999999999999999999", "Unknown"},
    };
    Rows wanted;
    for (const auto& [text, zone] : texts) {
        const std::string protocol = "p" + std::to_string(wanted.size());
        program.machine.SetValue(Hive::CurrentUser, Key, protocol, text);
        wanted.emplace_back(protocol, zone);
    }
    view.LoadProtocolDefaults();
    EXPECT_EQ(Shown(), wanted);
}

TEST_F(ProtocolDefaultsViewTest, ShowsWhatIsNoZoneAsUnknown) {
    Zone("five", 5);
    Zone("all", 0xFFFFFFFF);
    Raw("bytes", registryType::Binary, {3, 0, 0, 0});
    Raw("qword", registryType::Qword, {3, 0, 0, 0, 0, 0, 0, 0});
    Raw("none", registryType::None, {});
    Raw("nul", registryType::Sz, {'3', 0, 0});
    Raw("large", registryType::Binary, Bytes(5000, 1));
    view.LoadProtocolDefaults();
    EXPECT_EQ(Shown().size(), 7u);
    for (const auto& [protocol, zone] : Shown()) EXPECT_EQ(zone, "Unknown") << protocol;
    EXPECT_EQ(Combo().SelectedText(), "Unknown!");
    EXPECT_FALSE(IsEnabled("cmdProtocolDefaultsApply"));
}

TEST_F(ProtocolDefaultsViewTest, ReadsWhatADwordHoldsOfItsFourBytes) {
    Raw("short", registryType::Dword, {3});
    Raw("empty", registryType::Dword, {});
    Raw("long", registryType::Dword, {2, 0, 0, 0, 9});
    Raw("multi", registryType::MultiSz, {'4', 0, 0});
    view.LoadProtocolDefaults();
    EXPECT_EQ(Shown(), (Rows{{"short", "Internet"},
                             {"empty", "My Computer"},
                             {"long", "Trusted Sites"},
                             {"multi", "Restricted Sites"}}));
}

TEST_F(ProtocolDefaultsViewTest, ShowsNothingOfAKeyThatIsEmptyMissingOrClosed) {
    const auto expectNothing = [this] {
        view.LoadProtocolDefaults();
        EXPECT_EQ(Shown(), Rows());
        EXPECT_EQ(Value("txtProtocolDefaults"), "");
        EXPECT_EQ(Combo().Selected(), ComboBox::NoSelection);
        EXPECT_FALSE(IsEnabled("cmdProtocolDefaultsApply"));
        EXPECT_EQ(Told(), std::vector<std::string>());
    };
    expectNothing();
    Zone("http", 3);
    view.LoadProtocolDefaults();
    Combo().UserSelect(0);
    program.machine.registry.Restrict(Hive::CurrentUser, Key, std::nullopt);
    expectNothing();
    program.machine.registry.RemoveKey(Hive::CurrentUser, Key);
    program.machine.AddKey(Hive::CurrentUser, Key);
    expectNothing();
}

TEST_F(ProtocolDefaultsViewTest, WritesTheChosenZoneAndShowsItInTheRow) {
    Zone("http", 3);
    Zone("ftp", 3);
    view.LoadProtocolDefaults();
    Select(1);
    Combo().UserSelect(4);
    EXPECT_TRUE(ApplyAndSay(MessageAnswer::Yes));
    EXPECT_EQ(Told().size(), 1u);
    ExpectTold("Are you sure you want to change the security zone for protocol: ftp?",
               MessageIcon::Question, MessageButtons::YesNo);
    EXPECT_EQ(Changes(),
              std::vector<std::string>{std::string("RegSetValueExA HKCU\\") + Key + ", ftp"});
    EXPECT_EQ(program.machine.registry.ValueAt(Hive::CurrentUser, Key, "ftp"),
              (MemoryValue{"ftp", registryType::Dword, {4, 0, 0, 0}}));
    EXPECT_EQ(Shown(), (Rows{{"http", "Internet"}, {"ftp", "Restricted Sites"}}));
    EXPECT_TRUE(IsEnabled("cmdProtocolDefaultsApply"));
    EXPECT_EQ(program.machine.Journal().CountOf("RegEnumValueA"), 0u);
}

TEST_F(ProtocolDefaultsViewTest, WritesEachZoneByItsNumber) {
    Zone("http", 7);
    view.LoadProtocolDefaults();
    for (int zone = 0; zone < 5; ++zone) {
        Combo().UserSelect(zone);
        EXPECT_TRUE(ApplyAndSay(MessageAnswer::Yes));
        EXPECT_EQ(program.machine.registry.ValueAt(Hive::CurrentUser, Key, "http")->data,
                  (Bytes{static_cast<std::uint8_t>(zone), 0, 0, 0}));
    }
}

TEST_F(ProtocolDefaultsViewTest, WritesNothingOnANo) {
    Zone("http", 3);
    view.LoadProtocolDefaults();
    Combo().UserSelect(0);
    ApplyAndSay(MessageAnswer::No);
    EXPECT_EQ(Changes(), std::vector<std::string>());
    EXPECT_EQ(Shown(), (Rows{{"http", "Internet"}}));
}

TEST_F(ProtocolDefaultsViewTest, GivesAZoneToAValueThatIsNoNumber) {
    program.machine.SetValue(Hive::CurrentUser, Key, "odd \"name\" \xE9", "text");
    view.LoadProtocolDefaults();
    Combo().UserSelect(1);
    ApplyAndSay(MessageAnswer::Yes);
    EXPECT_EQ(program.machine.registry.ValueAt(Hive::CurrentUser, Key, "odd \"name\" \xE9"),
              (MemoryValue{"odd \"name\" \xE9", registryType::Dword, {1, 0, 0, 0}}));
}

TEST_F(ProtocolDefaultsViewTest, RefusesToApplyNoZoneOrTheUnknownOne) {
    Zone("http", 3);
    view.LoadProtocolDefaults();
    Combo().Select(ComboBox::NoSelection);
    page.Run("cmdProtocolDefaultsApply_Click");
    ExpectTold("Please select a security zone to apply.", MessageIcon::Information);
    Combo().Select(5);
    page.Run("cmdProtocolDefaultsApply_Click");
    ExpectTold("Unknown security zone cannot be applied. Please change it.",
               MessageIcon::Information);
    EXPECT_EQ(Changes(), std::vector<std::string>());
}

TEST_F(ProtocolDefaultsViewTest, LeavesTheRowWhereTheKeyCanNotBeMade) {
    Zone("http", 3);
    view.LoadProtocolDefaults();
    Combo().UserSelect(0);
    program.machine.FailAlways("RegCreateKeyA");
    ApplyAndSay(MessageAnswer::Yes);
    EXPECT_EQ(Shown(), (Rows{{"http", "Internet"}}));
    EXPECT_EQ(Told().size(), 1u);
}

TEST_F(ProtocolDefaultsViewTest, LeavesTheRowWhereTheZoneIsNotStored) {
    Zone("http", 3);
    view.LoadProtocolDefaults();
    Combo().UserSelect(0);
    program.machine.FailNext("RegSetValueExA");
    ApplyAndSay(MessageAnswer::Yes);
    EXPECT_EQ(Shown(), (Rows{{"http", "Internet"}}));
    EXPECT_EQ(Told().size(), 1u);
    ApplyAndSay(MessageAnswer::Yes);
    EXPECT_EQ(Shown(), (Rows{{"http", "My Computer"}}));
}

TEST_F(ProtocolDefaultsViewTest, LoadingAgainDropsWhatWasChosen) {
    Zone("http", 3);
    view.LoadProtocolDefaults();
    Combo().UserSelect(0);
    view.LoadProtocolDefaults();
    EXPECT_EQ(Shown(), (Rows{{"http", "Internet"}}));
    EXPECT_EQ(Combo().SelectedText(), "Internet");
    EXPECT_FALSE(IsEnabled("cmdProtocolDefaultsApply"));
    EXPECT_EQ(program.machine.registry.OpenKeyCount(), 0u);
}

}  // namespace
}  // namespace velkarix
