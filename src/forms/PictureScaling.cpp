#include "forms/PictureScaling.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace velkarix {

namespace {

// The pixels of the source that one pixel of the result covers along one axis.
struct Span {
    double from = 0;
    double to = 0;
    int First() const { return static_cast<int>(from); }
    int End(int length) const { return std::min(length, static_cast<int>(std::ceil(to))); }
    // The part of the source pixel `index` that is covered.
    double Share(int index) const {
        return std::min(to, index + 1.0) - std::max(from, index + 0.0);
    }
};

// Enlarged, a pixel still covers as much as one of the source, which makes neighbours flow into
// each other.
Span Covered(int index, int length, int sourceLength) {
    const double step = static_cast<double>(sourceLength) / length;
    const double middle = (index + 0.5) * step;
    const double half = std::max(step, 1.0) / 2;
    return {std::max(0.0, middle - half), std::min(middle + half, sourceLength + 0.0)};
}

// Sums colours weighted by their alpha, so that what is transparent lends no colour.
class Mean {
  public:
    void Add(std::uint32_t pixel, double weight) {
        const double alpha = (pixel >> 24) * weight;
        weight_ += weight;
        alpha_ += alpha;
        for (unsigned channel = 0; channel < 3; ++channel) {
            sums_[channel] += ((pixel >> (channel * 8)) & 0xFF) * alpha;
        }
    }
    std::uint32_t Pixel() const {
        if (alpha_ <= 0 || weight_ <= 0) return 0;
        std::uint32_t pixel = Rounded(alpha_ / weight_) << 24;
        for (unsigned channel = 0; channel < 3; ++channel) {
            pixel |= Rounded(sums_[channel] / alpha_) << (channel * 8);
        }
        return pixel;
    }

  private:
    static std::uint32_t Rounded(double value) {
        return static_cast<std::uint32_t>(std::lround(std::min(value, 255.0)));
    }
    double weight_ = 0;
    double alpha_ = 0;
    std::array<double, 3> sums_{};
};

}  // namespace

Picture Scaled(const Picture& picture, int width, int height) {
    if (picture.pixels.empty() || (picture.width == width && picture.height == height)) {
        return picture;
    }
    Picture scaled{width, height, {}};
    scaled.pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        const Span rows = Covered(y, height, picture.height);
        for (int x = 0; x < width; ++x) {
            const Span columns = Covered(x, width, picture.width);
            Mean mean;
            for (int row = rows.First(); row < rows.End(picture.height); ++row) {
                for (int column = columns.First(); column < columns.End(picture.width); ++column) {
                    const int at = row * picture.width + column;
                    mean.Add(picture.pixels[static_cast<std::size_t>(at)],
                             rows.Share(row) * columns.Share(column));
                }
            }
            scaled.pixels.push_back(mean.Pixel());
        }
    }
    return scaled;
}

}  // namespace velkarix
