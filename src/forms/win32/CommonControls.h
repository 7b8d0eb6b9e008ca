// The calls of the library of the common controls. They are looked up: not every version has all of
// them, and to be linked to it would have the loader search for it beside the program first.
#pragma once

#include "forms/win32/Handles.h"

namespace velkarix {

// Makes the window classes of the common controls ready.
void RegisterCommonControls();

// Asks for one WM_MOUSELEAVE when the mouse leaves `window`. False where the system can't tell.
bool AskForMouseLeave(HWND window);

// Whether image lists and icons blend the alpha of their pixels, which came with version 6 of
// the common controls.
bool BlendsAlpha();

struct ImageListDeleter {
    void operator()(HIMAGELIST list) const;
};
using OwnedImageList = Owned<HIMAGELIST, ImageListDeleter>;

// An empty list of images with an edge of `size` pixels.
OwnedImageList MakeImageList(int size);
// Adds the icon at the end. False when it can't be, as with null for an icon.
bool AddImage(const OwnedImageList& list, HICON icon);
void RemoveImages(const OwnedImageList& list);

}  // namespace velkarix
