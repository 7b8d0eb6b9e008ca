// The registry of the running system.
#pragma once

#include "platform/Registry.h"
#include "platform/win32/SystemLibrary.h"

namespace velkarix {

class Win32Registry : public Registry {
  public:
    ErrorCode RegCreateKeyA(KeyHandle parent, const std::string& subKey,
                            KeyHandle& opened) override;
    ErrorCode RegOpenKeyA(KeyHandle parent, const std::string& subKey, KeyHandle& opened) override;
    ErrorCode RegOpenKeyExA(KeyHandle parent, const std::string& subKey, KeyAccess access,
                            KeyHandle& opened) override;
    ErrorCode RegCloseKey(KeyHandle key) override;
    ErrorCode RegDeleteKeyA(KeyHandle parent, const std::string& subKey) override;
    ErrorCode RegDeleteValueA(KeyHandle key, const std::string& name) override;
    ErrorCode RegEnumKeyA(KeyHandle key, std::uint32_t index, std::uint32_t capacity,
                          std::string& name) override;
    ErrorCode RegEnumKeyExA(KeyHandle key, std::uint32_t index, std::uint32_t capacity,
                            std::string& name) override;
    ErrorCode RegEnumValueA(KeyHandle key, std::uint32_t index, std::uint32_t nameCapacity,
                            std::string& name, std::uint32_t& type, Bytes& data,
                            std::uint32_t& size) override;
    ErrorCode RegQueryValueExA(KeyHandle key, const std::string& name, std::uint32_t& type,
                               Bytes* data, std::uint32_t& size) override;
    ErrorCode RegSetValueExA(KeyHandle key, const std::string& name, std::uint32_t type,
                             const Bytes& data) override;
    ErrorCode SHCopyKeyA(KeyHandle source, const std::string& subKey,
                         KeyHandle destination) override;

  private:
    SystemLibrary shlwapi_{"shlwapi.dll"};
};

}  // namespace velkarix
