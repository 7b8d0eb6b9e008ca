#include "BareLoads.h"

#include <cstdint>

#include "platform/win32/IconPicture.h"
#include "platform/win32/WindowsHeaders.h"

// The headers of the services need the system's before them.
#include <shellapi.h>
#include <wincrypt.h>

namespace velkarix {
namespace {

constexpr DWORD NameCapacity = 260;
constexpr DWORD DataCapacity = 4096;
constexpr std::size_t BlockSize = std::size_t{256} * 1024;

std::size_t ReadValues(const std::string& key) {
    HKEY open = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, key.c_str(), 0, KEY_READ, &open) != ERROR_SUCCESS) {
        return 0;
    }
    char name[NameCapacity];
    BYTE data[DataCapacity];
    DWORD index = 0;
    for (;; ++index) {
        DWORD nameSize = sizeof name;
        DWORD dataSize = sizeof data;
        DWORD type = 0;
        if (RegEnumValueA(open, index, name, &nameSize, nullptr, &type, data, &dataSize) !=
            ERROR_SUCCESS) {
            break;
        }
    }
    RegCloseKey(open);
    return index;
}

void ReadNumber(const std::string& key, const char* name) {
    HKEY open = nullptr;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, key.c_str(), 0, KEY_READ, &open) != ERROR_SUCCESS) return;
    BYTE data[4];
    DWORD size = sizeof data;
    DWORD type = 0;
    RegQueryValueExA(open, name, nullptr, &type, data, &size);
    RegCloseKey(open);
}

// A value of unknown size.
bool ReadData(const std::string& key, const char* name) {
    HKEY open = nullptr;
    if (RegOpenKeyA(HKEY_LOCAL_MACHINE, key.c_str(), &open) != ERROR_SUCCESS) return false;
    BYTE data[DataCapacity];
    DWORD size = 0;
    DWORD type = 0;
    bool found = RegQueryValueExA(open, name, nullptr, &type, nullptr, &size) == ERROR_SUCCESS;
    size = sizeof data;
    found = found && RegQueryValueExA(open, name, nullptr, &type, data, &size) == ERROR_SUCCESS;
    RegCloseKey(open);
    return found;
}

std::vector<std::string> ReadKeyNames(const std::string& key) {
    std::vector<std::string> names;
    HKEY open = nullptr;
    if (RegOpenKeyA(HKEY_LOCAL_MACHINE, key.c_str(), &open) != ERROR_SUCCESS) return names;
    char name[NameCapacity];
    DWORD size = sizeof name;
    while (RegEnumKeyExA(open, static_cast<DWORD>(names.size()), name, &size, nullptr, nullptr,
                         nullptr, nullptr) == ERROR_SUCCESS) {
        names.emplace_back(name, size);
        size = sizeof name;
    }
    RegCloseKey(open);
    return names;
}

// The fields, in the one language that the programs of the benchmark have.
constexpr const char* Fields[] = {
    "ProductName",    "ProductVersion",   "FileDescription", "FileVersion",
    "InternalName",   "OriginalFilename", "Comments",        "CompanyName",
    "LegalCopyright", "LegalTrademarks",  "PrivateBuild",    "SpecialBuild",
};
constexpr const char* CompanyName = Fields[7];
constexpr const char* Table = "\\StringFileInfo\\040904E4\\";

bool Query(const std::vector<char>& block, const std::string& name) {
    void* found = nullptr;
    UINT length = 0;
    return VerQueryValueA(block.data(), name.c_str(), &found, &length) && length != 0;
}

bool ReadCompanyName(const std::string& path) {
    DWORD unused = 0;
    const DWORD size = GetFileVersionInfoSizeA(path.c_str(), &unused);
    std::vector<char> block(size);
    if (size == 0 || !GetFileVersionInfoA(path.c_str(), 0, size, block.data())) return false;
    Query(block, "\\");
    Query(block, "\\VarFileInfo\\Translation");
    bool hasName = false;
    for (const char* field : Fields) {
        if (Query(block, std::string(Table) + field)) hasName = hasName || field == CompanyName;
    }
    return hasName;
}

void FindEntry(const std::string& path) {
    WIN32_FIND_DATAA data;
    HANDLE search = FindFirstFileA(path.c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) return;
    FindClose(search);
    FILETIME local;
    SYSTEMTIME time;
    FileTimeToLocalFileTime(&data.ftCreationTime, &local);
    FileTimeToSystemTime(&local, &time);
}

}  // namespace

std::size_t ReadRunValues() {
    std::size_t values = 0;
    for (const char* base : {"Software\\Microsoft\\Windows\\CurrentVersion\\Run",
                             "Software\\Velkarix\\Disabled\\Run"}) {
        for (const char* suffix : {"", "Once", "OnceEx", "Services", "ServicesOnce"}) {
            values += ReadValues(std::string(base) + suffix);
        }
    }
    return values;
}

std::size_t ReadUninstallKeys() {
    const std::string base = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\";
    const std::string uninstall = base + "Uninstall\\";
    std::size_t found = 0;
    for (const std::string& name : ReadKeyNames(uninstall)) {
        const std::string key = uninstall + name;
        ReadNumber(key, "NoRemove");
        ReadData(key, "UninstallString");
        ReadData(key, "DisplayName");
        found += ReadData(key, "DisplayIcon") ||
                 ReadData(base + "App Management\\ARPCache\\" + name, "SlowInfoCache");
    }
    return found;
}

FileHashes::FileHashes() : block_(BlockSize) {
    HCRYPTPROV provider = 0;
    CryptAcquireContextA(&provider, nullptr, nullptr, PROV_RSA_FULL, CRYPT_VERIFYCONTEXT);
    provider_ = provider;
}

FileHashes::~FileHashes() {
    CryptReleaseContext(provider_, 0);
}

std::size_t FileHashes::Take(const std::vector<std::string>& files) {
    std::size_t digests = 0;
    for (const std::string& file : files) digests += Hash(file);
    return digests;
}

bool FileHashes::Hash(const std::string& path) {
    HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                              FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    HCRYPTHASH hash = 0;
    CryptCreateHash(provider_, CALG_MD5, 0, 0, &hash);
    DWORD read = 0;
    while (ReadFile(file, block_.data(), BlockSize, &read, nullptr) && read != 0) {
        CryptHashData(hash, block_.data(), read, 0);
    }
    BYTE digest[16];
    DWORD size = sizeof digest;
    const BOOL done = CryptGetHashParam(hash, HP_HASHVAL, digest, &size, 0);
    CryptDestroyHash(hash);
    CloseHandle(file);
    return done && size == sizeof digest;
}

std::size_t DrawIcons(const std::vector<std::string>& files, IconSizes sizes) {
    std::size_t drawn = 0;
    for (const std::string& file : files) {
        HICON large = nullptr;
        HICON small = nullptr;
        if (ExtractIconExA(file.c_str(), 0, &large, &small, 1) == 0) continue;
        const bool hasLarge = sizes == IconSizes::Small || IconPicture(large).has_value();
        drawn += hasLarge && IconPicture(small).has_value();
        DestroyIcon(large);
        DestroyIcon(small);
    }
    return drawn;
}

std::size_t ReadFacts(const std::vector<std::string>& files) {
    std::size_t names = 0;
    for (const std::string& file : files) {
        names += ReadCompanyName(file);
        FindEntry(file);
        FindEntry(file);
    }
    return names;
}

}  // namespace velkarix
