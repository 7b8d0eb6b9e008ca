// Every place of the program that the user can go to: pages, their views, and the tabs of those.
#pragma once

#include <span>
#include <string>

#include "Program.h"
#include "TabWindow.h"

namespace velkarix::e2e {

struct Place {
    const char* page;            // the button that leads to the page
    const char* view = nullptr;  // the button or option that leads to the view; null: none
    int tab = 0;                 // from 1; 0: none
};

// In the order of the program.
std::span<const Place> AllPlaces();
// In words, for a test that fails there.
std::string NameOf(const Place& place);
// False when there is no way there.
bool GoTo(const Program& program, const Place& place);
// Selects a tab of a strip on view, from 1.
bool TurnToTab(const Program& program, const TabWindow& tabs, int tab);

}  // namespace velkarix::e2e
