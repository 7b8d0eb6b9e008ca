// A program that finds libraries of the system as the loader likes: it is linked to one, and loads
// two more by their bare names, as well as one that only stands in the current folder.
#include <windows.h>

#include <initializer_list>

#include "../hook/Inside.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    // Not to be called: a library that was planted has no such function.
    [[maybe_unused]] const volatile auto linked = &GetFileVersionInfoSizeA;
    for (const char* name : {"psapi.dll", "shlwapi.dll", velkarix::e2e::PlantedName}) {
        LoadLibraryA(name);
    }
    return 0;
}
