// INI files over the disk in memory, read and written by the system's rules.
#pragma once

#include "platform/ProfileFiles.h"
#include "tests/machine/CallJournal.h"
#include "tests/machine/MemoryDisk.h"

namespace velkarix {

class MemoryProfileFiles : public ProfileFiles {
  public:
    MemoryProfileFiles(CallJournal& journal, MemoryDisk& disk) : journal_(journal), disk_(disk) {}

    std::string GetPrivateProfileStringA(const std::string& section, const std::string& key,
                                         const std::string& fallback, std::uint32_t capacity,
                                         const std::string& file) override;
    bool WritePrivateProfileStringA(const std::string& section, const std::string& key,
                                    const std::string& value, const std::string& file) override;

  private:
    CallJournal& journal_;
    MemoryDisk& disk_;
};

}  // namespace velkarix
