#include "tests/machine/MemoryVersionResources.h"

#include <algorithm>

#include "platform/VersionBlock.h"

namespace velkarix {

std::uint32_t MemoryVersionResources::GetFileVersionInfoSizeA(const std::string& path) {
    const bool fails = journal_.Enter("GetFileVersionInfoSizeA", path) != error::Success;
    ErrorCode error = error::Success;
    const auto entry = disk_.Readable(path, error);
    return fails || !entry ? 0 : static_cast<std::uint32_t>(entry->versionBlock.size());
}

std::optional<Bytes> MemoryVersionResources::GetFileVersionInfoA(const std::string& path,
                                                                 std::uint32_t size) {
    const bool fails = journal_.Enter("GetFileVersionInfoA", path) != error::Success;
    ErrorCode error = error::Success;
    const auto entry = disk_.Readable(path, error);
    if (fails || !entry || entry->versionBlock.empty()) {
        return std::nullopt;
    }
    Bytes block = entry->versionBlock;
    block.resize(std::min<std::size_t>(block.size(), size));
    return block;
}

std::optional<Bytes> MemoryVersionResources::VerQueryValueA(const Bytes& block,
                                                            const std::string& subBlock) {
    if (journal_.Enter("VerQueryValueA", subBlock)) {
        return std::nullopt;
    }
    return QueryVersionBlock(block, subBlock);
}

}  // namespace velkarix
