#include "shell/FileCompare.h"

#include <algorithm>
#include <cstdint>

#include "base/Bytes.h"
#include "shell/OpenFile.h"

namespace velkarix {

bool SameContent(FileSystem& files, const std::string& left, const std::string& right) {
    constexpr std::size_t BlockSize = 64 * 1024;

    const OpenFile leftFile(files, left);
    const OpenFile rightFile(files, right);
    if (!leftFile.IsOpen() || !rightFile.IsOpen()) return false;
    Bytes leftBlock(BlockSize);
    Bytes rightBlock(BlockSize);
    for (;;) {
        std::uint32_t leftRead = 0;
        std::uint32_t rightRead = 0;
        if (files.ReadFile(leftFile.Handle(), leftBlock, leftRead) != error::Success ||
            files.ReadFile(rightFile.Handle(), rightBlock, rightRead) != error::Success) {
            return false;
        }
        if (leftRead != rightRead) return false;
        if (leftRead == 0) return true;
        if (!std::equal(leftBlock.begin(), leftBlock.begin() + leftRead, rightBlock.begin())) {
            return false;
        }
    }
}

}  // namespace velkarix
