#include "OwnHive.h"

namespace velkarix {
namespace {

constexpr const char* AllHives = "Software\\VelkarixBench";

void RemoveTree(HKEY parent, const char* name) {
    HKEY key = nullptr;
    if (RegOpenKeyExA(parent, name, 0, KEY_ALL_ACCESS, &key) != ERROR_SUCCESS) return;
    char below[256];
    // From the end, so that the enumeration needn't move up what is left.
    DWORD count = 0;
    RegQueryInfoKeyA(key, nullptr, nullptr, nullptr, &count, nullptr, nullptr, nullptr, nullptr,
                     nullptr, nullptr, nullptr);
    while (count-- > 0) {
        DWORD size = sizeof below;
        if (RegEnumKeyExA(key, count, below, &size, nullptr, nullptr, nullptr, nullptr) ==
            ERROR_SUCCESS) {
            RemoveTree(key, below);
        }
    }
    RegCloseKey(key);
    RegDeleteKeyA(parent, name);
}

}  // namespace

OwnHive::OwnHive(Hive hive, const std::string& name)
    : hive_(reinterpret_cast<HKEY>(static_cast<INT_PTR>(static_cast<INT32>(hive)))),
      name_(AllHives + ("\\" + name)) {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RemoveTree(HKEY_CURRENT_USER, name_.c_str());
    root_ = Create(HKEY_CURRENT_USER, name_);
}

OwnHive::~OwnHive() {
    RegCloseKey(root_);
    RegOverridePredefKey(hive_, nullptr);
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RemoveTree(HKEY_CURRENT_USER, name_.c_str());
    // Goes with the last hive.
    RegDeleteKeyA(HKEY_CURRENT_USER, AllHives);
}

bool OwnHive::Use() const {
    return root_ != nullptr && RegOverridePredefKey(hive_, root_) == ERROR_SUCCESS;
}

HKEY OwnHive::Create(HKEY parent, const std::string& name) {
    HKEY key = nullptr;
    RegCreateKeyA(parent, name.c_str(), &key);
    return key;
}

void OwnHive::SetText(HKEY key, const std::string& name, const std::string& text) {
    RegSetValueExA(key, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                   static_cast<DWORD>(text.size() + 1));
}

void OwnHive::SetBytes(HKEY key, const std::string& name, const Bytes& bytes) {
    RegSetValueExA(key, name.c_str(), 0, REG_BINARY, bytes.data(),
                   static_cast<DWORD>(bytes.size()));
}

void OwnHive::SetNumber(HKEY key, const std::string& name, DWORD number) {
    RegSetValueExA(key, name.c_str(), 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number),
                   sizeof number);
}

}  // namespace velkarix
