// The browser's settings, changed in the window and read back from the registry.
#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Input.h"
#include "ProgramTest.h"
#include "RegistryTree.h"
#include "Setup.h"
#include "TabWindow.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

constexpr const char* MainKey = "Software\\Microsoft\\Internet Explorer\\Main";
constexpr const char* SearchKey = "Software\\Microsoft\\Internet Explorer\\Search";
constexpr const char* SearchUrlKey = "Software\\Microsoft\\Internet Explorer\\SearchURL";
constexpr const char* DefaultPrefixKey =
    "Software\\Microsoft\\Windows\\CurrentVersion\\URL\\DefaultPrefix";
constexpr const char* PrefixesKey = "Software\\Microsoft\\Windows\\CurrentVersion\\URL\\Prefixes";
constexpr const char* SettingsKey =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";
const std::string ProtocolsKey = std::string(SettingsKey) + "\\ZoneMap\\ProtocolDefaults";

std::string ZoneKey(int zone) {
    return std::string(SettingsKey) + "\\Zones\\" + std::to_string(zone);
}

// Of each box of addresses: where its value is read.
struct AddressBox {
    const char* name;
    HKEY hive;
    const char* key;
    const char* value;
};

const AddressBox AddressBoxes[] = {
    {"txtStartPage", HKEY_CURRENT_USER, MainKey, "Start Page"},
    {"txtSearchURL", HKEY_CURRENT_USER, SearchUrlKey, ""},
    {"txtSearchPage", HKEY_CURRENT_USER, MainKey, "Search Page"},
    {"txtSearchBar", HKEY_CURRENT_USER, MainKey, "Search Bar"},
    {"txtSEarchAssistant", HKEY_LOCAL_MACHINE, SearchKey, "SearchAssistant"},
    {"txtCustomizeSearch", HKEY_LOCAL_MACHINE, SearchKey, "CustomizeSearch"},
    {"txtDefPrefix", HKEY_LOCAL_MACHINE, DefaultPrefixKey, ""},
    {"txtwwwPrefix", HKEY_LOCAL_MACHINE, PrefixesKey, "www"},
    {"txtHomePrefix", HKEY_LOCAL_MACHINE, PrefixesKey, "home"},
    {"txtMosaicPrefix", HKEY_LOCAL_MACHINE, PrefixesKey, "mosaic"},
};

// A key that the settings lie in, as it was when the test began.
struct SettingsPlace {
    HKEY hive;
    std::string path;
    std::optional<RegistryTree> before = ReadTree(hive, path);
};

RegistryValue Text(const std::string& text) {
    RegistryValue value{REG_SZ, {text.begin(), text.end()}};
    value.data.push_back(0);
    return value;
}

RegistryValue Number(std::uint8_t number) {
    return {REG_DWORD, {number, 0, 0, 0}};
}

class EverySystemBrowserSettings : public ProgramTest {
  protected:
    ~EverySystemBrowserSettings() override {
        for (const SettingsPlace& each : places_) {
            RestoreTree(each.hive, each.path, each.before);
        }
    }

    // Opens the browser page at that view.
    void Open(const std::string& view) {
        Start();
        ASSERT_TRUE(BringToFront(Running().Main()));
        ASSERT_TRUE(Running().Press("cmdIE"));
        ASSERT_TRUE(Running().Press(view));
    }
    void OpenAdvanced(int tab) {
        Open("cmdAdvance");
        ASSERT_TRUE(ClickTab("tbMain", tab));
    }
    Window Control(const std::string& name) { return Running().Control(name); }
    bool Shows(const std::string& control, const std::string& text) {
        return WaitUntil([&] { return Control(control).Text() == text; });
    }

