// Pictures in another size.
#pragma once

#include "base/Picture.h"

namespace velkarix {

// The picture drawn at `width` by `height` pixels, smoothly: each pixel is the mean of the area
// that it covers. An empty picture stays empty.
Picture Scaled(const Picture& picture, int width, int height);

}  // namespace velkarix
