#include "EndAtChange.h"

#include <windows.h>
#include <tlhelp32.h>

#include <cstddef>
#include <cstdint>
#include <iterator>

#include "Inside.h"
#include "Pin.h"

namespace {

// What the libraries of the system end up in when they change something.
constexpr const char* Changes[] = {"NtCreateKey", "NtSetValueKey", "NtDeleteKey",
                                   "NtDeleteValueKey", "NtWriteFile"};
void* originals[std::size(Changes)] = {};
int changesLeft = 0;

// Stands in for the change of that index, whose arguments are all as wide as a word.
template <std::size_t Index, typename... Words>
LONG WINAPI Counted(Words... words) {
    if (--changesLeft == 0) TerminateProcess(GetCurrentProcess(), velkarix::e2e::EndedAtChange);
    return reinterpret_cast<LONG(WINAPI*)(Words...)>(originals[Index])(words...);
}

using Word = std::uintptr_t;
void* const standIns[] = {
    reinterpret_cast<void*>(&Counted<0, Word, Word, Word, Word, Word, Word, Word>),
    reinterpret_cast<void*>(&Counted<1, Word, Word, Word, Word, Word, Word>),
    reinterpret_cast<void*>(&Counted<2, Word>),
    reinterpret_cast<void*>(&Counted<3, Word, Word>),
    reinterpret_cast<void*>(&Counted<4, Word, Word, Word, Word, Word, Word, Word, Word, Word>),
};
static_assert(std::size(standIns) == std::size(Changes));

void Overwrite(void** place, void* value) {
    DWORD protection = 0;
    VirtualProtect(place, sizeof *place, PAGE_READWRITE, &protection);
    *place = value;
    VirtualProtect(place, sizeof *place, protection, &protection);
}

// Turns a library's imports of the changes to the stand-ins. How many there were.
int TurnImports(std::uint8_t* module) {
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(module);
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(module + dos->e_lfanew);
    const DWORD imports =
        headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    if (imports == 0) return 0;
    int turned = 0;
    const auto* library = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(module + imports);
    for (; library->FirstThunk != 0; ++library) {
        auto** place = reinterpret_cast<void**>(module + library->FirstThunk);
        for (; *place != nullptr; ++place) {
            for (std::size_t i = 0; i < std::size(Changes); ++i) {
                if (*place != originals[i]) continue;
                Overwrite(place, standIns[i]);
                ++turned;
            }
        }
    }
    return turned;
}

int TurnAllImports() {
    const HANDLE modules = CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, 0);
    MODULEENTRY32 module{};
    module.dwSize = sizeof module;
    int turned = 0;
    for (BOOL more = Module32First(modules, &module); more; more = Module32Next(modules, &module)) {
        turned += TurnImports(module.modBaseAddr);
    }
    CloseHandle(modules);
    return turned;
}

}  // namespace

bool EndAtChange(int number) {
    Pin();
    const HMODULE system = GetModuleHandleA("ntdll.dll");
    for (std::size_t i = 0; i < std::size(Changes); ++i) {
        originals[i] = reinterpret_cast<void*>(GetProcAddress(system, Changes[i]));
    }
    changesLeft = number;
    return TurnAllImports() >= static_cast<int>(std::size(Changes));
}
