// A key of the real registry with all below it, read, compared and put back by this program's own
// calls of the system.
#pragma once

#include <windows.h>

#include <cstdint>
#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace velkarix::e2e {

struct RegistryValue {
    DWORD type = REG_NONE;
    std::vector<std::uint8_t> data;
    friend bool operator==(const RegistryValue&, const RegistryValue&) = default;
};

// Names compare as the registry compares them: without case.
struct LessWithoutCase {
    bool operator()(const std::string& a, const std::string& b) const;
};

struct RegistryTree {
    std::map<std::string, RegistryValue, LessWithoutCase> values;
    std::map<std::string, RegistryTree, LessWithoutCase> keys;
    friend bool operator==(const RegistryTree&, const RegistryTree&) = default;
};

// For a test's failure: a line for each key and value.
std::ostream& operator<<(std::ostream& stream, const RegistryTree& tree);
std::ostream& operator<<(std::ostream& stream, const RegistryValue& value);

// Nothing when there is no such key or value.
std::optional<RegistryTree> ReadTree(HKEY hive, const std::string& path);
std::optional<RegistryValue> ReadValue(HKEY hive, const std::string& path, const std::string& name);

void WriteValue(HKEY hive, const std::string& path, const std::string& name,
                const RegistryValue& value);
void DeleteValue(HKEY hive, const std::string& path, const std::string& name);
void DeleteTree(HKEY hive, const std::string& path);

// Makes a key what `tree` says; it doesn't touch what is so already. Without a tree there is to be
// no such key.
void RestoreTree(HKEY hive, const std::string& path, const std::optional<RegistryTree>& tree);

}  // namespace velkarix::e2e
