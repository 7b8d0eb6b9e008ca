// Version resources, read by the system's version library.
#pragma once

#include "platform/VersionResources.h"
#include "platform/win32/SystemLibrary.h"

namespace velkarix {

class Win32VersionResources : public VersionResources {
  public:
    std::uint32_t GetFileVersionInfoSizeA(const std::string& path) override;
    std::optional<Bytes> GetFileVersionInfoA(const std::string& path, std::uint32_t size) override;
    std::optional<Bytes> VerQueryValueA(const Bytes& block, const std::string& subBlock) override;

  private:
    SystemLibrary version_{"version.dll"};
};

}  // namespace velkarix
