// The result codes of the system that the logic looks at, by the system's numbers.
#pragma once

#include <cstdint>

namespace velkarix {

using ErrorCode = std::uint32_t;

namespace error {
constexpr ErrorCode Success = 0;
constexpr ErrorCode FileNotFound = 2;
constexpr ErrorCode PathNotFound = 3;
constexpr ErrorCode AccessDenied = 5;
constexpr ErrorCode InvalidHandle = 6;
constexpr ErrorCode InvalidData = 13;
constexpr ErrorCode SharingViolation = 32;
constexpr ErrorCode WriteFault = 29;
constexpr ErrorCode HandleDiskFull = 39;
constexpr ErrorCode InvalidParameter = 87;
constexpr ErrorCode DiskFull = 112;
constexpr ErrorCode ProcNotFound = 127;  // the call isn't there on this system
constexpr ErrorCode AlreadyExists = 183;
constexpr ErrorCode MoreData = 234;
constexpr ErrorCode NoMoreItems = 259;
constexpr ErrorCode BadKey = 1010;
constexpr ErrorCode CantWrite = 1012;  // the registry didn't take what was written
constexpr ErrorCode KeyDeleted = 1018;
}  // namespace error

}  // namespace velkarix
