// Finds the same libraries as Careless.cpp, but in the product's way.
#include <windows.h>

#include "platform/win32/SystemLibrary.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    using Any = void (*)();
    velkarix::SystemLibrary version("version.dll");
    velkarix::SystemLibrary psapi("psapi.dll");
    velkarix::SystemLibrary shlwapi("shlwapi.dll");
    const bool found = version.Find<Any>("VerQueryValueA") != nullptr &&
                       psapi.Find<Any>("EnumProcesses") != nullptr &&
                       shlwapi.Find<Any>("PathFileExistsA") != nullptr;
    return found ? 0 : 1;
}
