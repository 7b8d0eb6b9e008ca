#include "forms/win32/WindowName.h"

#include <cstdint>

namespace velkarix {

namespace {

constexpr const char* NameProperty = "Velkarix.Name";

}  // namespace

void SetWindowName(HWND window, const std::string& name) {
    const ATOM atom = GlobalAddAtomA(name.c_str());
    SetPropA(window, NameProperty, reinterpret_cast<HANDLE>(static_cast<std::uintptr_t>(atom)));
}

void RemoveWindowName(HWND window) {
    const auto atom = reinterpret_cast<std::uintptr_t>(RemovePropA(window, NameProperty));
    if (atom != 0) GlobalDeleteAtom(static_cast<ATOM>(atom));
}

}  // namespace velkarix
