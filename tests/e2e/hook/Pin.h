// For what this library leaves behind in the program under test.
#pragma once

#include <windows.h>

// This library stays when nobody asks it any more.
inline void Pin() {
    HMODULE own = nullptr;
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                       reinterpret_cast<const char*>(&Pin), &own);
}
