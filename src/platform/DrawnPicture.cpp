#include "platform/DrawnPicture.h"

#include <algorithm>
#include <iterator>

namespace velkarix {
namespace {

constexpr int Shifts[] = {16, 8, 0};

int Channel(std::uint32_t pixel, int shift) {
    return static_cast<int>(pixel >> shift & 0xFF);
}

// A pixel of opacity a leaves c*a on black and c*a + (1-a) on white, so that what white gains in
// a channel is what shows through.
std::uint32_t Pixel(std::uint32_t black, std::uint32_t white) {
    int through = 0;
    for (const int shift : Shifts) {
        through = std::max(through, Channel(white, shift) - Channel(black, shift));
    }
    const int alpha = 255 - through;
    if (alpha == 0) return 0;

    auto pixel = static_cast<std::uint32_t>(alpha) << 24;
    for (const int shift : Shifts) {
        const int colour = (Channel(black, shift) * 255 + alpha / 2) / alpha;
        pixel |= static_cast<std::uint32_t>(std::min(colour, 255)) << shift;
    }
    return pixel;
}

}  // namespace

std::vector<std::uint32_t> PixelsOfDrawings(const std::vector<std::uint32_t>& overBlack,
                                            const std::vector<std::uint32_t>& overWhite) {
    std::vector<std::uint32_t> pixels;
    pixels.reserve(overBlack.size());
    std::transform(overBlack.begin(), overBlack.end(), overWhite.begin(),
                   std::back_inserter(pixels), Pixel);
    return pixels;
}

}  // namespace velkarix
