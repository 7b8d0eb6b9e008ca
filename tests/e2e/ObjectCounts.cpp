#include "ObjectCounts.h"

#include <windows.h>
#include <gtest/gtest.h>
#include <winternl.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "AskInside.h"

namespace velkarix::e2e {

namespace {

// A function that isn't in every system's libraries; null when this one's lacks it.
template <typename Call>
Call LateCall(const char* library, const char* name) {
    return reinterpret_cast<Call>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA(library), name)));
}

// What the system's table of all handles says of one of them (32-bit systems).
struct HandleEntry {
    std::uint32_t process;
    std::uint8_t type;
    std::uint8_t flags;
    std::uint16_t handle;
    std::uint32_t object;
    std::uint32_t access;
};

// Where the system's own count is a stub, as it is in Wine, the table of all handles isn't.
DWORD HandlesInTable(DWORD processId) {
    using Query = LONG(WINAPI*)(int, void*, ULONG, ULONG*);
    constexpr int HandleInformation = 16;
    const auto query = LateCall<Query>("ntdll.dll", "NtQuerySystemInformation");
    std::vector<std::uint8_t> table(1 << 20);
    if (query == nullptr ||
        query(HandleInformation, table.data(), static_cast<ULONG>(table.size()), nullptr) != 0) {
        return 0;
    }
    std::uint32_t count = 0;
    std::memcpy(&count, table.data(), sizeof count);
    std::vector<HandleEntry> entries(count);
    std::memcpy(entries.data(), table.data() + sizeof count, count * sizeof(HandleEntry));
    return static_cast<DWORD>(std::ranges::count(entries, processId, &HandleEntry::process));
}

DWORD KernelHandles(const Process& process) {
    using Query = BOOL(WINAPI*)(HANDLE, PDWORD);
    const auto query = LateCall<Query>("kernel32.dll", "GetProcessHandleCount");
    DWORD count = 0;
    if (query != nullptr && query(process.Handle(), &count) && count > 0) return count;
    return HandlesInTable(process.Id());
}

// An entry of the table of GDI objects that lies in each process (32-bit systems).
struct GdiEntry {
    std::uint64_t object;
    std::uint32_t owner;
    std::uint16_t unique;  // its low seven bits tell the kind
    std::uint8_t type;     // 0 in an entry that isn't used
    std::uint8_t flags;
    std::uint64_t user;
};
static_assert(sizeof(GdiEntry) == 24);

bool IsUsed(const GdiEntry& entry) {
    return entry.type != 0;
}

bool IsWindowContext(const GdiEntry& entry) {
    constexpr std::uint16_t KindBits = 0x7F;
    constexpr std::uint16_t DeviceContext = 0x01;  // one in memory is another kind
    return IsUsed(entry) && (entry.unique & KindBits) == DeviceContext;
}

// Counts into `counts` what the table says, and leaves it alone where there is no table.
void CountGdiTable(HANDLE process, ObjectCounts& counts) {
    using Query = LONG(WINAPI*)(HANDLE, int, void*, ULONG, ULONG*);
    constexpr std::size_t TableInBlock = 0x94;
    constexpr std::size_t TableSize = 16384;
    const auto query = LateCall<Query>("ntdll.dll", "NtQueryInformationProcess");
    PROCESS_BASIC_INFORMATION basic{};
    if (query == nullptr ||
        query(process, ProcessBasicInformation, &basic, sizeof basic, nullptr) != 0) {
        return;
    }
    void* address = nullptr;
    const char* block = reinterpret_cast<const char*>(basic.PebBaseAddress);
    ReadProcessMemory(process, block + TableInBlock, &address, sizeof address, nullptr);
    std::vector<GdiEntry> table(TableSize);
    if (!ReadProcessMemory(process, address, table.data(), TableSize * sizeof(GdiEntry), nullptr)) {
        return;
    }
    // Wine keeps the contexts of windows for the next who draws, each with a region and a bitmap.
    constexpr DWORD ObjectsOfAContext = 3;
    counts.windowContexts = static_cast<DWORD>(std::ranges::count_if(table, IsWindowContext));
    counts.gdi = static_cast<DWORD>(std::ranges::count_if(table, IsUsed)) -
                 counts.windowContexts * ObjectsOfAContext;
}

DWORD MostFrequent(const std::vector<ObjectCounts>& counts, DWORD ObjectCounts::*kind) {
    const auto times = [&](const ObjectCounts& each) {
        return std::ranges::count(counts, each.*kind, kind);
    };
    return std::ranges::max(counts, {}, times).*kind;
}

}  // namespace

ObjectCounts CountObjects(const Program& program) {
    const Process& process = program.OwnProcess();
    ObjectCounts counts;
    counts.user = GetGuiResources(process.Handle(), GR_USEROBJECTS);
    if (counts.user == 0) {
        counts.user = static_cast<DWORD>(
            std::atoi(AskInside(program.Main(), CountUserObjectsQuestion).c_str()));
    }
    counts.gdi = GetGuiResources(process.Handle(), GR_GDIOBJECTS);
    if (counts.gdi == 0) CountGdiTable(process.Handle(), counts);
    counts.kernel = KernelHandles(process);
    return counts;
}

ObjectCounts RestingObjects(const Program& program) {
    // What is drawn for the first time makes objects that stay.
    RedrawWindow(program.Main().Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    std::vector<ObjectCounts> counts;
    for (int i = 0; i < 16; ++i) {
        counts.push_back(CountObjects(program));
        Sleep(20);
    }
    ObjectCounts usual;
    for (DWORD ObjectCounts::*const kind : {&ObjectCounts::kernel, &ObjectCounts::gdi,
                                            &ObjectCounts::user, &ObjectCounts::windowContexts}) {
        usual.*kind = MostFrequent(counts, kind);
    }
    EXPECT_GT(std::min({usual.kernel, usual.gdi, usual.user}), 0u) << "no count to be had";
    return usual;
}

void ExpectNoMoreObjects(const Program& program, const ObjectCounts& before) {
    const ObjectCounts now = RestingObjects(program);
    EXPECT_LE(now.kernel, before.kernel);
    EXPECT_LE(now.gdi, before.gdi);
    EXPECT_LE(now.user, before.user);
    // How many contexts wait for the next who draws depends on how much was drawn at once; a
    // context that isn't given back is lost at every switch.
    constexpr DWORD MostThatWait = 64;
    EXPECT_LE(now.windowContexts, before.windowContexts + MostThatWait);
}

}  // namespace velkarix::e2e
