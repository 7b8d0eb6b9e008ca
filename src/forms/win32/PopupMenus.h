// Popup menus, from their data.
#pragma once

#include <optional>
#include <string>

#include "forms/Menu.h"
#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

// Shows `menu` at a point of the screen and waits. Gives the name of the chosen entry, or nothing.
std::optional<std::string> TrackPopup(HWND owner, const Menu& menu, POINT point);

}  // namespace velkarix
