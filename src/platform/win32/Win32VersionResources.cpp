#include "platform/win32/Win32VersionResources.h"

#include <algorithm>

#include "platform/VersionBlock.h"
#include "platform/win32/WindowsHeaders.h"

namespace velkarix {

std::uint32_t Win32VersionResources::GetFileVersionInfoSizeA(const std::string& path) {
    const auto call =
        version_.Find<decltype(&::GetFileVersionInfoSizeA)>("GetFileVersionInfoSizeA");
    DWORD unused = 0;
    return call == nullptr ? 0 : call(path.c_str(), &unused);
}

std::optional<Bytes> Win32VersionResources::GetFileVersionInfoA(const std::string& path,
                                                                std::uint32_t size) {
    const auto call = version_.Find<decltype(&::GetFileVersionInfoA)>("GetFileVersionInfoA");
    Bytes block(size);
    if (call == nullptr || !call(path.c_str(), 0, size, block.data())) return std::nullopt;
    return block;
}

std::optional<Bytes> Win32VersionResources::VerQueryValueA(const Bytes& block,
                                                           const std::string& subBlock) {
    // The system's call believes every length in the block, so it sees sound ones only.
    if (!IsVersionBlockSound(block)) return QueryVersionBlock(block, subBlock);

    // It converts texts to ANSI into the room behind the resource, as far from its end as the
    // text is from the resource's start. A block from GetFileVersionInfoA has that room, of at
    // most its own size; a bare resource hasn't. Some versions also write into the name while
    // they look it up, so both are copies.
    Bytes room(block);
    room.resize(2 * block.size() + 16);
    std::string name(subBlock);

    const auto call = version_.Find<decltype(&::VerQueryValueA)>("VerQueryValueA");
    void* found = nullptr;
    UINT size = 0;
    if (call == nullptr || !call(room.data(), name.data(), &found, &size)) return std::nullopt;

    const auto* const start = static_cast<const std::uint8_t*>(found);
    const std::uint8_t* const end = room.data() + room.size();
    // An empty value may be told as a text of the library's own.
    if (size == 0 || start < room.data() || start >= end) return Bytes{};
    return Bytes(start, start + std::min<std::size_t>(size, static_cast<std::size_t>(end - start)));
}

}  // namespace velkarix
