// File times, between the system's two halves and one number.
#pragma once

#include "platform/Clock.h"
#include "platform/win32/WindowsHeaders.h"

namespace velkarix {

inline FILETIME HalvesOf(FileTime time) {
    return {static_cast<DWORD>(time), static_cast<DWORD>(time >> 32)};
}

inline FileTime WholeOf(const FILETIME& time) {
    return FileTime{time.dwHighDateTime} << 32 | time.dwLowDateTime;
}

}  // namespace velkarix
