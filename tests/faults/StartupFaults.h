// One command of the startup page as a row of the table of faults: which items are there, and what
// may be left of them whatever goes wrong.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tests/machine/FaultRunner.h"
#include "tests/startup/StartupPage.h"

namespace velkarix {

enum class StartupAction { Disable, Enable, Delete };

// An item that is somewhere before the command is given.
struct StartupFaultItem {
    std::string location;
    std::string name;
    bool enabled = true;
    bool takesPart = true;  // its row is ticked, or selected
    // Another item of its name may take its place; it is to be kept then.
    bool mayGiveWay = false;
    std::uint32_t type = registryType::Sz;
    std::string content;  // of a value: with its NUL

    bool IsValue() const { return FindRunKey(location) != nullptr; }
};

struct StartupFault {
    std::string circumstances;
    StartupAction action;
    std::vector<StartupFaultItem> items;
    NamedSystem system = NamedSystem::WindowsXp;
    std::optional<std::uint64_t> freeBytes = {};
};

// Wrong is: an item that stands whole in neither place nor in what is kept, a
// row that the next load of the page shows amiss, and an item that the program's own command
// doesn't bring back.
FaultScene SceneOf(const StartupFault& fault);

}  // namespace velkarix
