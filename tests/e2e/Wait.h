// Waiting by asking again and again: nothing here sleeps longer than it must.
#pragma once

#include <windows.h>

namespace velkarix::e2e {

constexpr DWORD Patience = 30000;  // milliseconds; only a failing test ever uses it up
constexpr DWORD PollInterval = 5;

// True as soon as `condition()` is; false when it never was.
template <typename Condition>
bool WaitUntil(Condition condition, DWORD patience = Patience) {
    const DWORD start = GetTickCount();
    while (!condition()) {
        if (GetTickCount() - start > patience) return false;
        Sleep(PollInterval);
    }
    return true;
}

// The first value of `ask()` that counts as true, or its last one.
template <typename Ask>
auto WaitFor(Ask ask, DWORD patience = Patience) {
    auto answer = ask();
    WaitUntil([&] { return static_cast<bool>(answer) || static_cast<bool>(answer = ask()); },
              patience);
    return answer;
}

}  // namespace velkarix::e2e
