#include "browser/ProxyView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ViewTest.h"

namespace velkarix {
namespace {

constexpr const char* Key = "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";

class ProxyViewTest : public ViewTest<ProxyView> {
  protected:
    void Store(std::uint32_t enable, const std::string& server) {
        program.machine.SetDword(Hive::CurrentUser, Key, "ProxyEnable", enable);
        program.machine.SetValue(Hive::CurrentUser, Key, "ProxyServer", server);
    }
    void Load(std::uint32_t enable, const std::string& server) {
        Store(enable, server);
        view.LoadProxy();
        program.machine.Journal().Clear();
    }
    bool IsOn() { return Get<CheckBox>("chkProxyEnabled").Checked(); }
    std::string Server() { return Stored(Hive::CurrentUser, Key, "ProxyServer"); }
    std::optional<MemoryValue> EnableValue() {
        return program.machine.registry.ValueAt(Hive::CurrentUser, Key, "ProxyEnable");
    }
    static MemoryValue Enable(std::uint8_t value) {
        return {"ProxyEnable", registryType::Dword, {value, 0, 0, 0}};
    }
    const std::vector<std::string> bothWritten = {
        std::string("RegSetValueExA HKCU\\") + Key + ", ProxyEnable",
        std::string("RegSetValueExA HKCU\\") + Key + ", ProxyServer"};
};

TEST_F(ProxyViewTest, ShowsItsControlsInTabOrder) {
    EXPECT_EQ(TabOrder(), (std::vector<std::string>{"chkProxyEnabled", "lblAddress", "txtAddress",
                                                    "lblPort", "txtPort", "cmdProxyApply"}));
    EXPECT_EQ(page.Find("chkProxyEnabled")->Text(), "Proxy Enabled");
    EXPECT_EQ(page.Find("lblAddress")->Text(), "Address:");
    EXPECT_EQ(page.Find("lblPort")->Text(), "Port:");
    EXPECT_EQ(page.Find("cmdProxyApply")->Text(), "Apply");
    ExpectEachControlPlacedOnce();
}

TEST_F(ProxyViewTest, BeginsWithItsBoxesAndTheButtonDisabled) {
    for (const char* control : {"txtAddress", "txtPort", "cmdProxyApply"}) {
        EXPECT_FALSE(IsEnabled(control)) << control;
    }
    EXPECT_FALSE(IsOn());
}

TEST_F(ProxyViewTest, ShowsAProxyThatIsOn) {
    Load(1, "proxy.example:8080");
    EXPECT_TRUE(IsOn());
    EXPECT_EQ(Value("txtAddress"), "proxy.example");
    EXPECT_EQ(Value("txtPort"), "8080");
    EXPECT_TRUE(IsEnabled("txtAddress"));
    EXPECT_TRUE(IsEnabled("txtPort"));
    EXPECT_FALSE(IsEnabled("cmdProxyApply"));
}

TEST_F(ProxyViewTest, ShowsAProxyThatIsOffAndKeepsItsBoxesClosed) {
    Load(0, "proxy.example:8080");
    EXPECT_FALSE(IsOn());
    EXPECT_EQ(Value("txtAddress"), "proxy.example");
    EXPECT_EQ(Value("txtPort"), "8080");
    EXPECT_FALSE(IsEnabled("txtAddress"));
    EXPECT_FALSE(IsEnabled("txtPort"));
    EXPECT_FALSE(IsEnabled("cmdProxyApply"));
}

TEST_F(ProxyViewTest, TakesOnlyOneForOn) {
    for (const std::uint32_t value : {2u, 0xFFFFFFFFu, 256u}) {
        Load(value, "a:1");
        EXPECT_FALSE(IsOn()) << value;
    }
}

TEST_F(ProxyViewTest, ReadsMissingSettingsAsOffAndEmpty) {
    Load(1, "a:1");
    program.machine.registry.RemoveKey(Hive::CurrentUser, Key);
    view.LoadProxy();
    EXPECT_FALSE(IsOn());
    EXPECT_FALSE(IsEnabled("txtAddress"));
    EXPECT_EQ(Value("txtAddress"), "");
    EXPECT_EQ(Value("txtPort"), "1");
    program.machine.AddKey(Hive::CurrentUser, Key);
    view.LoadProxy();
    EXPECT_FALSE(IsOn());
    EXPECT_EQ(Told(), std::vector<std::string>());
}

TEST_F(ProxyViewTest, ReadsValuesOfOtherTypes) {
    program.machine.registry.SetRaw(Hive::CurrentUser, Key, "ProxyEnable", registryType::Binary,
                                    {1});
    program.machine.registry.SetRaw(Hive::CurrentUser, Key, "ProxyServer", registryType::Binary,
                                    {'a', ':', '1', 0, '2'});
    view.LoadProxy();
    EXPECT_TRUE(IsOn());
    EXPECT_EQ(Value("txtAddress"), "a");
    EXPECT_EQ(Value("txtPort"), "1");
    // A text is no number of four bytes.
    program.machine.SetValue(Hive::CurrentUser, Key, "ProxyEnable", "1 or another");
    view.LoadProxy();
    EXPECT_FALSE(IsOn());
}

TEST_F(ProxyViewTest, CutsTheServerAtItsFirstColon) {
    Load(0, "http=one:80;ftp=two:21");
    EXPECT_EQ(Value("txtAddress"), "http=one");
    EXPECT_EQ(Value("txtPort"), "80;ftp=two:21");
    Load(0, ":81");
    EXPECT_EQ(Value("txtAddress"), "");
    EXPECT_EQ(Value("txtPort"), "81");
    Load(0, "one:");
    EXPECT_EQ(Value("txtAddress"), "one");
    EXPECT_EQ(Value("txtPort"), "");
}

TEST_F(ProxyViewTest, KeepsThePortOfTheLastLoadWhereTheServerHasNone) {
    Load(0, "one:80");
    Load(0, "two");
    EXPECT_EQ(Value("txtAddress"), "two");
    EXPECT_EQ(Value("txtPort"), "80");
}

TEST_F(ProxyViewTest, OpensItsBoxesWithTheMarkAndOffersToApply) {
    Load(0, "a:1");
    Click("chkProxyEnabled");
    EXPECT_TRUE(IsEnabled("txtAddress"));
    EXPECT_TRUE(IsEnabled("txtPort"));
    EXPECT_TRUE(IsEnabled("cmdProxyApply"));
    view.LoadProxy();
    EXPECT_FALSE(IsEnabled("txtAddress"));
    EXPECT_FALSE(IsEnabled("cmdProxyApply"));
    Load(1, "a:1");
    Click("chkProxyEnabled");
    EXPECT_FALSE(IsEnabled("txtAddress"));
    EXPECT_FALSE(IsEnabled("txtPort"));
    EXPECT_TRUE(IsEnabled("cmdProxyApply"));
}

TEST_F(ProxyViewTest, OffersToApplyWhatIsTyped) {
    for (const char* box : {"txtAddress", "txtPort"}) {
        Load(1, "a:1");
        Type(box, "b");
        EXPECT_TRUE(IsEnabled("cmdProxyApply")) << box;
    }
}

TEST_F(ProxyViewTest, WritesTheMarkThenTheServerThenLoads) {
    Load(0, "");
    Click("chkProxyEnabled");
    Type("txtAddress", "proxy.example");
    Type("txtPort", "8080");
    EXPECT_TRUE(Click("cmdProxyApply"));
    EXPECT_EQ(Changes(), bothWritten);
    EXPECT_EQ(EnableValue(), Enable(1));
    EXPECT_EQ(Server(), "proxy.example:8080");
    EXPECT_EQ(program.machine.registry.ValueAt(Hive::CurrentUser, Key, "ProxyServer")->type,
              registryType::Sz);
    EXPECT_EQ(program.machine.Journal().Calls().back().name, "RegCloseKey");
    EXPECT_EQ(program.machine.Journal().CountOf("RegQueryValueExA"), 3u);
    EXPECT_FALSE(IsEnabled("cmdProxyApply"));
    EXPECT_EQ(Told(), std::vector<std::string>());
}

TEST_F(ProxyViewTest, KeepsTheServerWhenItIsSwitchedOff) {
    Load(1, "proxy.example:8080");
    Click("chkProxyEnabled");
    Click("cmdProxyApply");
    EXPECT_EQ(EnableValue(), Enable(0));
    EXPECT_EQ(Server(), "proxy.example:8080");
}

TEST_F(ProxyViewTest, WritesAnEmptyServerWhereOneOfTheBoxesIsEmpty) {
    for (const char* server : {"", ":80", "one:"}) {
        SCOPED_TRACE(server);
        Load(1, server);
        Click("chkProxyEnabled");
        Click("cmdProxyApply");
        EXPECT_EQ(Changes(), bothWritten);
        EXPECT_EQ(EnableValue(), Enable(0));
        EXPECT_EQ(program.machine.registry.ValueAt(Hive::CurrentUser, Key, "ProxyServer"),
                  (MemoryValue{"ProxyServer", registryType::Sz, {0}}));
    }
}

TEST_F(ProxyViewTest, DemandsAnAddress) {
    Load(1, "a:1");
    Type("txtAddress", "   ");
    Type("txtPort", "");
    Click("cmdProxyApply");
    EXPECT_EQ(Told().size(), 1u);
    ExpectTold("Please enter proxy server address.", MessageIcon::Information);
    EXPECT_EQ(program.desktop.events.back(), "focus txtAddress");
    EXPECT_EQ(Changes(), std::vector<std::string>());
    EXPECT_EQ(Value("txtAddress"), "");
}

TEST_F(ProxyViewTest, DemandsAPortAndKeepsTheTrimmedAddress) {
    Load(1, "one");
    Type("txtAddress", "  two  ");
    Click("cmdProxyApply");
    EXPECT_EQ(Told().size(), 1u);
    ExpectTold("Please enter proxy server port.", MessageIcon::Information);
    EXPECT_EQ(program.desktop.events.back(), "focus txtPort");
    EXPECT_EQ(Changes(), std::vector<std::string>());
    EXPECT_EQ(Value("txtAddress"), "two");
    EXPECT_TRUE(IsEnabled("cmdProxyApply"));
}

TEST_F(ProxyViewTest, WritesAPortThatWasKeptFromTheLastLoad) {
    Load(1, "one:80");
    Load(1, "two");
    Type("txtAddress", "three");
    Click("cmdProxyApply");
    EXPECT_EQ(Server(), "three:80");
}

TEST_F(ProxyViewTest, StoresTheTextsWithoutTheBlanksAroundThem) {
    Load(1, "a:1");
    Type("txtAddress", "  my proxy ");
    Type("txtPort", "\t8 0 ");
    Click("cmdProxyApply");
    EXPECT_EQ(Server(), "my proxy:\t8 0");
    EXPECT_EQ(Value("txtAddress"), "my proxy");
}

TEST_F(ProxyViewTest, LooksAtNoForm) {
    const std::string address = "\"\xE9%s\";=" + std::string(2000, 'x');
    Load(1, "a:1");
    Type("txtAddress", address);
    Type("txtPort", "no number");
    Click("cmdProxyApply");
    EXPECT_EQ(Server(), address + ":no number");
    EXPECT_EQ(Value("txtAddress"), address);
    EXPECT_EQ(Told(), std::vector<std::string>());
}

TEST_F(ProxyViewTest, TellsOnceOfAKeyThatCanNotBeMadeAndShowsWhatIsStored) {
    view.LoadProxy();
    Click("chkProxyEnabled");
    Type("txtAddress", "one");
    Type("txtPort", "80");
    program.machine.FailAlways("RegCreateKeyA", error::AccessDenied);
    Click("cmdProxyApply");
    EXPECT_EQ(Told().size(), 1u);
    ExpectTold(std::string("Following Key Could not be created: \r\n") + Key + "\r\n" +
                   ErrorText(error::AccessDenied),
               MessageIcon::Critical);
    EXPECT_FALSE(IsOn());
    EXPECT_EQ(Value("txtAddress"), "");
    EXPECT_FALSE(IsEnabled("cmdProxyApply"));
}

TEST_F(ProxyViewTest, ShowsWhatIsStoredAfterValuesWereRefused) {
    Load(0, "old:80");
    program.machine.registry.Restrict(Hive::CurrentUser, Key, KeyAccess::Read);
    Click("chkProxyEnabled");
    Type("txtAddress", "new");
    Click("cmdProxyApply");
    EXPECT_FALSE(IsOn());
    EXPECT_EQ(Value("txtAddress"), "old");
    EXPECT_EQ(Told(), std::vector<std::string>());
}

}  // namespace
}  // namespace velkarix
