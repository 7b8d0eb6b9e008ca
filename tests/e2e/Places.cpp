#include "Places.h"

#include "Input.h"
#include "Wait.h"

namespace velkarix::e2e {

namespace {

constexpr Place Places[] = {
    {"cmdProcess"},
    {"cmdIE", "cmdBHO"},
    {"cmdIE", "cmdToolbar"},
    {"cmdIE", "cmdButton"},
    {"cmdIE", "cmdMenu"},
    {"cmdIE", "cmdProtocol"},
    {"cmdIE", "cmdDomain"},
    {"cmdIE", "cmdURLs"},
    {"cmdIE", "cmdAdvance", 1},
    {"cmdIE", "cmdAdvance", 2},
    {"cmdIE", "cmdAdvance", 3},
    {"cmdIE", "cmdAdvance", 4},
    {"cmdStartup"},
    {"cmdAddremove", "optIcon"},
    {"cmdAddremove", "optReport"},
    {"cmdOptions"},
    {"cmdUtilities"},
};

}  // namespace

std::span<const Place> AllPlaces() {
    return Places;
}

std::string NameOf(const Place& place) {
    std::string name = place.page;
    if (place.view != nullptr) name += std::string("/") + place.view;
    if (place.tab != 0) name += "/" + std::to_string(place.tab);
    return name;
}

bool GoTo(const Program& program, const Place& place) {
    if (!program.Press(place.page)) return false;
    if (place.view != nullptr && !program.Press(place.view)) return false;
    if (place.tab == 0) return true;
    return TurnToTab(program, TabWindow(program.Control("tbMain")), place.tab);
}

// By the keyboard: on a small screen the tab itself may be out of sight.
bool TurnToTab(const Program& program, const TabWindow& tabs, int tab) {
    if (!BringToFront(program.Main())) return false;
    const std::size_t count = tabs.Captions().size();
    for (std::size_t i = 0; i < count && tabs.Selected() != tab; ++i) {
        const int before = tabs.Selected();
        PressKey(VK_TAB, {VK_CONTROL});
        if (!WaitUntil([&] { return tabs.Selected() != before; })) return false;
    }
    return tabs.Selected() == tab;
}

}  // namespace velkarix::e2e
