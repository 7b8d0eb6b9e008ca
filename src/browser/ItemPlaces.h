// Where the browser looks for what extends it, and where the program keeps what is switched off.
// There is no other record of what is off: an item is on while it lies in its live place and off
// while it lies in the holding area, in the same hive.
#pragma once

#include <span>
#include <string>

#include "platform/Registry.h"
#include "shell/Application.h"

namespace velkarix {

struct ItemPlace {
    const char* scope;  // as the list's scope column says it; empty for a list without one
    Hive hive;
    const char* live;  // the key that holds the items
    const char* held;  // the same in the holding area, behind DisabledRoot
};

// What an item is, which decides how it is moved.
enum class ItemKind {
    Key,           // a key with all that is in it
    TextValue,     // a value, text wherever it lies
    ToolbarValue,  // a value, text or bytes by its hive
};

// The places of one list.
struct ItemPlaces {
    const char* list;  // its name in the file names of backups
    ItemKind kind;
    std::span<const ItemPlace> places;  // live items are listed in this order
    bool heldInReverse;                 // and held ones in the reverse
};

extern const ItemPlaces BHOPlaces;
extern const ItemPlaces ToolbarPlaces;
extern const ItemPlaces ButtonPlaces;
extern const ItemPlaces MenuPlaces;
extern const ItemPlaces ProtocolPlaces;
extern const ItemPlaces DomainPlaces;
extern const ItemPlaces HookPlaces;

// One item of a list, as a row of the list tells it.
struct BrowserItem {
    const ItemPlace* place;
    std::string name;  // of its key or value
    bool enabled;
};

// The place of that scope; the first one when there is none.
const ItemPlace& PlaceOfScope(const ItemPlaces& places, const std::string& scope);
// The key that holds the items of a place which are on, or off.
std::string HoldingKey(const Application& application, const ItemPlace& place, bool enabled);

// Moves the item to where it is off, or on again when it is off.
void MoveItem(Application& application, const ItemPlaces& places, const BrowserItem& item);
// Removes the item where it lies, once a registry file that brings it back is kept.
void DeleteItem(Application& application, const ItemPlaces& places, const BrowserItem& item);

}  // namespace velkarix
