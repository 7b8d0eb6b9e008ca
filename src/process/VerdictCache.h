// Remembers the verdict of each program file until the program ends, so that a refresh hashes
// nothing twice. A file that changes after its first look keeps its verdict until then.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "process/ProcessVerdict.h"

namespace velkarix {

class VerdictCache {
  public:
    // The slot of a lower-case path, or nothing.
    std::optional<std::size_t> FindVerdictSlot(const std::string& path) const;
    const ProcessVerdict& At(std::size_t slot) const { return verdicts_.at(slot); }
    const ProcessVerdict& Add(ProcessVerdict verdict);
    std::size_t Count() const { return verdicts_.size(); }

    // Sets or clears IsSafe in every verdict whose path or key equals `text`.
    void MarkSafeInCache(const std::string& text) { SetSafe(text, true); }
    void ClearSafeInCache(const std::string& text) { SetSafe(text, false); }

  private:
    void SetSafe(const std::string& text, bool safe);

    std::vector<ProcessVerdict> verdicts_;
};

}  // namespace velkarix
