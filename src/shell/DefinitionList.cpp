#include "shell/DefinitionList.h"

#include <algorithm>
#include <optional>

#include "shell/DirectorySearch.h"
#include "shell/OpenFile.h"

namespace velkarix {
namespace {

// What is read is folded and indexed while it is still in the processor's cache.
constexpr std::size_t BlockSize = std::size_t{256} * 1024;

}  // namespace

bool DefinitionList::ReadAll(FileSystem& files, FileHandle file, std::uint64_t length) {
    // Memory that can't be had at once may turn out not to be needed.
    const auto expected = static_cast<std::size_t>(std::min<std::uint64_t>(length, SIZE_MAX));
    if (folded_.Reserve(expected)) index_.Reserve(folded_.Text().size() + expected);
    for (;;) {
        const std::span<std::uint8_t> room = folded_.Room(BlockSize);
        std::uint32_t read = 0;
        if (room.empty() || files.ReadFile(file, room, read) != error::Success) return false;
        if (read == 0) return true;
        folded_.Fold(read);
        index_.Extend(folded_.WholeLines());
    }
}

bool LoadDefinitionList(FileSystem& files, DefinitionList& target, const std::string& path) {
    if (!FindEntry(files, path, searchFor::PlainFiles)) return true;
    const OpenFile file(files, path);
    if (!file.IsOpen()) return false;
    const std::optional<std::uint64_t> length = files.GetFileSize(file.Handle());
    if (!length || *length == 0) return length.has_value();
    const bool whole = target.ReadAll(files, file.Handle(), *length);
    if (whole) {
        target.folded_.EndFile();
    } else {
        target.folded_.DropUnfinishedLine();
    }
    target.index_.Extend(target.Text());
    return whole;
}

bool ListContains(const DefinitionList& list, std::string_view item) {
    if (item.empty()) return false;
    const std::optional<bool> known = list.index_.Contains(list.Text(), item);
    return known ? *known : list.Text().find(item) != std::string_view::npos;
}

}  // namespace velkarix
