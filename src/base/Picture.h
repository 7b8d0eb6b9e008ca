// A picture as plain pixels, so that it outlives the icon handle that it was drawn from and can
// be shown by any desktop.
#pragma once

#include <cstdint>
#include <vector>

namespace velkarix {

struct Picture {
    int width = 0;   // pixels
    int height = 0;  // pixels
    // Row by row from the top, each pixel 0xAARRGGBB with straight (not premultiplied) alpha.
    std::vector<std::uint32_t> pixels;

    friend bool operator==(const Picture&, const Picture&) = default;
};

}  // namespace velkarix