    void SelectSetting(const std::string& list, const std::string& setting) {
        const std::optional<int> row = Running().List(list).Find(setting);
        ASSERT_TRUE(row) << setting;
        SelectRow(Running().List(list), *row);
    }
    // Whether the setting's row tells of that choice, or comes to.
    bool StandsAt(const std::string& list, const std::string& setting, const std::string& choice) {
        return WaitUntil([&] {
            const ListWindow rows = Running().List(list);
            const std::optional<int> row = rows.Find(setting);
            return row && rows.Text(*row, 1) == choice;
        });
    }
    // Whether a click on the tab, from 1, selects it.
    bool ClickTab(const std::string& strip, int tab) {
        const TabWindow tabs(Control(strip));
        ClickAt(Inside(tabs.TabArea(tab)));
        return WaitUntil([&] { return tabs.Selected() == tab; });
    }
    // Drops the list and picks the entry that begins with that capital letter; whether the box
    // shows it then.
    bool Choose(const std::string& combo, char letter) {
        const Window box = Control(combo);
        ClickAt(Inside(box.Area()));
        if (!WaitUntil([&] { return box.Send(CB_GETDROPPEDSTATE) != FALSE; })) return false;
        PressKey(static_cast<WORD>(letter));
        PressKey(VK_RETURN);
        return WaitUntil([&] {
            return box.Send(CB_GETDROPPEDSTATE) == FALSE && box.Text().starts_with(letter);
        });
    }
    // Replaces what a box holds, key by key.
    void TypeInto(const std::string& box, const std::string& text) {
        const Window window = Control(box);
        ASSERT_TRUE(window.Visible() && window.Enabled()) << box;
        window.Send(EM_SETSEL, 0, -1);
        if (text.empty()) window.Send(WM_CHAR, VK_BACK);
        for (const char c : text) window.Send(WM_CHAR, static_cast<BYTE>(c));
        ASSERT_EQ(window.Text(), text);
    }
    // Clicks the button and answers the box that comes, whose text is `text`.
    void ClickAndAnswer(const std::string& button, const std::string& text, int answer) {
        ASSERT_TRUE(Control(button).Click()) << button;
        const Window message = Running().Message();
        ASSERT_TRUE(message) << "instead of: " << text;
        EXPECT_EQ(message.Text(), "Velkarix");
        EXPECT_EQ(MessageText(message), text);
        EXPECT_TRUE(Answer(message, answer));
    }
    bool Becomes(HKEY hive, const std::string& key, const std::string& name,
                 const RegistryValue& value) {
        return WaitUntil([&] { return ReadValue(hive, key, name) == value; });
    }

  private:
    const std::vector<SettingsPlace> places_ = {
        {HKEY_CURRENT_USER, MainKey},      {HKEY_LOCAL_MACHINE, MainKey},
        {HKEY_CURRENT_USER, SearchKey},    {HKEY_LOCAL_MACHINE, SearchKey},
        {HKEY_CURRENT_USER, SearchUrlKey}, {HKEY_LOCAL_MACHINE, DefaultPrefixKey},
        {HKEY_LOCAL_MACHINE, PrefixesKey}, {HKEY_CURRENT_USER, SettingsKey},
    };
};

TEST_F(EverySystemBrowserSettings, TheBoxesShowTheRegistrysAddresses) {
    for (const AddressBox& box : AddressBoxes) {
        WriteValue(box.hive, box.key, box.value, Text(std::string("in ") + box.name));
    }
    Open("cmdURLs");
    for (const AddressBox& box : AddressBoxes) {
        EXPECT_EQ(Control(box.name).Text(), std::string("in ") + box.name);
    }
    EXPECT_FALSE(Control("cmdApply").Enabled());
}

