// The places that couldn't be read when they were last looked at: what such a place holds isn't
// shown, and it must not look like an empty one.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace velkarix {

class UnreadPlaces {
  public:
    // `onChange` hears when places come or go.
    void SetOnChange(std::function<void()> onChange) { onChange_ = std::move(onChange); }

    // What a look at a place has come to. `look` tells apart the looks at one place, so that one
    // that succeeds doesn't hide that another has failed.
    void Note(const std::string& place, const std::string& look, bool read);
    bool Empty() const { return failed_.empty(); }
    // Each place once, in alphabetical order.
    std::vector<std::string> Names() const;

  private:
    std::map<std::string, std::set<std::string>> failed_;  // looks by their place
    std::function<void()> onChange_;
};

}  // namespace velkarix
