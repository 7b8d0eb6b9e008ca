// A library that says when it is loaded: it leaves a file of its own name and ".loaded" beside
// itself. Put under the name of a library of the system where that must not be searched, it shows
// whether somebody did.
#include <windows.h>

BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID) {
    if (reason != DLL_PROCESS_ATTACH) return TRUE;
    char mark[MAX_PATH + 8] = "";
    GetModuleFileNameA(module, mark, MAX_PATH);
    lstrcatA(mark, ".loaded");
    CloseHandle(CreateFileA(mark, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    return TRUE;
}
