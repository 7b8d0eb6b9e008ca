// The native image list of a list's rows or a tree's nodes, kept in step with the model's.
#pragma once

#include <cstddef>

#include "forms/ImageList.h"
#include "forms/win32/CommonControls.h"

namespace velkarix {

class ListImages {
  public:
    // `size` is the edge of an image in pixels.
    ListImages(HINSTANCE instance, int size) : instance_(instance), size_(size) {}
    // Adds what `images` has more than before; begins anew when it was cleared or is another.
    void Follow(const ImageList& images);
    // Null until there was something to follow.
    HIMAGELIST Handle() const { return list_.get(); }

  private:
    void Append(const ImageList::Image& image);

    HINSTANCE instance_;
    int size_;
    OwnedImageList list_;
    const ImageList* followed_ = nullptr;
    std::size_t generation_ = 0;
    std::size_t count_ = 0;
};

}  // namespace velkarix
