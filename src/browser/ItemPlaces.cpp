#include "browser/ItemPlaces.h"

#include <algorithm>

#include "shell/DeleteItem.h"
#include "shell/Relocation.h"

namespace velkarix {

namespace {

constexpr const char* AllUsers = "All Users";
constexpr const char* CurrentUser = "Current User";

constexpr ItemPlace BHOs[] = {
    {"", Hive::LocalMachine,
     "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects", "BHO"},
};
constexpr ItemPlace Toolbars[] = {
    {AllUsers, Hive::LocalMachine, "Software\\Microsoft\\Internet Explorer\\Toolbar", "Toolbar"},
    {CurrentUser, Hive::CurrentUser, "Software\\Microsoft\\Internet Explorer\\Toolbar\\WebBrowser",
     "Toolbar"},
};
constexpr ItemPlace Buttons[] = {
    {AllUsers, Hive::LocalMachine, "Software\\Microsoft\\Internet Explorer\\Extensions", "Buttons"},
    {CurrentUser, Hive::CurrentUser, "Software\\Microsoft\\Internet Explorer\\Extensions",
     "Buttons"},
};
constexpr ItemPlace Menus[] = {
    {AllUsers, Hive::LocalMachine, "Software\\Microsoft\\Internet Explorer\\MenuExt", "Menu"},
    {CurrentUser, Hive::CurrentUser, "Software\\Microsoft\\Internet Explorer\\MenuExt", "Menu"},
};
constexpr ItemPlace Protocols[] = {
    {"Filter", Hive::ClassesRoot, "Protocols\\Filter", "Protocols\\Filter"},
    {"Handler", Hive::ClassesRoot, "Protocols\\Handler", "Protocols\\Handler"},
};
constexpr ItemPlace Domains[] = {
    {"", Hive::CurrentUser,
     "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains",
     "Domains"},
};
constexpr ItemPlace Hooks[] = {
    {"", Hive::CurrentUser, "Software\\Microsoft\\Internet Explorer\\URLSearchHooks", "Hooks"},
};

}  // namespace

const ItemPlaces BHOPlaces = {"BHO", ItemKind::Key, BHOs, false};
const ItemPlaces ToolbarPlaces = {"Toolbar", ItemKind::ToolbarValue, Toolbars, true};
const ItemPlaces ButtonPlaces = {"Buttons", ItemKind::Key, Buttons, false};
const ItemPlaces MenuPlaces = {"Menu", ItemKind::Key, Menus, true};
const ItemPlaces ProtocolPlaces = {"Protocol", ItemKind::Key, Protocols, false};
const ItemPlaces DomainPlaces = {"Domains", ItemKind::Key, Domains, false};
const ItemPlaces HookPlaces = {"Hook", ItemKind::TextValue, Hooks, false};

const ItemPlace& PlaceOfScope(const ItemPlaces& places, const std::string& scope) {
    const auto found = std::find_if(places.places.begin(), places.places.end(),
                                    [&](const ItemPlace& each) { return scope == each.scope; });
    return found == places.places.end() ? places.places.front() : *found;
}

std::string HoldingKey(const Application& application, const ItemPlace& place, bool enabled) {
    return enabled ? place.live : application.DisabledRoot + place.held;
}

void MoveItem(Application& application, const ItemPlaces& places, const BrowserItem& item) {
    const Hive hive = item.place->hive;
    const std::string source = HoldingKey(application, *item.place, item.enabled);
    const std::string destination = HoldingKey(application, *item.place, !item.enabled);
    switch (places.kind) {
        case ItemKind::Key:
            RelocateKey(application, places.list, hive, source + "\\" + item.name,
                        destination + "\\" + item.name);
            return;
        case ItemKind::TextValue:
            RelocateValue(application, places.list, hive, source, destination, item.name);
            return;
        case ItemKind::ToolbarValue:
            RelocateToolbarValue(application, places.list, hive, source, destination, item.name);
            return;
    }
}

void DeleteItem(Application& application, const ItemPlaces& places, const BrowserItem& item) {
    const std::string key = HoldingKey(application, *item.place, item.enabled);
    if (places.kind == ItemKind::Key) {
        DeleteItemKey(application, places.list, item.place->hive, key + "\\" + item.name);
    } else {
        DeleteItemValue(application, places.list, item.place->hive, key, item.name);
    }
}

}  // namespace velkarix
