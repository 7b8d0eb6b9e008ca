// One command of one list of the browser page as a row of the table of faults: which items are
// there, and what may be left of them whatever goes wrong.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/browser/HardItems.h"
#include "tests/machine/FaultRunner.h"

namespace velkarix {

enum class ItemAction { Disable, Enable, Delete };

// An item that is somewhere before the command is given.
struct FaultItem {
    const PlaceCase* place;
    bool enabled;
    std::string name;
    bool takesPart = true;  // its row is ticked, or selected
    // Another item of its name may be written over it; it is to be kept in a file then.
    bool mayGiveWay = false;

    // As text: what it is, and what it is after a move.
    std::string original = {};
    std::string arrived = {};
};

struct BrowserFault {
    const ListCase& list;
    ItemAction action;
    // Makes the machine what it is to be, puts the items there and tells of them.
    std::function<std::vector<FaultItem>(MemoryMachine&)> prepare;
};

// Wrong is: an item that stands whole in neither place nor in a kept file
// that brings it back, a row that the next load of the page shows amiss, and what the program's
// own commands and the kept files together can't undo.
FaultScene SceneOf(const BrowserFault& fault, const std::string& circumstances);

}  // namespace velkarix
