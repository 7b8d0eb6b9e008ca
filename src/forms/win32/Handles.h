// Owners of GDI and USER objects. The Windows 95 family keeps all of them in 64 KB, so each is
// freed the moment that its owner goes.
#pragma once

#include <memory>
#include <type_traits>

#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

struct GdiObjectDeleter {
    void operator()(void* object) const { DeleteObject(object); }
};
struct IconDeleter {
    void operator()(HICON icon) const { DestroyIcon(icon); }
};
struct MenuDeleter {
    void operator()(HMENU menu) const { DestroyMenu(menu); }
};

template <typename Handle, typename Deleter>
using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, Deleter>;

using OwnedFont = Owned<HFONT, GdiObjectDeleter>;
using OwnedBrush = Owned<HBRUSH, GdiObjectDeleter>;
using OwnedBitmap = Owned<HBITMAP, GdiObjectDeleter>;
using OwnedIcon = Owned<HICON, IconDeleter>;
using OwnedMenu = Owned<HMENU, MenuDeleter>;

// The screen's device context, for measuring.
class ScreenContext {
  public:
    ScreenContext() : context_(GetDC(nullptr)) {}
    ~ScreenContext() { ReleaseDC(nullptr, context_); }
    ScreenContext(const ScreenContext&) = delete;
    ScreenContext& operator=(const ScreenContext&) = delete;
    operator HDC() const { return context_; }

  private:
    HDC context_;
};

// Selects an object into a device context for the length of a scope.
class Selection {
  public:
    Selection(HDC context, HGDIOBJ object)
        : context_(context), former_(SelectObject(context, object)) {}
    ~Selection() { SelectObject(context_, former_); }
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;

  private:
    HDC context_;
    HGDIOBJ former_;
};

}  // namespace velkarix
