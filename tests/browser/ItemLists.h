// The seven lists of the browser page that show items, as tables: for the tests of what they all
// do.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <ostream>
#include <string>
#include <vector>

#include "tests/browser/BrowserPage.h"
#include "tests/machine/RegistryFileMerge.h"

namespace velkarix {

struct PlaceCase {
    const char* scope;
    Hive hive;
    const char* live;
    const char* held;
    bool bytes = false;  // its values hold bytes and not text
};

struct ListCase {
    const char* list;
    const char* disable;
    const char* enable;
    const char* remove;
    const char* refresh;
    const char* report;
    const char* view;    // null where the list has no such button
    const char* folder;  // null as well
    const char* menu;
    const char* openEntry;   // null as well
    const char* backup;      // what names the list in the file of what was deleted
    const char* names;       // of items, with a letter in place of "?"
    const char* textPrefix;  // of the row's text, before the name
    bool values;             // the items are values and not keys
    std::size_t enabled;     // columns
    std::size_t scope;       // 0 where there is none
    std::vector<PlaceCase> places;
};

inline void PrintTo(const ListCase& list, std::ostream* stream) {
    *stream << list.list;
}

inline const ListCase BHOs = {"lstvBHO",
                              "cmdDisableBHO",
                              "cmdEnableBHO",
                              "cmdBHODelete",
                              "cmdRefreshBHO",
                              "cmdReportBHO",
                              "cmdViewInfoBHO",
                              "cmdFolderBHO",
                              "mnuBHO",
                              "mnuBHO_Open",
                              "BHO",
                              "{?-B40}",
                              "",
                              false,
                              1,
                              0,
                              {{"", Hive::LocalMachine, live::BHOs, held::BHOs}}};
inline const ListCase Toolbars = {
    "lstvToolbar",
    "cmdToolbarDisable",
    "cmdToolbarEnable",
    "cmdDeleteToolbar",
    "cmdRefreshToolbar",
    "cmdreportToolbar",
    "cmdViewInfoToolbar",
    "cmdFolderToolbar",
    "mnuToolbar",
    "mnuToolbar_Open",
    "Toolbar",
    "{?-7B}",
    "",
    true,
    1,
    2,
    {{"All Users", Hive::LocalMachine, live::Toolbars, held::Toolbars},
     {"Current User", Hive::CurrentUser, live::UserToolbars, held::Toolbars, true}}};
inline const ListCase Buttons = {
    "lstvButtons",
    "cmdButtonDisable",
    "cmdButtonEnable",
    "cmdDeleteButton",
    "cmdRefreshButton",
    "cmdReportButton",
    "cmdViewInfoButton",
    "cmdFolderButton",
    "mnuButtons",
    "mnuButtons_Open",
    "Buttons",
    "{?-B7}",
    "",
    false,
    1,
    2,
    {{"All Users", Hive::LocalMachine, live::Buttons, held::Buttons},
     {"Current User", Hive::CurrentUser, live::Buttons, held::Buttons}}};
inline const ListCase Menus = {"lstvMenu",
                               "cmdDisableMenu",
                               "cmdEnableMenu",
                               "cmdDeleteMenu",
                               "cmdRefreshMenu",
                               "cmdReportMenu",
                               nullptr,
                               "cmdFolderMenu",
                               "mnuContext",
                               "mnuContext_Open",
                               "Menu",
                               "Send to &? ...",
                               "",
                               false,
                               1,
                               2,
                               {{"All Users", Hive::LocalMachine, live::Menus, held::Menus},
                                {"Current User", Hive::CurrentUser, live::Menus, held::Menus}}};
inline const ListCase Protocols = {
    "lstvProtocol",
    "cmdProtocolDisable",
    "cmdProtocolEnable",
    "cmdProtocolDelete",
    "cmdProtocolRefresh",
    "cmdProtocolReport",
    "cmdProtocolViewInfo",
    "cmdProtocolFolder",
    "mnuProtocol",
    "mnuProtocol_Open",
    "Protocol",
    "text/?",
    "",
    false,
    2,
    3,
    {{"Filter", Hive::ClassesRoot, live::Filters, held::Filters},
     {"Handler", Hive::ClassesRoot, live::Handlers, held::Handlers}}};
inline const ListCase Domains = {"lstvDomains",
                                 "cmdDomainDisable",
                                 "cmdDomainEnable",
                                 "cmdDomainDelete",
                                 "cmdDomainRefresh",
                                 "cmdDomainReport",
                                 nullptr,
                                 nullptr,
                                 "mnuDomain",
                                 nullptr,
                                 "Domains",
                                 "?.example.com",
                                 "*.",
                                 false,
                                 1,
                                 0,
                                 {{"", Hive::CurrentUser, live::Domains, held::Domains}}};
inline const ListCase Hooks = {"lstvHook",
                               "cmdHookDisable",
                               "cmdHookEnable",
                               "cmdHookDelete",
                               "cmdHookRefresh",
                               "cmdHookReport",
                               "cmdHookInfo",
                               "cmdHookFolder",
                               "mnuHook",
                               "mnuHook_Open",
                               "Hook",
                               "{?-400}",
                               "",
                               true,
                               1,
                               0,
                               {{"", Hive::CurrentUser, live::Hooks, held::Hooks}}};

inline const std::vector<const ListCase*> AllLists = {&BHOs,      &Toolbars, &Buttons, &Menus,
                                                      &Protocols, &Domains,  &Hooks};

// One scope of one list.
struct ScopeCase {
    const ListCase* list;
    const PlaceCase* place;
};

inline void PrintTo(const ScopeCase& scope, std::ostream* stream) {
    *stream << scope.list->list << " " << scope.place->scope;
}

inline std::vector<ScopeCase> AllScopes() {
    std::vector<ScopeCase> scopes;
    for (const ListCase* list : AllLists) {
        for (const PlaceCase& place : list->places) scopes.push_back({list, &place});
    }
    return scopes;
}

// The name of a parametrised test.
inline std::string Letters(std::string text) {
    std::erase_if(text, [](unsigned char c) { return std::isalnum(c) == 0; });
    return text;
}

inline std::string ItemName(const ListCase& list, char letter) {
    std::string name = list.names;
    std::replace(name.begin(), name.end(), '?', letter);
    return name;
}

inline constexpr const char* ItemFile = "C:\\Some Tools\\item.dll";
inline constexpr const char* ProtocolClass = "{C1A55000-2F30}";  // of all protocols

// Puts an item there in which every kind of list finds what makes a row of it: all of them name
// ItemFile, by their class or by its path.
inline void PutItem(MemoryMachine& machine, const ListCase& list, const PlaceCase& place,
                    bool enabled, char letter) {
    const std::string holder = enabled ? place.live : place.held;
    const std::string name = ItemName(list, letter);
    if (place.bytes) {
        machine.registry.SetRaw(place.hive, holder, name, registryType::Binary, {1, 2, 3});
    } else if (list.values) {
        machine.SetValue(place.hive, holder, name, std::string("of ") + letter);
    } else {
        const std::string key = holder + "\\" + name;
        machine.SetValue(place.hive, key, "", ItemFile);
        machine.SetValue(place.hive, key, "Script", ItemFile);
        machine.SetValue(place.hive, key, "CLSID", ProtocolClass);
        machine.SetDword(place.hive, key, "*", 2);
        machine.SetDword(place.hive, key + "\\www", "ftp", 4);
    }
}

// What the classes of the items are registered with.
inline void PutClasses(MemoryMachine& machine) {
    const auto put = [&machine](const std::string& clsid) {
        machine.SetValue(Hive::ClassesRoot, "CLSID\\" + clsid + "\\InprocServer32", "", ItemFile);
    };
    put(ProtocolClass);
    for (const ListCase* list : AllLists) {
        for (char letter = 'A'; letter <= 'Z'; ++letter) put(ItemName(*list, letter));
    }
}

// The whole registry, to compare states.
inline std::string StateOf(const MemoryMachine& machine) {
    return machine.registry.TreeText(Hive::LocalMachine, "") +
           machine.registry.TreeText(Hive::CurrentUser, "");
}

class ItemListPage : public BrowserPage {
  protected:
    void Put(const ListCase& list, const PlaceCase& place, bool enabled, const char* letters) {
        for (const char* letter = letters; *letter != 0; ++letter) {
            PutItem(Machine(), list, place, enabled, *letter);
        }
    }
    std::string State() { return StateOf(Machine()); }
    ListView& ListOf(const ListCase& list) { return List(list.list); }

