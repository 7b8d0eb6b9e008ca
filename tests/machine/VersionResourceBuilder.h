// Makes version resources as a resource compiler does: nested blocks of UTF-16 text, each aligned
// to four bytes.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "base/Bytes.h"

namespace velkarix {

class VersionResourceBuilder {
  public:
    using Fields = std::vector<std::pair<std::string, std::string>>;

    // One more row of the translation table, in the order of the calls.
    VersionResourceBuilder& Translation(std::uint16_t language, std::uint16_t codePage);
    // One more string table; `key` is its name, as "040904B0". Texts are Western ANSI.
    VersionResourceBuilder& Strings(std::string key, Fields fields);

    // The whole VS_VERSIONINFO block. Without translations it has no translation table.
    Bytes Build() const;

  private:
    std::vector<std::pair<std::uint16_t, std::uint16_t>> translations_;
    std::vector<std::pair<std::string, Fields>> tables_;
};

}  // namespace velkarix
