#include "RegistryTree.h"

#include <array>
#include <cstdio>

namespace velkarix::e2e {

namespace {

class OpenedKey {
  public:
    OpenedKey(HKEY hive, const std::string& path) {
        if (RegOpenKeyExA(hive, path.c_str(), 0, KEY_READ, &key_) != ERROR_SUCCESS) key_ = nullptr;
    }
    ~OpenedKey() {
        if (key_ != nullptr) RegCloseKey(key_);
    }
    OpenedKey(const OpenedKey&) = delete;
    OpenedKey& operator=(const OpenedKey&) = delete;

    HKEY Handle() const { return key_; }

  private:
    HKEY key_ = nullptr;
};

constexpr DWORD LongestName = 1024;
constexpr DWORD LongestData = 65536;

std::vector<std::string> SubKeys(HKEY key) {
    std::vector<std::string> names;
    std::array<char, LongestName> name{};
    while (RegEnumKeyA(key, static_cast<DWORD>(names.size()), name.data(), LongestName) ==
           ERROR_SUCCESS) {
        names.emplace_back(name.data());
    }
    return names;
}

RegistryTree ReadOpened(HKEY key, const std::string& path) {
    RegistryTree tree;
    std::array<char, LongestName> name{};
    std::vector<std::uint8_t> data(LongestData);
    for (DWORD index = 0;; ++index) {
        DWORD nameSize = LongestName;
        DWORD dataSize = LongestData;
        RegistryValue value;
        if (RegEnumValueA(key, index, name.data(), &nameSize, nullptr, &value.type, data.data(),
                          &dataSize) != ERROR_SUCCESS) {
            break;
        }
        value.data.assign(data.begin(), data.begin() + static_cast<std::ptrdiff_t>(dataSize));
        tree.values[{name.data(), nameSize}] = value;
    }
    for (const std::string& each : SubKeys(key)) {
        const OpenedKey below(key, each);
        tree.keys[each] = ReadOpened(below.Handle(), path + "\\" + each);
    }
    return tree;
}

void Print(std::ostream& stream, const RegistryTree& tree, const std::string& path) {
    stream << "[" << path << "]\n";
    for (const auto& [name, value] : tree.values) stream << name << " = " << value << "\n";
    for (const auto& [name, below] : tree.keys) Print(stream, below, path + "\\" + name);
}

}  // namespace

bool LessWithoutCase::operator()(const std::string& a, const std::string& b) const {
    return lstrcmpiA(a.c_str(), b.c_str()) < 0;
}

std::ostream& operator<<(std::ostream& stream, const RegistryValue& value) {
    stream << "type " << value.type << ":";
    for (const std::uint8_t byte : value.data) {
        std::array<char, 8> hex{};
        std::snprintf(hex.data(), hex.size(), " %02x", byte);
        stream << hex.data();
    }
    return stream;
}

std::ostream& operator<<(std::ostream& stream, const RegistryTree& tree) {
    stream << "\n";
    Print(stream, tree, "");
    return stream;
}

std::optional<RegistryTree> ReadTree(HKEY hive, const std::string& path) {
    const OpenedKey key(hive, path);
    if (key.Handle() == nullptr) return std::nullopt;
    return ReadOpened(key.Handle(), path);
}

std::optional<RegistryValue> ReadValue(HKEY hive, const std::string& path,
                                       const std::string& name) {
    const OpenedKey key(hive, path);
    RegistryValue value;
    DWORD size = 0;
    if (RegQueryValueExA(key.Handle(), name.c_str(), nullptr, &value.type, nullptr, &size) !=
        ERROR_SUCCESS) {
        return std::nullopt;
    }
    value.data.resize(size);
    RegQueryValueExA(key.Handle(), name.c_str(), nullptr, &value.type, value.data.data(), &size);
    return value;
}

void WriteValue(HKEY hive, const std::string& path, const std::string& name,
                const RegistryValue& value) {
    HKEY key = nullptr;
    if (RegCreateKeyA(hive, path.c_str(), &key) != ERROR_SUCCESS) return;
    RegSetValueExA(key, name.c_str(), 0, value.type, value.data.data(),
                   static_cast<DWORD>(value.data.size()));
    RegCloseKey(key);
}

void DeleteValue(HKEY hive, const std::string& path, const std::string& name) {
    HKEY key = nullptr;
    if (RegOpenKeyExA(hive, path.c_str(), 0, KEY_SET_VALUE, &key) != ERROR_SUCCESS) return;
    RegDeleteValueA(key, name.c_str());
    RegCloseKey(key);
}

void DeleteTree(HKEY hive, const std::string& path) {
    for (const std::string& name : SubKeys(OpenedKey(hive, path).Handle())) {
        DeleteTree(hive, path + "\\" + name);
    }
    RegDeleteKeyA(hive, path.c_str());
}

void RestoreTree(HKEY hive, const std::string& path, const std::optional<RegistryTree>& tree) {
    const std::optional<RegistryTree> now = ReadTree(hive, path);
    if (now == tree) return;
    if (!tree) {
        DeleteTree(hive, path);
        return;
    }
    HKEY key = nullptr;
    if (RegCreateKeyA(hive, path.c_str(), &key) != ERROR_SUCCESS) return;
    if (now) {
        for (const auto& [name, value] : now->values) {
            if (!tree->values.contains(name)) RegDeleteValueA(key, name.c_str());
        }
        for (const auto& [name, below] : now->keys) {
            if (!tree->keys.contains(name)) DeleteTree(key, name);
        }
    }
    RegCloseKey(key);
    for (const auto& [name, value] : tree->values) WriteValue(hive, path, name, value);
    for (const auto& [name, below] : tree->keys) RestoreTree(hive, path + "\\" + name, below);
}

}  // namespace velkarix::e2e
