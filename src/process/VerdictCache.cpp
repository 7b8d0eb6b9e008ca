#include "process/VerdictCache.h"

#include <algorithm>
#include <utility>

namespace velkarix {

std::optional<std::size_t> VerdictCache::FindVerdictSlot(const std::string& path) const {
    const auto found =
        std::find_if(verdicts_.begin(), verdicts_.end(),
                     [&](const ProcessVerdict& verdict) { return verdict.Path == path; });
    if (found == verdicts_.end()) return std::nullopt;
    return static_cast<std::size_t>(found - verdicts_.begin());
}

const ProcessVerdict& VerdictCache::Add(ProcessVerdict verdict) {
    verdicts_.push_back(std::move(verdict));
    return verdicts_.back();
}

void VerdictCache::SetSafe(const std::string& text, bool safe) {
    for (ProcessVerdict& verdict : verdicts_) {
        if (verdict.Path == text || verdict.Key == text) verdict.IsSafe = safe;
    }
}

}  // namespace velkarix
