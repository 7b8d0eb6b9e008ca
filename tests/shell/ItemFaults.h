// Moves and deletions with trouble at each of their calls in turn: whatever fails, and wherever the
// process ends, the item must stand whole somewhere.
#pragma once

#include <functional>
#include <string>

#include "tests/shell/ItemFixture.h"

namespace velkarix {

struct ItemCommand {
    std::function<void(MemoryRegistry&)> prepare;
    std::function<void(Application&)> give;
    // Whether the item stands whole; `kept` is what merging all kept registry files gives.
    std::function<bool(const MemoryRegistry& now, const MemoryHives& kept)> stands;
    // Whether the command did its work, as it must where nothing is in trouble.
    std::function<bool(const MemoryRegistry& now)> done;
};

// Gives the command on machines of both families, with SHCopyKeyA and without it, with each call
// failing alone, with all from it on failing, and with the process ending there.
void ExpectNeverLost(const ItemCommand& command);

}  // namespace velkarix
