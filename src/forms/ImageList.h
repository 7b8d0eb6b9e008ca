// The pictures that the rows of a list show, counted from 1. Image 1 is the list's default.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "base/Picture.h"

namespace velkarix {

// A picture that comes with the program, told by its name ("Software").
struct StockPicture {
    std::string name;
};

class ImageList {
  public:
    using Image = std::variant<StockPicture, Picture>;

    void Clear() {
        images_.clear();
        ++generation_;
    }
    // Gives the new image's index.
    std::size_t Add(Image image) {
        images_.push_back(std::move(image));
        return images_.size();
    }
    std::size_t Count() const { return images_.size(); }
    const Image& At(std::size_t index) const { return images_.at(index - 1); }
    // Grows with each Clear, so that a copy of the list knows when to start anew.
    std::size_t Generation() const { return generation_; }

  private:
    std::vector<Image> images_;
    std::size_t generation_ = 0;
};

}  // namespace velkarix
