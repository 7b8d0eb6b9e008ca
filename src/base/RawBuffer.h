// A growing array for a lot of data: its memory isn't filled before it is used, and when there is
// no memory to be had that is a result.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <type_traits>

namespace velkarix {

template <typename Item>
class RawBuffer {
    static_assert(std::is_trivially_copyable_v<Item>);

  public:
    Item* Data() { return items_.get(); }
    const Item* Data() const { return items_.get(); }
    std::size_t Capacity() const { return capacity_; }

    // Makes room for at least `capacity` items and keeps the first `kept`. False, with everything
    // left as it was, when the memory isn't there.
    bool Grow(std::size_t capacity, std::size_t kept) {
        if (capacity <= capacity_) return true;
        std::unique_ptr<Item[]> grown(new (std::nothrow) Item[capacity]);
        if (!grown) return false;
        std::copy_n(items_.get(), kept, grown.get());
        items_ = std::move(grown);
        capacity_ = capacity;
        return true;
    }

  private:
    std::unique_ptr<Item[]> items_;
    std::size_t capacity_ = 0;
};

}  // namespace velkarix
