// Icons made of the program's stock pictures and of pictures that the program drew itself.
#pragma once

#include <string>

#include "base/Picture.h"
#include "forms/win32/Handles.h"

namespace velkarix {

// The stock picture of that name at `size` pixels; null when the program has none.
OwnedIcon StockIcon(HINSTANCE instance, const std::string& name, int size);
// The picture, scaled to `size` pixels; null when it is empty. Where the system doesn't blend, a
// pixel is either there or not.
OwnedIcon PictureIcon(const Picture& picture, int size);

}  // namespace velkarix