    // The row of that item in that state and scope; null when there is none.
    ListRow* RowOf(const ListCase& list, const PlaceCase& place, bool enabled, char letter) {
        ListView& view = ListOf(list);
        for (std::size_t i = 0; i < view.RowCount(); ++i) {
            ListRow& row = view.Row(i);
            if (row.Key() == ItemName(list, letter) &&
                row.Text(list.enabled) == (enabled ? "True" : "False") &&
                (list.scope == 0 || row.Text(list.scope) == place.scope)) {
                return &row;
            }
        }
        return nullptr;
    }
    void TickItem(const ListCase& list, const PlaceCase& place, bool enabled, char letter) {
        ListRow* row = RowOf(list, place, enabled, letter);
        ASSERT_NE(row, nullptr) << letter;
        ListOf(list).UserCheck(*row, true);
    }
    void SelectItem(const ListCase& list, const PlaceCase& place, bool enabled, char letter) {
        ListOf(list).UserSelect(RowOf(list, place, enabled, letter));
    }
    // Each call that changes the registry, with its arguments.
    RowTexts Changes() {
        RowTexts changes;
        for (const Call& call : Machine().Journal().Calls()) {
            for (const char* name : {"RegCreateKeyA", "SHCopyKeyA", "RegSetValueExA",
                                     "RegDeleteKeyA", "RegDeleteValueA"}) {
                if (call.name == name) changes.push_back(call.name + " " + call.arguments);
            }
        }
        return changes;
    }
};

}  // namespace velkarix
