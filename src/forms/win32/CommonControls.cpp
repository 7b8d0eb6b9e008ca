#include "forms/win32/CommonControls.h"

#include "platform/win32/SystemLibrary.h"

namespace velkarix {

namespace {

constinit SystemLibrary library{"comctl32.dll"};

}  // namespace

void RegisterCommonControls() {
    using Call = BOOL(WINAPI*)(const INITCOMMONCONTROLSEX*);
    if (const auto call = library.Find<Call>("InitCommonControlsEx")) {
        // A row of tabs that is too long for its place has arrows, which are another class.
        const INITCOMMONCONTROLSEX wanted{
            sizeof(INITCOMMONCONTROLSEX),
            ICC_LISTVIEW_CLASSES | ICC_TAB_CLASSES | ICC_UPDOWN_CLASS | ICC_PROGRESS_CLASS};
        call(&wanted);
    } else if (const auto older =
                   library.Find<decltype(&::InitCommonControls)>("InitCommonControls")) {
        older();
    }
}

bool AskForMouseLeave(HWND window) {
    using Call = BOOL(WINAPI*)(TRACKMOUSEEVENT*);
    const auto call = library.Find<Call>("_TrackMouseEvent");
    if (call == nullptr) return false;
    TRACKMOUSEEVENT request{sizeof(TRACKMOUSEEVENT), TME_LEAVE, window, 0};
    return call(&request) != FALSE;
}

// Told by a call that came with the same version: what libraries say of their version differs.
bool BlendsAlpha() {
    return library.Find<void (*)()>("DrawShadowText") != nullptr;
}

void ImageListDeleter::operator()(HIMAGELIST list) const {
    if (const auto call = library.Find<decltype(&::ImageList_Destroy)>("ImageList_Destroy")) {
        call(list);
    }
}

OwnedImageList MakeImageList(int size) {
    constexpr int Growth = 16;
    const UINT flags = BlendsAlpha() ? ILC_COLOR32 | ILC_MASK : ILC_COLOR24 | ILC_MASK;
    const auto call = library.Find<decltype(&::ImageList_Create)>("ImageList_Create");
    return OwnedImageList(call == nullptr ? nullptr : call(size, size, flags, Growth, Growth));
}

bool AddImage(const OwnedImageList& list, HICON icon) {
    const auto call = library.Find<decltype(&::ImageList_ReplaceIcon)>("ImageList_ReplaceIcon");
    return call != nullptr && call(list.get(), -1, icon) >= 0;
}

void RemoveImages(const OwnedImageList& list) {
    const auto call = library.Find<decltype(&::ImageList_Remove)>("ImageList_Remove");
    if (call != nullptr) call(list.get(), -1);
}

}  // namespace velkarix
