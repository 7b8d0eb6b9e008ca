// Finds a picture's transparency from what drawing it leaves on two grounds. Works for icons of
// every depth, also where the system itself decides how it treats an icon's mask or alpha.
#pragma once

#include <cstdint>
#include <vector>

namespace velkarix {

// The pixels (0xAARRGGBB, straight alpha) of what was drawn once on black and once on white. The
// two hold 0x??RRGGBB and are equally long. A pixel that inverts its ground comes out as the
// colour that it has on black.
std::vector<std::uint32_t> PixelsOfDrawings(const std::vector<std::uint32_t>& overBlack,
                                            const std::vector<std::uint32_t>& overWhite);

}  // namespace velkarix
