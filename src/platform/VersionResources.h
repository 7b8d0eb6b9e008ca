// Version resources of program files, read by the system's version library.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/Bytes.h"

namespace velkarix {

class VersionResources {
  public:
    virtual ~VersionResources() = default;

    // The size in bytes of the file's version resource; 0 when it has none or can't be read.
    virtual std::uint32_t GetFileVersionInfoSizeA(const std::string& path) = 0;
    // The resource, at most `size` bytes; nothing when it can't be read.
    virtual std::optional<Bytes> GetFileVersionInfoA(const std::string& path,
                                                     std::uint32_t size) = 0;
    // The data at `subBlock` ("\\VarFileInfo\\Translation", "\\StringFileInfo\\...") of a block
    // from GetFileVersionInfoA, exactly as many bytes as the resource says that there are (a
    // text's length counts its NUL); nothing when there is no such part. Never reaches outside
    // the block, whatever lengths the block claims.
    virtual std::optional<Bytes> VerQueryValueA(const Bytes& block,
                                                const std::string& subBlock) = 0;
};

}  // namespace velkarix
