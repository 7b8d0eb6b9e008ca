// What the windows of one desktop share.
#pragma once

#include <optional>

#include "forms/win32/Dpi.h"
#include "forms/win32/Fonts.h"
#include "forms/win32/FormMessages.h"
#include "forms/win32/Metrics.h"
#include "forms/win32/Palette.h"
#include "forms/win32/PendingRefreshes.h"
#include "forms/win32/PendingVisibility.h"
#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

struct DesktopContext {
    explicit DesktopContext(HINSTANCE program) : instance(program) {}
    DesktopContext(const DesktopContext&) = delete;
    DesktopContext& operator=(const DesktopContext&) = delete;

    // The system's colours, fonts or sizes may have changed. True when the fonts have.
    bool ReloadAppearance() {
        palette.Reload();
        const bool otherFonts = fonts.Reload();
        metrics.Reload();
        return otherFonts;
    }

    HINSTANCE instance;
    HWND applicationWindow = nullptr;
    Dpi dpi;
    Fonts fonts{dpi};
    Palette palette;
    Metrics metrics{dpi, fonts};
    PendingRefreshes pending;
    PendingVisibility visibility{pending};
    // Where a popup belongs that is asked for now, in screen coordinates; else it is the mouse.
    std::optional<POINT> popupPoint;
    // How many procedures of our windows are under way, one inside the other.
    int proceduresUnderWay = 0;
    // Destroyed forms wait for their windows' procedures to be left.
    bool formsWaitForEnd = false;
};

// The stay in the procedure of one of our windows.
class ProcedureScope {
  public:
    explicit ProcedureScope(DesktopContext& context) : context_(context) {
        ++context_.proceduresUnderWay;
    }
    ~ProcedureScope() {
        if (--context_.proceduresUnderWay > 0) return;
        context_.pending.Run();
        if (context_.formsWaitForEnd)
            PostMessageA(context_.applicationWindow, EndFormsMessage, 0, 0);
    }
    ProcedureScope(const ProcedureScope&) = delete;
    ProcedureScope& operator=(const ProcedureScope&) = delete;

  private:
    DesktopContext& context_;
};

}  // namespace velkarix
