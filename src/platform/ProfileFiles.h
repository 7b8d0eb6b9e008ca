// INI files, parsed and written by the system.
#pragma once

#include <cstdint>
#include <string>

namespace velkarix {

class ProfileFiles {
  public:
    virtual ~ProfileFiles() = default;

    // The value of `key` in `[section]` of the file at full path `file`; `fallback` when the
    // file, section or key is missing. `capacity` is the buffer's size in bytes with the NUL, so
    // at most capacity - 1 bytes come back. Names compare without case; blanks around a value
    // and one pair of quotes around it are dropped by the system.
    virtual std::string GetPrivateProfileStringA(const std::string& section, const std::string& key,
                                                 const std::string& fallback,
                                                 std::uint32_t capacity,
                                                 const std::string& file) = 0;
    // Makes the file and the section when missing. False when the file can't be written.
    virtual bool WritePrivateProfileStringA(const std::string& section, const std::string& key,
                                            const std::string& value, const std::string& file) = 0;
};

}  // namespace velkarix
