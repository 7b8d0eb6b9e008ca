#include "shell/DirectorySearch.h"

#include <utility>

namespace velkarix {

DirectorySearch::DirectorySearch(FileSystem& files, std::string pattern, std::uint32_t kinds)
    : files_(files), pattern_(std::move(pattern)), kinds_(kinds) {}

DirectorySearch::~DirectorySearch() {
    if (search_ != 0) files_.FindClose(search_);
}

std::optional<FoundFile> DirectorySearch::Next() {
    FoundFile found;
    while (Step(found)) {
        if ((found.attributes & searchFor::Everything & ~kinds_) == 0) return found;
    }
    return std::nullopt;
}

bool DirectorySearch::Step(FoundFile& found) {
    if (started_) return search_ != 0 && files_.FindNextFileA(search_, found);
    started_ = true;
    search_ = files_.FindFirstFileA(pattern_, found);
    return search_ != 0;
}

std::optional<FoundFile> FindEntry(FileSystem& files, const std::string& path,
                                   std::uint32_t kinds) {
    return DirectorySearch(files, path, kinds).Next();
}

}  // namespace velkarix
