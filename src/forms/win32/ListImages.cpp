#include "forms/win32/ListImages.h"

#include <variant>

#include "forms/win32/Icons.h"

namespace velkarix {

void ListImages::Follow(const ImageList& images) {
    if (list_ == nullptr) list_ = MakeImageList(size_);
    if (followed_ != &images || generation_ != images.Generation() || count_ > images.Count()) {
        RemoveImages(list_);
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
    if (AddImage(list_, icon.get())) return;
    const Picture empty{1, 1, {0}};
    AddImage(list_, PictureIcon(empty, size_).get());
}

}  // namespace velkarix
