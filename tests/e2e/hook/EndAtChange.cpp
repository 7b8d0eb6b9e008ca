#include "EndAtChange.h"

#include <windows.h>
#include <tlhelp32.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>

#include "Inside.h"
#include "Pin.h"

namespace {

using Word = std::uintptr_t;

// Whether a call with these arguments changes something.
using Changing = bool (*)(const Word* words);
bool Always(const Word*) {
    return true;
}
// NtCreateFile: by its disposition any but opening what is there.
bool Makes(const Word* words) {
    constexpr Word OpenOnly = 1;
    return words[7] != OpenOnly;
}
// NtOpenFile: by its options, a file that goes when it is closed.
bool OpensToDelete(const Word* words) {
    constexpr Word DeleteOnClose = 0x1000;
    return (words[5] & DeleteOnClose) != 0;
}
// NtSetInformationFile: names, deletion and sizes, but not times.
bool SetsMoreThanTimes(const Word* words) {
    constexpr Word Times = 4;
    return words[4] != Times;
}

// What the libraries of the system end up in when they change something.
struct Change {
    const char* name;
    Changing changes;
    void* original = nullptr;
    int turned = 0;  // imports of it that lead to its stand-in
};
Change changes[] = {
    {"NtCreateKey", Always},       {"NtSetValueKey", Always},
    {"NtDeleteKey", Always},       {"NtDeleteValueKey", Always},
    {"NtWriteFile", Always},       {"NtCreateFile", Makes},
    {"NtOpenFile", OpensToDelete}, {"NtSetInformationFile", SetsMoreThanTimes},
};
int changesLeft = 0;

// Stands in for the change of that index, whose arguments are all as wide as a word.
template <std::size_t Index, typename... Words>
LONG WINAPI Counted(Words... words) {
    const Word list[] = {words...};
    if (changes[Index].changes(list) && --changesLeft == 0) {
        TerminateProcess(GetCurrentProcess(), velkarix::e2e::EndedAtChange);
    }
    return reinterpret_cast<LONG(WINAPI*)(Words...)>(changes[Index].original)(words...);
}

void* const standIns[] = {
    reinterpret_cast<void*>(&Counted<0, Word, Word, Word, Word, Word, Word, Word>),
    reinterpret_cast<void*>(&Counted<1, Word, Word, Word, Word, Word, Word>),
    reinterpret_cast<void*>(&Counted<2, Word>),
    reinterpret_cast<void*>(&Counted<3, Word, Word>),
    reinterpret_cast<void*>(&Counted<4, Word, Word, Word, Word, Word, Word, Word, Word, Word>),
    reinterpret_cast<void*>(
        &Counted<5, Word, Word, Word, Word, Word, Word, Word, Word, Word, Word, Word>),
    reinterpret_cast<void*>(&Counted<6, Word, Word, Word, Word, Word, Word>),
    reinterpret_cast<void*>(&Counted<7, Word, Word, Word, Word, Word>),
};
static_assert(std::size(standIns) == std::size(changes));

void Overwrite(void** place, void* value) {
    DWORD protection = 0;
    VirtualProtect(place, sizeof *place, PAGE_READWRITE, &protection);
    *place = value;
    VirtualProtect(place, sizeof *place, protection, &protection);
}

// Turns a library's imports of the changes to the stand-ins.
void TurnImports(std::uint8_t* module) {
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(module);
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(module + dos->e_lfanew);
    const DWORD imports =
        headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    if (imports == 0) return;
    const auto* library = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(module + imports);
    for (; library->FirstThunk != 0; ++library) {
        auto** place = reinterpret_cast<void**>(module + library->FirstThunk);
        for (; *place != nullptr; ++place) {
            for (std::size_t i = 0; i < std::size(changes); ++i) {
                if (*place != changes[i].original) continue;
                Overwrite(place, standIns[i]);
                ++changes[i].turned;
            }
        }
    }
}

void TurnAllImports() {
    const HANDLE modules = CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, 0);
    MODULEENTRY32 module{};
    module.dwSize = sizeof module;
    for (BOOL more = Module32First(modules, &module); more; more = Module32Next(modules, &module)) {
        TurnImports(module.modBaseAddr);
    }
    CloseHandle(modules);
}

}  // namespace

bool EndAtChange(int number) {
    Pin();
    const HMODULE system = GetModuleHandleA("ntdll.dll");
    for (Change& change : changes) {
        change.original = reinterpret_cast<void*>(GetProcAddress(system, change.name));
    }
    changesLeft = number;
    TurnAllImports();
    return std::ranges::all_of(changes, [](const Change& change) { return change.turned > 0; });
}