TEST_F(EverySystemBrowserSettings, TypedAddressesAreApplied) {
    WriteValue(HKEY_CURRENT_USER, SearchKey, "SearchAssistant", Text("http://hidden.example"));
    WriteValue(HKEY_CURRENT_USER, MainKey, "Default_Page_URL", Text("http://hidden.example"));
    DeleteValue(HKEY_CURRENT_USER, MainKey, "Do404Search");
    Open("cmdURLs");
    for (const AddressBox& box : AddressBoxes) {
        TypeInto(box.name, std::string("http://typed.example/?") + box.name);
    }
    ASSERT_TRUE(Running().Press("cmdApply"));
    EXPECT_FALSE(Control("cmdApply").Enabled());
    for (const AddressBox& box : AddressBoxes) {
        EXPECT_EQ(ReadValue(box.hive, box.key, box.value),
                  Text(std::string("http://typed.example/?") + box.name));
    }
    EXPECT_EQ(ReadValue(HKEY_LOCAL_MACHINE, MainKey, "Start Page"),
              Text("http://typed.example/?txtStartPage"));
    EXPECT_EQ(ReadValue(HKEY_LOCAL_MACHINE, MainKey, "Default_Page_URL"),
              Text("http://www.microsoft.com/isapi/redir.dll?prd=ie&pver=6&ar=msnhome"));
    EXPECT_FALSE(ReadTree(HKEY_CURRENT_USER, SearchKey));
    EXPECT_FALSE(ReadValue(HKEY_CURRENT_USER, MainKey, "Default_Page_URL"));
    EXPECT_EQ(ReadValue(HKEY_CURRENT_USER, MainKey, "Do404Search"),
              (RegistryValue{REG_BINARY, {1, 0, 0, 0}}));
}

// The program deletes that key by one call, which takes the keys below along or is refused.
TEST_F(EverySystemBrowserSettings, TheUsersSearchSettingsWithKeysBelowGoOnTheOlderFamilyAlone) {
    WriteValue(HKEY_CURRENT_USER, SearchKey + std::string("\\Below"), "Value", Text("kept"));
    const std::optional<RegistryTree> whole = ReadTree(HKEY_CURRENT_USER, SearchKey);
    Open("cmdURLs");
    TypeInto("txtStartPage", "http://typed.example");
    ASSERT_TRUE(Running().Press("cmdApply"));
    EXPECT_EQ(ReadTree(HKEY_CURRENT_USER, SearchKey), IsSystemOf95Family() ? std::nullopt : whole);
}

TEST_F(EverySystemBrowserSettings, StockAddressesAreAppliedFromTheirButtons) {
    Open("cmdURLs");
    for (const char* button : {"cmdBlank", "cmdSearchURL", "cmdDefPrefix"}) {
        ASSERT_TRUE(Running().Press(button));
    }
    ASSERT_TRUE(Running().Press("cmdApply"));
    for (const HKEY hive : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
        EXPECT_EQ(ReadValue(hive, MainKey, "Start Page"), Text("About:Blank"));
    }
    EXPECT_EQ(ReadValue(HKEY_CURRENT_USER, SearchUrlKey, ""),
              Text("http://home.microsoft.com/access/autosearch.asp?p=%s"));
    EXPECT_EQ(ReadValue(HKEY_LOCAL_MACHINE, PrefixesKey, "mosaic"), Text("http://"));
}

TEST_F(EverySystemBrowserSettings, ALongAddressStaysWhole) {
    const std::string found = "http://long.example/?" + std::string(2000, 'x');
    WriteValue(HKEY_CURRENT_USER, MainKey, "Search Bar", Text(found));
    Open("cmdURLs");
    const std::string typed = "http://typed.example/?" + std::string(2000, 'y');
    TypeInto("txtStartPage", typed);
    ASSERT_TRUE(Running().Press("cmdApply"));
    EXPECT_EQ(ReadValue(HKEY_CURRENT_USER, MainKey, "Start Page"), Text(typed));
    EXPECT_EQ(ReadValue(HKEY_CURRENT_USER, MainKey, "Search Bar"), Text(found));
}

