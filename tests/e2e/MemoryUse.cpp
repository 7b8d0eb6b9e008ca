#include "MemoryUse.h"

#include <windows.h>
// The header of the process facts needs the system's before it.
#include <psapi.h>

#include <sstream>

#include "AskInside.h"

namespace velkarix::e2e {

MemoryUse MeasureMemory(const Program& program) {
    MemoryUse use;
    std::size_t allBlocks = 0;
    std::istringstream(AskInside(program.Main(), CountMemoryQuestion)) >> use.blocks >> use.bytes >>
        allBlocks >> use.allBytes;
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(program.OwnProcess().Handle(), &counters, sizeof counters);
    use.privateBytes = counters.PagefileUsage;
    return use;
}

}  // namespace velkarix::e2e
