// A browser page of which one list is looked at, for the tests of how each list finds its rows.
#pragma once

#include <string>
#include <vector>

#include "tests/browser/ItemLists.h"

namespace velkarix {

enum class ScanKind { BHO, Toolbar, Button, Menu, Protocol, Domain, Hook };

struct ScanCase {
    ScanKind kind;
    const char* name;  // in the names of tests
    const ListCase& list;
    // The columns of a list that shows classes.
    std::size_t clsid = 0;
    std::size_t description = 0;
    std::size_t file = 0;
    std::size_t size = 0;  // and behind it the dates, company, product, description of the file
    std::size_t folder = 0;

    friend void PrintTo(const ScanCase& scan, std::ostream* stream) { *stream << scan.name; }
};

inline const ScanCase BHOScan = {ScanKind::BHO, "BHOs", BHOs, 0, 2, 3, 4, 9};
inline const ScanCase ToolbarScan = {ScanKind::Toolbar, "Toolbars", Toolbars, 0, 3, 4, 5, 10};
inline const ScanCase ButtonScan = {ScanKind::Button, "Buttons", Buttons, 0, 3, 4, 5, 10};
inline const ScanCase MenuScan = {ScanKind::Menu, "Menus", Menus};
inline const ScanCase ProtocolScan = {ScanKind::Protocol, "Protocols", Protocols, 1, 4, 5, 6, 11};
inline const ScanCase DomainScan = {ScanKind::Domain, "Domains", Domains};
inline const ScanCase HookScan = {ScanKind::Hook, "Hooks", Hooks, 0, 2, 3, 4, 9};

inline std::string ScanName(const testing::TestParamInfo<ScanCase>& info) {
    return info.param.name;
}

class ScannedListPage : public BrowserPage, public testing::WithParamInterface<ScanCase> {
  protected:
    const ScanCase& Case() { return GetParam(); }
    const ListCase& TheCase() { return GetParam().list; }
    // The first place that the list's items come from.
    const PlaceCase& Place() { return TheCase().places.front(); }
    std::string LiveKey(const std::string& name) { return Place().live + ("\\" + name); }

    // An item of that name which shows the class where the list shows classes.
    void PutNamed(Hive hive, const std::string& holder, const std::string& name,
                  const std::string& clsid) {
        const std::string key = holder + "\\" + name;
        switch (Case().kind) {
            case ScanKind::BHO:
                return AddKey(hive, key);
            case ScanKind::Toolbar:
            case ScanKind::Hook:
                return SetValue(hive, holder, name);
            case ScanKind::Button:
                SetValue(hive, key, "ClsidExtension", clsid);
                return SetValue(hive, key, "Script", "C:\\gone.js");
            case ScanKind::Menu:
                return SetValue(hive, key, "", "C:\\" + name + ".htm");
            case ScanKind::Protocol:
                return SetValue(hive, key, "CLSID", clsid);
            case ScanKind::Domain:
                return Machine().SetDword(hive, key, "*", 2);
        }
    }
    // Items of the first place, with a class whose file is gone, so that each makes a row.
    void PutLive(const std::string& name) {
        PutNamed(Place().hive, Place().live, name, name);
        RegisterClass(name, "C:\\gone.dll");
    }
    void PutHeld(const std::string& name) {
        PutNamed(Place().hive, Place().held, name, name);
        RegisterClass(name, "C:\\gone.dll");
    }

    ListView& TheList() { return List(TheCase().list); }
    ListRow& Row(std::size_t position) { return TheList().Row(position); }
    std::vector<RowTexts> AllRows() { return Rows(TheCase().list); }
    RowTexts Column(std::size_t column) { return ColumnOf(TheCase().list, column); }
    // The names of the items.
    RowTexts Names() {
        RowTexts names = RowNames(TheCase().list);
        for (std::string& name : names) name.erase(0, std::string(TheCase().textPrefix).size());
        return names;
    }
    void Refresh() { Click(TheCase().refresh); }
};

}  // namespace velkarix
