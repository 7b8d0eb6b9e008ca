#include "platform/win32/Win32Registry.h"

#include <algorithm>

#include "platform/win32/SystemText.h"
#include "platform/win32/WindowsHeaders.h"

namespace velkarix {
namespace {

// The hives are numbers of 32 bits, which 64-bit Windows wants extended by their sign.
HKEY KeyOf(KeyHandle number) {
    return reinterpret_cast<HKEY>(static_cast<INT_PTR>(static_cast<INT32>(number)));
}

ErrorCode Code(LONG result) {
    return static_cast<ErrorCode>(result);
}

// Sets `opened` when opening succeeded.
ErrorCode Opened(LONG result, HKEY key, KeyHandle& opened) {
    if (result == ERROR_SUCCESS) opened = reinterpret_cast<KeyHandle>(key);
    return Code(result);
}

// Where the system may write; never null, which would only ask for the size.
BYTE* Buffer(Bytes& data, BYTE& none) {
    return data.empty() ? &none : data.data();
}

bool TellsSize(LONG result) {
    return result == ERROR_SUCCESS || result == ERROR_MORE_DATA;
}

}  // namespace

ErrorCode Win32Registry::RegCreateKeyA(KeyHandle parent, const std::string& subKey,
                                       KeyHandle& opened) {
    HKEY key = nullptr;
    const LONG result = ::RegCreateKeyA(KeyOf(parent), subKey.c_str(), &key);
    return Opened(result, key, opened);
}

ErrorCode Win32Registry::RegOpenKeyA(KeyHandle parent, const std::string& subKey,
                                     KeyHandle& opened) {
    HKEY key = nullptr;
    // For an empty name this call gives the parent's own handle, and closing the result would
    // close the parent; the newer call opens the key once more.
    const LONG result = subKey.empty()
                            ? ::RegOpenKeyExA(KeyOf(parent), "", 0, MAXIMUM_ALLOWED, &key)
                            : ::RegOpenKeyA(KeyOf(parent), subKey.c_str(), &key);
    return Opened(result, key, opened);
}

ErrorCode Win32Registry::RegOpenKeyExA(KeyHandle parent, const std::string& subKey,
                                       KeyAccess access, KeyHandle& opened) {
    HKEY key = nullptr;
    const LONG result =
        ::RegOpenKeyExA(KeyOf(parent), subKey.c_str(), 0, static_cast<REGSAM>(access), &key);
    return Opened(result, key, opened);
}

ErrorCode Win32Registry::RegCloseKey(KeyHandle key) {
    return Code(::RegCloseKey(KeyOf(key)));
}

ErrorCode Win32Registry::RegDeleteKeyA(KeyHandle parent, const std::string& subKey) {
    return Code(::RegDeleteKeyA(KeyOf(parent), subKey.c_str()));
}

ErrorCode Win32Registry::RegDeleteValueA(KeyHandle key, const std::string& name) {
    return Code(::RegDeleteValueA(KeyOf(key), name.c_str()));
}

ErrorCode Win32Registry::RegEnumKeyA(KeyHandle key, std::uint32_t index, std::uint32_t capacity,
                                     std::string& name) {
    std::string buffer(capacity, '\0');
    const LONG result = ::RegEnumKeyA(KeyOf(key), index, buffer.data(), capacity);
    if (result == ERROR_SUCCESS) name = TextOf(buffer.data(), capacity);
    return Code(result);
}

ErrorCode Win32Registry::RegEnumKeyExA(KeyHandle key, std::uint32_t index, std::uint32_t capacity,
                                       std::string& name) {
    std::string buffer(capacity, '\0');
    DWORD length = capacity;
    const LONG result = ::RegEnumKeyExA(KeyOf(key), index, buffer.data(), &length, nullptr, nullptr,
                                        nullptr, nullptr);
    if (result == ERROR_SUCCESS) name.assign(buffer, 0, length);
    return Code(result);
}

ErrorCode Win32Registry::RegEnumValueA(KeyHandle key, std::uint32_t index,
                                       std::uint32_t nameCapacity, std::string& name,
                                       std::uint32_t& type, Bytes& data, std::uint32_t& size) {
    std::string buffer(nameCapacity, '\0');
    BYTE none = 0;
    DWORD nameLength = nameCapacity;
    DWORD valueType = 0;
    auto valueSize = static_cast<DWORD>(data.size());
    const LONG result = ::RegEnumValueA(KeyOf(key), index, buffer.data(), &nameLength, nullptr,
                                        &valueType, Buffer(data, none), &valueSize);
    if (result == ERROR_SUCCESS) {
        name.assign(buffer, 0, nameLength);
        type = valueType;
    }
    if (TellsSize(result)) size = valueSize;
    return Code(result);
}

ErrorCode Win32Registry::RegQueryValueExA(KeyHandle key, const std::string& name,
                                          std::uint32_t& type, Bytes* data, std::uint32_t& size) {
    BYTE none = 0;
    DWORD valueType = 0;
    auto valueSize = data == nullptr ? DWORD{0} : static_cast<DWORD>(data->size());
    const LONG result =
        ::RegQueryValueExA(KeyOf(key), name.c_str(), nullptr, &valueType,
                           data == nullptr ? nullptr : Buffer(*data, none), &valueSize);
    if (TellsSize(result)) {
        type = valueType;
        size = valueSize;
    }
    return Code(result);
}

ErrorCode Win32Registry::RegSetValueExA(KeyHandle key, const std::string& name, std::uint32_t type,
                                        const Bytes& data) {
    // Of a text the system also reads what stands behind it: NT takes a NUL there for the text's
    // own, and the 95 family reads up to the NUL whatever size it is told.
    Bytes terminated(data);
    terminated.push_back(0);
    return Code(::RegSetValueExA(KeyOf(key), name.c_str(), 0, type, terminated.data(),
                                 static_cast<DWORD>(data.size())));
}

ErrorCode Win32Registry::SHCopyKeyA(KeyHandle source, const std::string& subKey,
                                    KeyHandle destination) {
    using Call = DWORD(WINAPI*)(HKEY, LPCSTR, HKEY, DWORD);
    const auto call = shlwapi_.Find<Call>("SHCopyKeyA");
    if (call == nullptr) return error::ProcNotFound;
    return call(KeyOf(source), subKey.c_str(), KeyOf(destination), 0);
}

}  // namespace velkarix
