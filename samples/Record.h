// Writes down how this program was started, in a file of its name with the extension "log" beside
// it: one line with the command line and one with the current folder, added to what stands there.
#pragma once

#include <windows.h>

#include <string>

inline bool RecordStart() {
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    std::string log = path;
    log.replace(log.rfind('.'), std::string::npos, ".log");

    char folder[MAX_PATH] = "";
    GetCurrentDirectoryA(MAX_PATH, folder);
    const std::string record =
        std::string("command: ") + GetCommandLineA() + "\r\nfolder: " + folder + "\r\n";

    // Others may be reading it; one that writes is done soon.
    HANDLE file = INVALID_HANDLE_VALUE;
    while ((file = CreateFileA(log.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                               FILE_ATTRIBUTE_NORMAL, nullptr)) == INVALID_HANDLE_VALUE) {
        if (GetLastError() != ERROR_SHARING_VIOLATION) return false;
        Sleep(1);
    }
    SetFilePointer(file, 0, nullptr, FILE_END);
    DWORD written = 0;
    // In one piece, so that who waits for the file never reads half a record.
    const BOOL done =
        WriteFile(file, record.data(), static_cast<DWORD>(record.size()), &written, nullptr);
    CloseHandle(file);
    return done != FALSE && written == record.size();
}
