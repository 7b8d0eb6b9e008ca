#include "registry/UnreadPlaces.h"

namespace velkarix {

void UnreadPlaces::Note(const std::string& place, const std::string& look, bool read) {
    if (read && failed_.empty()) return;  // what nearly every look comes to
    const std::size_t before = failed_.size();
    if (read) {
        const auto found = failed_.find(place);
        if (found == failed_.end()) return;
        found->second.erase(look);
        if (found->second.empty()) failed_.erase(found);
    } else {
        failed_[place].insert(look);
    }
    if (failed_.size() != before && onChange_) onChange_();
}

std::vector<std::string> UnreadPlaces::Names() const {
    std::vector<std::string> names;
    for (const auto& [place, looks] : failed_) names.push_back(place);
    return names;
}

}  // namespace velkarix
