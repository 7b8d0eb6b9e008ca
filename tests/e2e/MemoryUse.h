// How much memory the program under test has.
#pragma once

#include "Program.h"

namespace velkarix::e2e {

struct MemoryUse {
    std::size_t blocks = 0;        // pieces of memory that the program itself has
    std::size_t bytes = 0;         // of those
    std::size_t allBytes = 0;      // with what the system's libraries have
    std::size_t privateBytes = 0;  // of the process as a whole, as the system counts them
};

MemoryUse MeasureMemory(const Program& program);

}  // namespace velkarix::e2e