TEST_F(EverySystemBrowserSettings, AddressesThatWereNotAppliedAreGoneWithTheView) {
    WriteValue(HKEY_CURRENT_USER, MainKey, "Start Page", Text("http://kept.example"));
    Open("cmdURLs");
    TypeInto("txtStartPage", "http://dropped.example");
    ASSERT_TRUE(Running().Press("cmdURLs"));
    EXPECT_EQ(Control("txtStartPage").Text(), "http://dropped.example");
    EXPECT_TRUE(Control("cmdApply").Enabled());
    ASSERT_TRUE(Running().Press("cmdBHO"));
    ASSERT_TRUE(Running().Press("cmdURLs"));
    EXPECT_EQ(Control("txtStartPage").Text(), "http://kept.example");
    EXPECT_FALSE(Control("cmdApply").Enabled());
}

TEST_F(EverySystemBrowserSettings, TheProxyIsSwitchedOnAndOff) {
    WriteValue(HKEY_CURRENT_USER, SettingsKey, "ProxyEnable", Number(0));
    WriteValue(HKEY_CURRENT_USER, SettingsKey, "ProxyServer", Text("old.example:80"));
    OpenAdvanced(2);
    EXPECT_EQ(Control("txtAddress").Text(), "old.example");
    EXPECT_FALSE(Control("txtAddress").Enabled());
    EXPECT_FALSE(Control("cmdProxyApply").Enabled());
    ClickAt(Inside(Control("chkProxyEnabled").Area()));
    ASSERT_TRUE(WaitUntil([&] { return Control("txtAddress").Enabled(); }));
    TypeInto("txtAddress", " new.example ");
    TypeInto("txtPort", "8080");
    ASSERT_TRUE(Running().Press("cmdProxyApply"));
    EXPECT_EQ(ReadValue(HKEY_CURRENT_USER, SettingsKey, "ProxyEnable"), Number(1));
    EXPECT_EQ(ReadValue(HKEY_CURRENT_USER, SettingsKey, "ProxyServer"), Text("new.example:8080"));
    EXPECT_EQ(Control("txtAddress").Text(), "new.example");
    EXPECT_FALSE(Control("cmdProxyApply").Enabled());
    ClickAt(Inside(Control("chkProxyEnabled").Area()));
    ASSERT_TRUE(WaitUntil([&] { return !Control("txtAddress").Enabled(); }));
    ASSERT_TRUE(Running().Press("cmdProxyApply"));
    EXPECT_EQ(ReadValue(HKEY_CURRENT_USER, SettingsKey, "ProxyEnable"), Number(0));
    EXPECT_EQ(ReadValue(HKEY_CURRENT_USER, SettingsKey, "ProxyServer"), Text("new.example:8080"));
}

TEST_F(EverySystemBrowserSettings, AProxyWithoutAPortIsRefused) {
    WriteValue(HKEY_CURRENT_USER, SettingsKey, "ProxyEnable", Number(1));
    WriteValue(HKEY_CURRENT_USER, SettingsKey, "ProxyServer", Text("old.example:80"));
    OpenAdvanced(2);
    TypeInto("txtPort", "");
    ClickAndAnswer("cmdProxyApply", "Please enter proxy server port.", IDOK);
    EXPECT_TRUE(WaitUntil([&] { return Running().Focus() == "txtPort"; }));
    EXPECT_EQ(ReadValue(HKEY_CURRENT_USER, SettingsKey, "ProxyServer"), Text("old.example:80"));
}

