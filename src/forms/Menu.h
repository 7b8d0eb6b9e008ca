// A popup menu as data.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace velkarix {

struct MenuEntry {
    std::string name;     // the product's name ("mnuKill"); a separator has none
    std::string caption;  // with "&" before its access key
    std::string handler;  // what a click runs on the page ("cmdKill_Click"); empty: nothing
    bool enabled = true;

    bool IsSeparator() const { return name.empty(); }
};

struct Menu {
    std::string name;
    std::string caption;
    std::vector<MenuEntry> entries;

    // The entry of that name, or null.
    MenuEntry* Find(std::string_view entryName) {
        const auto found = std::find_if(entries.begin(), entries.end(),
                                        [&](const MenuEntry& e) { return e.name == entryName; });
        return found == entries.end() ? nullptr : &*found;
    }
};

}  // namespace velkarix
