// The pixels of an icon, of any colour depth, as any Windows can draw it.
#pragma once

#include <optional>

#include "base/Picture.h"
#include "platform/win32/WindowsHeaders.h"

namespace velkarix {

// The icon at its own size. Nothing when it is no icon, or when GDI has no room left.
std::optional<Picture> IconPicture(HICON icon);

}  // namespace velkarix
