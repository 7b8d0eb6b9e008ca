// A walk through the entries that fit a pattern; the search is closed whichever way it ends.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/FileSystem.h"

namespace velkarix {

// The entries that a search finds only when it asks for their kind. Read-only files are found by
// any search.
namespace searchFor {
constexpr std::uint32_t PlainFiles = 0;
constexpr std::uint32_t HiddenFiles = fileAttribute::Hidden;
constexpr std::uint32_t Everything =
    fileAttribute::Hidden | fileAttribute::System | fileAttribute::Directory;
}  // namespace searchFor

class DirectorySearch {
  public:
    // `pattern` is a path whose last level may hold * and ?; `kinds` is one of searchFor.
    DirectorySearch(FileSystem& files, std::string pattern, std::uint32_t kinds);
    DirectorySearch(const DirectorySearch&) = delete;
    DirectorySearch& operator=(const DirectorySearch&) = delete;
    ~DirectorySearch();

    // The next entry, "." and ".." among them; nothing past the last.
    std::optional<FoundFile> Next();

  private:
    bool Step(FoundFile& found);

    FileSystem& files_;
    std::string pattern_;
    std::uint32_t kinds_;
    SearchHandle search_ = 0;
    bool started_ = false;
};

// The one entry at `path`; nothing when there is none of these kinds.
std::optional<FoundFile> FindEntry(FileSystem& files, const std::string& path, std::uint32_t kinds);

}  // namespace velkarix
