#include "MemoryCount.h"

#include <windows.h>
#include <malloc.h>

#include <array>
#include <cstdint>

namespace {

struct Use {
    std::size_t blocks = 0;
    std::size_t bytes = 0;
};

// Asks for no memory while it walks.
Use UseOf(HANDLE heap) {
    Use use;
    PROCESS_HEAP_ENTRY entry{};
    HeapLock(heap);
    while (HeapWalk(heap, &entry)) {
        if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) == 0) continue;
        ++use.blocks;
        use.bytes += entry.cbData;
    }
    HeapUnlock(heap);
    return use;
}

}  // namespace

std::string CountMemory() {
    // That of the C library, which nothing but the program has memory from, and this library.
    const Use own = UseOf(reinterpret_cast<HANDLE>(_get_heap_handle()));
    Use all;
    std::array<HANDLE, 64> heaps{};
    const DWORD count = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    for (DWORD i = 0; i < count && i < heaps.size(); ++i) {
        const Use use = UseOf(heaps[i]);
        all.blocks += use.blocks;
        all.bytes += use.bytes;
    }
    return std::to_string(own.blocks) + " " + std::to_string(own.bytes) + " " +
           std::to_string(all.blocks) + " " + std::to_string(all.bytes);
}
