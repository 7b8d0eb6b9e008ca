#include "BrowserItems.h"

namespace velkarix::e2e {

namespace {

const std::string Explorer = "Software\\Microsoft\\Internet Explorer\\";
const std::string HelperObjects =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects";
const std::string ZoneMap =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap";
const std::string Disabled = "Software\\Velkarix\\Disabled";

SampleItem KeyItem(const char* title, const BrowserList& list, const std::string& text,
                   const std::string& scope, HKEY hive, const std::string& live,
                   const std::string& held, const std::string& name) {
    return {title, list, text, scope, hive, live + "\\" + name, Disabled + held + "\\" + name};
}

}  // namespace

const BrowserList BHOs = {"cmdBHO",
                          "lstvBHO",
                          "cmdDisableBHO",
                          "cmdEnableBHO",
                          "cmdBHODelete",
                          "cmdViewInfoBHO",
                          "cmdFolderBHO",
                          "cmdRefreshBHO",
                          "cmdReportBHO",
                          "BHO",
                          1,
                          0};
const BrowserList Toolbars = {"cmdToolbar",
                              "lstvToolbar",
                              "cmdToolbarDisable",
                              "cmdToolbarEnable",
                              "cmdDeleteToolbar",
                              "cmdViewInfoToolbar",
                              "cmdFolderToolbar",
                              "cmdRefreshToolbar",
                              "cmdreportToolbar",
                              "Toolbar",
                              1,
                              2};
const BrowserList Buttons = {"cmdButton",
                             "lstvButtons",
                             "cmdButtonDisable",
                             "cmdButtonEnable",
                             "cmdDeleteButton",
                             "cmdViewInfoButton",
                             "cmdFolderButton",
                             "cmdRefreshButton",
                             "cmdReportButton",
                             "Buttons",
                             1,
                             2};
const BrowserList Menus = {"cmdMenu",
                           "lstvMenu",
                           "cmdDisableMenu",
                           "cmdEnableMenu",
                           "cmdDeleteMenu",
                           nullptr,
                           "cmdFolderMenu",
                           "cmdRefreshMenu",
                           "cmdReportMenu",
                           "Menu",
                           1,
                           2};
const BrowserList Protocols = {"cmdProtocol",
                               "lstvProtocol",
                               "cmdProtocolDisable",
                               "cmdProtocolEnable",
                               "cmdProtocolDelete",
                               "cmdProtocolViewInfo",
                               "cmdProtocolFolder",
                               "cmdProtocolRefresh",
                               "cmdProtocolReport",
                               "Protocol",
                               2,
                               3};
const BrowserList Domains = {"cmdDomain",
                             "lstvDomains",
                             "cmdDomainDisable",
                             "cmdDomainEnable",
                             "cmdDomainDelete",
                             nullptr,
                             nullptr,
                             "cmdDomainRefresh",
                             "cmdDomainReport",
                             "Domains",
                             1,
                             0};
const BrowserList Hooks = {"cmdAdvance",
                           "lstvHook",
                           "cmdHookDisable",
                           "cmdHookEnable",
                           "cmdHookDelete",
                           "cmdHookInfo",
                           "cmdHookFolder",
                           "cmdHookRefresh",
                           "cmdHookReport",
                           "Hook",
                           1,
                           0};
const std::vector<const BrowserList*> BrowserLists = {&BHOs,      &Toolbars, &Buttons, &Menus,
                                                      &Protocols, &Domains,  &Hooks};

std::string Clsid(const std::string& digits) {
    return "{" + digits + "-52C4-4D18-9F3A-6E1C2A7750B0}";
}

std::ostream& operator<<(std::ostream& stream, const SampleItem& item) {
    return stream << item.title;
}

const std::vector<SampleItem> SampleItems = {
    KeyItem("HelperObject", BHOs, Clsid("0B100002"), "", HKEY_LOCAL_MACHINE, HelperObjects, "\\BHO",
            Clsid("0B100002")),
    {"ToolbarOfAllUsers", Toolbars, Clsid("7B000001"), "All Users", HKEY_LOCAL_MACHINE,
     Explorer + "Toolbar", Disabled + "\\Toolbar", Clsid("7B000001")},
    {"ToolbarOfTheUser", Toolbars, Clsid("7B000001"), "Current User", HKEY_CURRENT_USER,
     Explorer + "Toolbar\\WebBrowser", Disabled + "\\Toolbar", Clsid("7B000001")},
    KeyItem("ButtonOfAllUsers", Buttons, Clsid("B0770002"), "All Users", HKEY_LOCAL_MACHINE,
            Explorer + "Extensions", "\\Buttons", Clsid("B0770002")),
    KeyItem("ButtonOfTheUser", Buttons, Clsid("B0770006"), "Current User", HKEY_CURRENT_USER,
            Explorer + "Extensions", "\\Buttons", Clsid("B0770006")),
    KeyItem("MenuOfAllUsers", Menus, "&Sample Search", "All Users", HKEY_LOCAL_MACHINE,
            Explorer + "MenuExt", "\\Menu", "&Sample Search"),
    KeyItem("MenuOfTheUser", Menus, "&Sample Search", "Current User", HKEY_CURRENT_USER,
            Explorer + "MenuExt", "\\Menu", "&Sample Search"),
    KeyItem("Filter", Protocols, "text/x-sample", "Filter", HKEY_CLASSES_ROOT, "Protocols\\Filter",
            "\\Protocols\\Filter", "text/x-sample"),
    KeyItem("Handler", Protocols, "sample", "Handler", HKEY_CLASSES_ROOT, "Protocols\\Handler",
            "\\Protocols\\Handler", "sample"),
    KeyItem("Domain", Domains, "https://www.tracker.example", "", HKEY_CURRENT_USER,
            ZoneMap + "\\Domains", "\\Domains", "tracker.example"),
    {"Hook", Hooks, Clsid("400C0002"), "", HKEY_CURRENT_USER, Explorer + "URLSearchHooks",
     Disabled + "\\Hooks", Clsid("400C0002")},
};

std::optional<RegistryTree> ReadItem(const SampleItem& item, bool enabled) {
    const std::string& path = enabled ? item.live : item.held;
    if (item.value.empty()) return ReadTree(item.hive, path);
    const std::optional<RegistryValue> value = ReadValue(item.hive, path, item.value);
    if (!value) return std::nullopt;
    RegistryTree tree;
    tree.values[item.value] = *value;
    return tree;
}

void RemoveItem(const SampleItem& item) {
    if (item.value.empty()) {
        DeleteTree(item.hive, item.live);
    } else {
        DeleteValue(item.hive, item.live, item.value);
    }
}

void CopyToHeld(const SampleItem& item) {
    const std::optional<RegistryTree> whole = ReadItem(item, true);
    if (!whole) return;
    if (item.value.empty()) {
        RestoreTree(item.hive, item.held, whole);
    } else {
        WriteValue(item.hive, item.held, item.value, whole->values.at(item.value));
    }
}

const std::vector<RegistryPlace>& BrowserPlaces() {
    static const std::vector<RegistryPlace> places = {
        {HKEY_LOCAL_MACHINE, HelperObjects},
        {HKEY_LOCAL_MACHINE, Explorer + "Toolbar"},
        {HKEY_LOCAL_MACHINE, Explorer + "Extensions"},
        {HKEY_LOCAL_MACHINE, Explorer + "MenuExt"},
        {HKEY_LOCAL_MACHINE, Disabled},
        {HKEY_CURRENT_USER, Explorer + "Toolbar"},
        {HKEY_CURRENT_USER, Explorer + "Extensions"},
        {HKEY_CURRENT_USER, Explorer + "MenuExt"},
        {HKEY_CURRENT_USER, Explorer + "URLSearchHooks"},
        {HKEY_CURRENT_USER, ZoneMap},
        {HKEY_CURRENT_USER, Disabled},
        {HKEY_CLASSES_ROOT, "Protocols"},
        {HKEY_CLASSES_ROOT, Disabled},
    };
    return places;
}

}  // namespace velkarix::e2e
