// The lists of the browser page by the names of their controls, and some items of the sample
// machine for each: where they lie while they are enabled and while they are disabled.
#pragma once

#include <windows.h>

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "RegistryTree.h"

namespace velkarix::e2e {

struct BrowserList {
    const char* strip;  // the button that leads to the view
    const char* list;
    const char* disable;
    const char* enable;
    const char* remove;
    const char* view;  // null where there is none, as the next
    const char* folder;
    const char* refresh;
    const char* report;
    const char* backup;  // the list's name in those of its registry files
    int enabledColumn;
    int scopeColumn;  // 0 where there is none
};

extern const BrowserList BHOs;
extern const BrowserList Toolbars;
extern const BrowserList Buttons;
extern const BrowserList Menus;
extern const BrowserList Protocols;
extern const BrowserList Domains;
extern const BrowserList Hooks;
// All of them, in the order of the strip.
extern const std::vector<const BrowserList*> BrowserLists;

// A class of the sample machine, by the digits that only it has.
std::string Clsid(const std::string& digits);

struct RegistryPlace {
    HKEY hive;
    std::string path;
};

// An item of a list: a key with all that is in it, or a value.
struct SampleItem {
    const char* title;  // of the test that is run for it
    const BrowserList& list;
    std::string text;   // of the row
    std::string scope;  // empty where the list has none
    HKEY hive;
    std::string live;  // the key that holds it, or that it is
    std::string held;
    std::string value = {};  // its name, if it is a value
};
std::ostream& operator<<(std::ostream& stream, const SampleItem& item);

extern const std::vector<SampleItem> SampleItems;

// The item with all that is in it, in its live or held place; nothing when it isn't there.
std::optional<RegistryTree> ReadItem(const SampleItem& item, bool enabled);

// What somebody else may do meanwhile: take a live item away, or put a copy of it where the
// disabled ones lie.
void RemoveItem(const SampleItem& item);
void CopyToHeld(const SampleItem& item);

// Every place that the page changes.
const std::vector<RegistryPlace>& BrowserPlaces();

}  // namespace velkarix::e2e
