#include "forms/win32/Icons.h"

#include <cstddef>
#include <cstdint>
#include <vector>

#include "forms/PictureScaling.h"
#include "forms/win32/CommonControls.h"

namespace velkarix {

namespace {

bool IsOpaque(std::uint32_t pixel) {
    return (pixel >> 24) >= 128;
}

// One bit a pixel, set where the ground shows through; rows are filled up to 16 bits.
OwnedBitmap MaskOf(const Picture& picture) {
    const auto width = static_cast<std::size_t>(picture.width);
    const auto height = static_cast<std::size_t>(picture.height);
    const std::size_t stride = (width + 15) / 16 * 2;
    std::vector<unsigned char> bits(stride * height, 0);
    for (std::size_t i = 0; i < picture.pixels.size(); ++i) {
        if (IsOpaque(picture.pixels[i])) continue;
        unsigned char& eight = bits[i / width * stride + i % width / 8];
        eight = static_cast<unsigned char>(eight | 0x80 >> i % width % 8);
    }
    return OwnedBitmap(CreateBitmap(picture.width, picture.height, 1, 1, bits.data()));
}

OwnedBitmap ColoursOf(const Picture& picture) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = picture.width;
    info.bmiHeader.biHeight = -picture.height;  // from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    OwnedBitmap bitmap(CreateDIBSection(ScreenContext(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (bitmap == nullptr) return bitmap;
    const bool blends = BlendsAlpha();
    auto* target = static_cast<std::uint32_t*>(bits);
    for (const std::uint32_t pixel : picture.pixels) {
        // Without blending, colour under the mask would invert the ground.
        const std::uint32_t plain = IsOpaque(pixel) ? pixel & 0xFFFFFF : 0;
        *target++ = blends ? pixel : plain;
    }
    return bitmap;
}

}  // namespace

OwnedIcon StockIcon(HINSTANCE instance, const std::string& name, int size) {
    if (name.empty()) return nullptr;
    return OwnedIcon(static_cast<HICON>(
        LoadImageA(instance, name.c_str(), IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
}

OwnedIcon PictureIcon(const Picture& picture, int size) {
    const Picture scaled = Scaled(picture, size, size);
    if (scaled.pixels.empty()) return nullptr;
    const OwnedBitmap mask = MaskOf(scaled);
    const OwnedBitmap colours = ColoursOf(scaled);
    if (mask == nullptr || colours == nullptr) return nullptr;
    ICONINFO parts{TRUE, 0, 0, mask.get(), colours.get()};
    return OwnedIcon(CreateIconIndirect(&parts));
}

}  // namespace velkarix
