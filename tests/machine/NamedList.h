// A list whose items are found by a name without case and by position: subkeys, values, files.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "tests/machine/CaseFold.h"

namespace velkarix {

enum class ListOrder { Sorted, AsAdded };

// Item has a public `name`, the spelling that it was added with. Items never move in memory.
template <typename Item>
class NamedList {
  public:
    explicit NamedList(ListOrder order) : order_(order) {}

    std::size_t Size() const { return items_.size(); }

    // Null when there is no such item.
    std::shared_ptr<Item> Find(std::string_view name) const {
        const auto found = byName_.find(FoldCase(name));
        return found == byName_.end() ? nullptr : found->second;
    }

    // Null past the end.
    std::shared_ptr<Item> At(std::size_t index) const {
        if (!inOrder_) {
            std::sort(items_.begin(), items_.end(),
                      [](const auto& left, const auto& right) { return left.first < right.first; });
            inOrder_ = true;
        }
        return index < items_.size() ? items_[index].second : nullptr;
    }

    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (std::size_t index = 0; const auto item = At(index); ++index) {
            names.push_back(item->name);
        }
        return names;
    }

    // The name must be new to the list.
    std::shared_ptr<Item> Add(std::shared_ptr<Item> item) {
        std::string folded = FoldCase(item->name);
        byName_.emplace(folded, item);
        items_.emplace_back(std::move(folded), item);
        inOrder_ = order_ == ListOrder::AsAdded;
        return item;
    }

    bool Remove(std::string_view name) {
        const auto found = byName_.find(FoldCase(name));
        if (found == byName_.end()) {
            return false;
        }
        items_.erase(std::find_if(items_.begin(), items_.end(),
                                  [&](const auto& item) { return item.second == found->second; }));
        byName_.erase(found);
        return true;
    }

  private:
    ListOrder order_;
    std::unordered_map<std::string, std::shared_ptr<Item>> byName_;
    // Sorted only when somebody looks, so that many items can be added quickly.
    mutable std::vector<std::pair<std::string, std::shared_ptr<Item>>> items_;
    mutable bool inOrder_ = true;
};

}  // namespace velkarix
