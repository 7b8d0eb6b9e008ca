#include "DomainMap.h"

#include <windows.h>

namespace velkarix {
namespace {

constexpr const char* OwnKey = "Software\\VelkarixBench";

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

HKEY Create(HKEY parent, const std::string& name) {
    HKEY key = nullptr;
    RegCreateKeyA(parent, name.c_str(), &key);
    return key;
}

void SetZone(HKEY key, const char* scheme, DWORD zone) {
    RegSetValueExA(key, scheme, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&zone), sizeof zone);
}

}  // namespace

DomainMap::DomainMap(int domains) : key_(OwnKey + ("\\" + std::to_string(domains))) {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RemoveTree(HKEY_CURRENT_USER, key_.c_str());
    HKEY live = Create(HKEY_CURRENT_USER, key_ + "\\" + Live);
    for (int i = 0; i < domains; ++i) {
        const bool isForWww = i % 10 == 9;
        const std::string name = "domain" + std::to_string(100000 + i) + ".example";
        HKEY domain = Create(live, isForWww ? name + "\\www" : name);
        SetZone(domain, isForWww ? "https" : "*", 4);
        RegCloseKey(domain);
    }
    RegCloseKey(live);
}

DomainMap::~DomainMap() {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RemoveTree(HKEY_CURRENT_USER, key_.c_str());
    // Goes with the last map.
    RegDeleteKeyA(HKEY_CURRENT_USER, OwnKey);
}

bool DomainMap::Use() const {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    HKEY own = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, key_.c_str(), 0, KEY_ALL_ACCESS, &own) != ERROR_SUCCESS) {
        return false;
    }
    const bool stands = RegOverridePredefKey(HKEY_CURRENT_USER, own) == ERROR_SUCCESS;
    RegCloseKey(own);
    return stands;
}

}  // namespace velkarix
