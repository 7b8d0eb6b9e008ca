// What tests of odd things of real machines put them together from.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

namespace velkarix::e2e {

inline constexpr const char* RunKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
// Columns of the startup list, and a program of the sample machine.
inline constexpr int CommandColumn = 3;
inline constexpr int FileColumn = 4;
inline constexpr int CompanyColumn = 7;
inline constexpr const char* SampleProgram = "C:\\Samples\\SampleIdle.exe";

inline std::vector<std::uint8_t> Bytes(const std::string& text) {
    return {text.begin(), text.end()};
}
// As the registry itself keeps a text.
inline std::vector<std::uint8_t> WideBytes(const std::string& text) {
    std::vector<std::uint8_t> bytes;
    for (const char c : text) bytes.insert(bytes.end(), {static_cast<std::uint8_t>(c), 0});
    return bytes;
}
inline std::u16string Wide(const std::string& text) {
    return {text.begin(), text.end()};
}

class OpenedKeyOf {
  public:
    OpenedKeyOf(HKEY hive, const char* path) { RegCreateKeyA(hive, path, &key_); }
    ~OpenedKeyOf() { RegCloseKey(key_); }
    OpenedKeyOf(const OpenedKeyOf&) = delete;
    OpenedKeyOf& operator=(const OpenedKeyOf&) = delete;
    HKEY Handle() const { return key_; }

  private:
    HKEY key_ = nullptr;
};

}  // namespace velkarix::e2e
