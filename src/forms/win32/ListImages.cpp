#include "forms/win32/ListImages.h"

#include <variant>

#include "forms/win32/Icons.h"
#include "forms/win32/LateCalls.h"

namespace velkarix {

void ListImages::Follow(const ImageList& images) {
    if (list_ == nullptr) {
        constexpr int growth = 16;
        const UINT flags = BlendsAlpha() ? ILC_COLOR32 | ILC_MASK : ILC_COLOR24 | ILC_MASK;
        list_.reset(ImageList_Create(size_, size_, flags, growth, growth));
    }
    if (followed_ != &images || generation_ != images.Generation() || count_ > images.Count()) {
        ImageList_Remove(list_.get(), -1);
        followed_ = &images;
        generation_ = images.Generation();
        count_ = 0;
    }
    while (count_ < images.Count()) Append(images.At(++count_));
}

// An image that can't be made leaves its place empty, so that those behind it keep their index.
void ListImages::Append(const ImageList::Image& image) {
    const auto* stock = std::get_if<StockPicture>(&image);
    const OwnedIcon icon = stock != nullptr ? StockIcon(instance_, stock->name, size_)
                                            : PictureIcon(std::get<Picture>(image), size_);
    if (ImageList_ReplaceIcon(list_.get(), -1, icon.get()) >= 0) return;
    const Picture empty{1, 1, {0}};
    ImageList_ReplaceIcon(list_.get(), -1, PictureIcon(empty, size_).get());
}

}  // namespace velkarix
