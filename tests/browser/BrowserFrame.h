// The frame of the browser page: its views as a table, and what tests ask of it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "tests/browser/ItemLists.h"

namespace velkarix {

struct ViewCase {
    const char* button;
    const char* words;
    const char* skinElement;
    const char* caption;
    const char* list;  // that gets the focus; null where none does
};

inline constexpr ViewCase Views[] = {
    {"cmdBHO", "BHOs", "BHO", "Internext Explorer Browser Helper Objects (BHO) List", "lstvBHO"},
    {"cmdToolbar", "Toolbars", "Toolbar", "Internet Explorer Toolbar List", "lstvToolbar"},
    {"cmdButton", "Buttons", "But", "Internet Explorer Toolbar Buttons List", "lstvButtons"},
    {"cmdMenu", "Context Menu", "Context", "Internet Explorer Context Menu Item List", "lstvMenu"},
    {"cmdURLs", "URLs", "URLs", "Internet Explorer URLs", nullptr},
    {"cmdProtocol", "Protocols", "Protocol", "Explorer Protocols List", "lstvProtocol"},
    {"cmdDomain", "Domains", "Domain", "Internext Explorer Domains List", "lstvDomains"},
    {"cmdAdvance", "Advanced", "Advance", "Internext Explorer Advance Settings", nullptr},
};
inline constexpr std::size_t URLs = 4;
inline constexpr std::size_t Advanced = 7;
inline constexpr const char* SubViews[] = {"URL Search Hooks", "Proxy Settings",
                                           "Protocol Defaults", "Security Zones"};

inline std::string Element(const char* group, std::size_t index) {
    return group + ("(" + std::to_string(index) + ")");
}

class BrowserFrame : public ItemListPage {
  protected:
    // The indices of the visible elements of a group of controls.
    std::vector<std::size_t> Visible(const char* group) {
        std::vector<std::size_t> visible;
        for (std::size_t i = 0; Page().Find(Element(group, i)) != nullptr; ++i) {
            if (Page().Find(Element(group, i))->Visible()) visible.push_back(i);
        }
        return visible;
    }
    using Indices = std::vector<std::size_t>;
    TabStrip& Tabs() { return program.Get<TabStrip>("frmIE", "tbMain"); }
    Button& ViewButton(std::size_t view) {
        return program.Get<Button>("frmIE", Views[view].button);
    }
    // Forgets what was called and shown so far.
    void Forget() {
        Machine().Journal().Clear();
        program.desktop.events.clear();
    }
    // Runs `look` with each view and each sub-view on view.
    void LookAtEachView(const std::function<void()>& look) {
        Open();
        for (std::size_t view = 0; view < std::size(Views); ++view) {
            SCOPED_TRACE(Views[view].button);
            Page().SwitchView(static_cast<std::int16_t>(view));
            look();
        }
        for (std::size_t tab = 1; tab < std::size(SubViews); ++tab) {
            SCOPED_TRACE(SubViews[tab]);
            Page().SwitchAdvancedView(static_cast<std::int16_t>(tab));
            look();
        }
    }
};

}  // namespace velkarix
