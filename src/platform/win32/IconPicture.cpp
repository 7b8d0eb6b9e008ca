#include "platform/win32/IconPicture.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <type_traits>
#include <vector>

#include "platform/DrawnPicture.h"

namespace velkarix {
namespace {

struct ObjectDeleter {
    void operator()(HBITMAP bitmap) const { ::DeleteObject(bitmap); }
};
struct ContextDeleter {
    void operator()(HDC context) const { ::DeleteDC(context); }
};
using OwnedBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, ObjectDeleter>;
using OwnedContext = std::unique_ptr<std::remove_pointer_t<HDC>, ContextDeleter>;

// Sizes of real icons end at 256; a bitmap far beyond is a broken file's.
constexpr int LargestSide = 1024;

struct Size {
    int width = 0;
    int height = 0;
};

std::optional<Size> SizeOf(HICON icon) {
    ICONINFO info{};
    if (!::GetIconInfo(icon, &info)) return std::nullopt;
    const OwnedBitmap colour(info.hbmColor);
    const OwnedBitmap mask(info.hbmMask);

    BITMAP facts{};
    // An icon of black and white has one bitmap with both masks, one above the other.
    const HBITMAP measured = colour ? colour.get() : mask.get();
    if (::GetObjectA(measured, sizeof(facts), &facts) == 0) return std::nullopt;
    const Size size{facts.bmWidth, colour ? facts.bmHeight : facts.bmHeight / 2};
    if (size.width < 1 || size.height < 1) return std::nullopt;
    if (std::max(size.width, size.height) > LargestSide) return std::nullopt;
    return size;
}

// A bitmap in memory with a device context to draw on it.
class Canvas {
  public:
    explicit Canvas(Size size) : size_(size), context_(::CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = size.width;
        info.bmiHeader.biHeight = -size.height;  // the rows from the top
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        info.bmiHeader.biCompression = BI_RGB;
        bitmap_.reset(
            ::CreateDIBSection(context_.get(), &info, DIB_RGB_COLORS, &bits_, nullptr, 0));
        if (context_ && bitmap_) former_ = ::SelectObject(context_.get(), bitmap_.get());
    }
    ~Canvas() {
        if (former_ != nullptr) ::SelectObject(context_.get(), former_);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    // The icon on a ground of one colour, 0x00RRGGBB; no pixels on failure.
    std::vector<std::uint32_t> Drawn(HICON icon, std::uint32_t ground) {
        if (former_ == nullptr) return {};
        auto* const pixels = static_cast<std::uint32_t*>(bits_);
        const auto count = static_cast<std::size_t>(size_.width * size_.height);
        std::fill_n(pixels, count, ground);
        const BOOL done = ::DrawIconEx(context_.get(), 0, 0, icon, size_.width, size_.height, 0,
                                       nullptr, DI_NORMAL);
        // GDI may put drawing off; the pixels are read behind its back.
        ::GdiFlush();
        if (!done) return {};
        return std::vector<std::uint32_t>(pixels, pixels + count);
    }

  private:
    Size size_;
    OwnedContext context_;
    OwnedBitmap bitmap_;
    void* bits_ = nullptr;
    HGDIOBJ former_ = nullptr;
};

}  // namespace

std::optional<Picture> IconPicture(HICON icon) {
    const auto size = SizeOf(icon);
    if (!size) return std::nullopt;
    Canvas canvas(*size);
    const auto overBlack = canvas.Drawn(icon, 0x000000);
    const auto overWhite = canvas.Drawn(icon, 0xFFFFFF);
    if (overBlack.empty() || overWhite.empty()) return std::nullopt;
    return Picture{size->width, size->height, PixelsOfDrawings(overBlack, overWhite)};
}

}  // namespace velkarix
