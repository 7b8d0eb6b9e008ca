#include "SkipSaveDialog.h"

#include <windows.h>
// The header of the dialogs needs the system's before it.
#include <commdlg.h>

#include <cstdint>
#include <cstring>

#include "Inside.h"
#include "Pin.h"

namespace {

BOOL WINAPI Answered(OPENFILENAMEA* dialog) {
    char folder[MAX_PATH] = "";
    GetCurrentDirectoryA(MAX_PATH, folder);
    wsprintfA(dialog->lpstrFile, "%s\\%s", folder, velkarix::e2e::SavedName);
    return TRUE;
}

}  // namespace

bool SkipSaveDialog() {
    constexpr std::uint8_t Jump = 0xE9;  // to a distance from the byte behind it
    constexpr std::size_t Size = 5;
    void* const ask =
        reinterpret_cast<void*>(GetProcAddress(LoadLibraryA("comdlg32.dll"), "GetSaveFileNameA"));
    DWORD protection = 0;
    if (ask == nullptr || !VirtualProtect(ask, Size, PAGE_EXECUTE_READWRITE, &protection)) {
        return false;
    }
    Pin();
    const auto distance = static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(&Answered) -
                                                     reinterpret_cast<std::uintptr_t>(ask) - Size);
    auto* const code = static_cast<std::uint8_t*>(ask);
    code[0] = Jump;
    std::memcpy(code + 1, &distance, sizeof distance);
    VirtualProtect(ask, Size, protection, &protection);
    FlushInstructionCache(GetCurrentProcess(), ask, Size);
    return true;
}
