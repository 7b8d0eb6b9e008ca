// Version resources of the files on the disk in memory.
#pragma once

#include "platform/VersionResources.h"
#include "tests/machine/CallJournal.h"
#include "tests/machine/MemoryDisk.h"

namespace velkarix {

class MemoryVersionResources : public VersionResources {
  public:
    MemoryVersionResources(CallJournal& journal, MemoryDisk& disk)
        : journal_(journal), disk_(disk) {}

    std::uint32_t GetFileVersionInfoSizeA(const std::string& path) override;
    std::optional<Bytes> GetFileVersionInfoA(const std::string& path, std::uint32_t size) override;
    std::optional<Bytes> VerQueryValueA(const Bytes& block, const std::string& subBlock) override;

  private:
    CallJournal& journal_;
    MemoryDisk& disk_;
};

}  // namespace velkarix
