// INI files, by the system's own parser.
#pragma once

#include "platform/ProfileFiles.h"

namespace velkarix {

class Win32ProfileFiles : public ProfileFiles {
  public:
    std::string GetPrivateProfileStringA(const std::string& section, const std::string& key,
                                         const std::string& fallback, std::uint32_t capacity,
                                         const std::string& file) override;
    bool WritePrivateProfileStringA(const std::string& section, const std::string& key,
                                    const std::string& value, const std::string& file) override;
};

}  // namespace velkarix
