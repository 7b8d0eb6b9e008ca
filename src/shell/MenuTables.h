// The context menus as data.
#pragma once

#include <vector>

#include "forms/Menu.h"

namespace velkarix {

// The ten menus, one for each list that has one, with all their entries enabled.
std::vector<Menu> AllMenus();

}  // namespace velkarix
