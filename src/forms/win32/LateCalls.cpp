#include "forms/win32/LateCalls.h"

namespace velkarix {

namespace {

// Null when the common controls of this system have no function of that name.
template <typename Function>
Function CommonControlsCall(const char* name) {
    const FARPROC found = GetProcAddress(GetModuleHandleA("comctl32.dll"), name);
    return reinterpret_cast<Function>(reinterpret_cast<void*>(found));
}

}  // namespace

void RegisterCommonControls() {
    using Call = BOOL(WINAPI*)(const INITCOMMONCONTROLSEX*);
    if (const auto call = CommonControlsCall<Call>("InitCommonControlsEx")) {
        // A row of tabs that is too long for its place has arrows, which are another class.
        const INITCOMMONCONTROLSEX wanted{sizeof(INITCOMMONCONTROLSEX), ICC_LISTVIEW_CLASSES |
                                                                            ICC_TAB_CLASSES |
                                                                            ICC_UPDOWN_CLASS};
        call(&wanted);
    } else {
        InitCommonControls();
    }
}

bool AskForMouseLeave(HWND window) {
    using Call = BOOL(WINAPI*)(TRACKMOUSEEVENT*);
    const auto call = CommonControlsCall<Call>("_TrackMouseEvent");
    if (call == nullptr) return false;
    TRACKMOUSEEVENT request{sizeof(TRACKMOUSEEVENT), TME_LEAVE, window, 0};
    return call(&request) != FALSE;
}

// Told by a call that came with the same version: what libraries say of their version differs.
bool BlendsAlpha() {
    return CommonControlsCall<FARPROC>("DrawShadowText") != nullptr;
}

}  // namespace velkarix