TEST_F(EverySystemBrowserSettings, AProtocolGetsAnotherZone) {
    WriteValue(HKEY_CURRENT_USER, ProtocolsKey, "ftp", Number(3));
    OpenAdvanced(3);
    SelectSetting("lstvProtocolDefaults", "ftp");
    EXPECT_TRUE(StandsAt("lstvProtocolDefaults", "ftp", "Internet"));
    ASSERT_TRUE(Shows("txtProtocolDefaults", "ftp"));
    EXPECT_EQ(Control("cmbProtocolDefaults").Text(), "Internet");
    EXPECT_FALSE(Control("cmdProtocolDefaultsApply").Enabled());
    ASSERT_TRUE(Choose("cmbProtocolDefaults", 'R'));
    const std::string question =
        "Are you sure you want to change the security zone for protocol: ftp?";
    ClickAndAnswer("cmdProtocolDefaultsApply", question, IDNO);
    EXPECT_EQ(ReadValue(HKEY_CURRENT_USER, ProtocolsKey, "ftp"), Number(3));
    ClickAndAnswer("cmdProtocolDefaultsApply", question, IDYES);
    EXPECT_TRUE(Becomes(HKEY_CURRENT_USER, ProtocolsKey, "ftp", Number(4)));
    EXPECT_TRUE(StandsAt("lstvProtocolDefaults", "ftp", "Restricted Sites"));
}

TEST_F(EverySystemBrowserSettings, AnUnknownZoneIsShownAndCanBeReplaced) {
    WriteValue(HKEY_CURRENT_USER, ProtocolsKey, "sample", Number(7));
    OpenAdvanced(3);
    SelectSetting("lstvProtocolDefaults", "sample");
    EXPECT_TRUE(StandsAt("lstvProtocolDefaults", "sample", "Unknown"));
    EXPECT_TRUE(Shows("cmbProtocolDefaults", "Unknown!"));
    EXPECT_FALSE(Control("cmdProtocolDefaultsApply").Enabled());
    ASSERT_TRUE(Choose("cmbProtocolDefaults", 'T'));
    ClickAndAnswer("cmdProtocolDefaultsApply",
                   "Are you sure you want to change the security zone for protocol: sample?",
                   IDYES);
    EXPECT_TRUE(Becomes(HKEY_CURRENT_USER, ProtocolsKey, "sample", Number(2)));
}

TEST_F(EverySystemBrowserSettings, ASettingOfAZoneGetsAnotherStatus) {
    for (const int zone : {0, 3}) {
        WriteValue(HKEY_CURRENT_USER, ZoneKey(zone), "1803", Number(0));
    }
    OpenAdvanced(4);
    EXPECT_EQ(Running().List("lstvSecurityZone").RowCount(), 11);
    ASSERT_TRUE(ClickTab("tbSecurityZone", 4));
    SelectSetting("lstvSecurityZone", "File Downloading");
    ASSERT_TRUE(Shows("txtSecurityZone", "File Downloading"));
    ASSERT_TRUE(Choose("cmbSecurityZone", 'D'));
    ClickAndAnswer("cmdSecurityZoneApply",
                   "Are you sure you want to change the status of: \r\n\r\nFile Downloading?",
                   IDYES);
    EXPECT_TRUE(Becomes(HKEY_CURRENT_USER, ZoneKey(3), "1803", Number(3)));
    EXPECT_EQ(ReadValue(HKEY_CURRENT_USER, ZoneKey(0), "1803"), Number(0));
    EXPECT_TRUE(StandsAt("lstvSecurityZone", "File Downloading", "Disabled"));
    ASSERT_TRUE(ClickTab("tbSecurityZone", 1));
    EXPECT_TRUE(StandsAt("lstvSecurityZone", "File Downloading", "Enabled"));
    ASSERT_TRUE(ClickTab("tbSecurityZone", 4));
    EXPECT_TRUE(StandsAt("lstvSecurityZone", "File Downloading", "Disabled"));
}

TEST_F(EverySystemBrowserSettings, AMissingSettingHidesThoseBehindIt) {
    DeleteValue(HKEY_CURRENT_USER, ZoneKey(2), "1604");
    OpenAdvanced(4);
    ASSERT_TRUE(ClickTab("tbSecurityZone", 3));
    EXPECT_TRUE(WaitUntil([&] { return Running().List("lstvSecurityZone").RowCount() == 7; }));
}

}  // namespace
}  // namespace velkarix::e2e
