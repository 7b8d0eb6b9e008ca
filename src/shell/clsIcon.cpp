#include "shell/clsIcon.h"

namespace velkarix {

// The system makes both sizes, whichever is wanted; only what is wanted is drawn.
IconPictures clsIcon::Draw(const std::string& path, int index, bool wantLarge, bool wantSmall) {
    const ExtractedIcons icons = shell_.ExtractIconExA(path, index);
    IconPictures pictures;
    if (icons.count > 0) {
        if (wantLarge && icons.largeIcon != 0) pictures.large = shell_.DrawIconEx(icons.largeIcon);
        if (wantSmall && icons.smallIcon != 0) pictures.small = shell_.DrawIconEx(icons.smallIcon);
    }
    for (const IconHandle icon : {icons.largeIcon, icons.smallIcon}) {
        if (icon != 0) shell_.DestroyIcon(icon);
    }
    return pictures;
}

IconPictures clsIcon::GetIcons(const std::string& path, int index) {
    return Draw(path, index, true, true);
}

std::optional<Picture> clsIcon::GetIconFromFile(const std::string& path, int index, bool large) {
    const IconPictures pictures = Draw(path, index, large, !large);
    return large ? pictures.large : pictures.small;
}

}  // namespace velkarix
