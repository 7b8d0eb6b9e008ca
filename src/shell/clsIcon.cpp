#include "shell/clsIcon.h"

namespace velkarix {

std::optional<Picture> clsIcon::GetIconFromFile(const std::string& path, int index, bool large) {
    const ExtractedIcons icons = shell_.ExtractIconExA(path, index);
    const IconHandle wanted = large ? icons.largeIcon : icons.smallIcon;
    std::optional<Picture> picture;
    if (icons.count > 0 && wanted != 0) picture = shell_.DrawIconEx(wanted);
    // The system makes both sizes, whichever is wanted.
    for (const IconHandle icon : {icons.largeIcon, icons.smallIcon}) {
        if (icon != 0) shell_.DestroyIcon(icon);
    }
    return picture;
}

}  // namespace velkarix
