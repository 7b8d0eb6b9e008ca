// The system's headers, as all files of this folder want them.
#pragma once

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif

// In this order: the second needs the first.
// clang-format off
#include <windows.h>
#include <commctrl.h>
// clang-format on
