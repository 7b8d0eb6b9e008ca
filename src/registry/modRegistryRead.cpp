#include <algorithm>
#include <cstdint>
#include <map>
#include <set>
#include <utility>

#include "base/Text.h"
#include "registry/HiveName.h"
#include "registry/OpenKey.h"
#include "registry/RawValue.h"
#include "registry/modRegistry.h"

namespace velkarix {
namespace {

// The four bytes as a little-endian number; bytes that aren't there are 0.
std::int32_t ToInteger(const Bytes& data) {
    std::uint32_t number = 0;
    for (std::size_t i = std::min<std::size_t>(data.size(), 4); i > 0; --i) {
        number = number << 8 | data[i - 1];
    }
    return static_cast<std::int32_t>(number);
}

RegValueEntry TextEntry(RawValue& value, std::size_t terminators) {
    if (value.data.size() <= terminators) return {std::move(value.name), "", RegValueTag::None};
    const auto end = value.data.end() - static_cast<std::ptrdiff_t>(terminators);
    return {std::move(value.name), std::string(value.data.begin(), end), RegValueTag::Text};
}

RegValueEntry ToEntry(RawValue& value) {
    switch (value.type) {
        case registryType::Sz:
        case registryType::ExpandSz:
            return TextEntry(value, 1);
        case registryType::MultiSz:
            return TextEntry(value, 2);
        case registryType::Dword:
            return {std::move(value.name), ToInteger(value.data), RegValueTag::Integer};
        case registryType::Binary:
            if (value.data.empty()) break;
            return {std::move(value.name), std::move(value.data), RegValueTag::ByteArray};
        default:
            break;
    }
    return {std::move(value.name), "", RegValueTag::None};
}

// Whether the code says that something isn't there, and so that nothing is kept from the user.
bool SaysMissing(ErrorCode code) {
    return code == error::FileNotFound || code == error::PathNotFound ||
           code == error::KeyDeleted || code == error::NoMoreItems;
}

}  // namespace

void modRegistry::NoteRead(Hive hive, const std::string& key, const std::string& look,
                           ErrorCode code) {
    const bool read = code == error::Success || SaysMissing(code);
    if (unread_ == nullptr || (read && unread_->Empty())) return;
    std::string place = std::string(NameOf(hive)) + "\\" + key;
    while (place.ends_with('\\')) place.pop_back();
    std::replace(place.begin(), place.end(), '\0', ' ');  // where a message would end
    unread_->Note(place, look, read);
}

void modRegistry::EnumSubKeys(Hive hive, const std::string& key, std::vector<std::string>& names) {
    constexpr std::uint32_t NameCapacity = 255;
    OpenKey open(registry_);
    std::set<std::string> namesSoFar;
    ErrorCode result = open.Open(Registry::HandleOf(hive), key);
    for (std::uint32_t index = 0; result == error::Success; ++index) {
        std::string name;
        result = registry_.RegEnumKeyExA(open.Handle(), index, NameCapacity, name);
        if (result != error::Success) break;
        if (namesSoFar.insert(FoldedName(name)).second) names.push_back(name);
    }
    NoteRead(hive, key, "keys", result);
}

std::vector<RegValueEntry> modRegistry::EnumValues(Hive hive, const std::string& key) {
    constexpr std::uint32_t NameCapacity = 260;
    std::vector<RegValueEntry> entries;
    KeyHandle handle = Registry::HandleOf(hive);
    OpenKey open(registry_);
    ErrorCode result = error::Success;
    if (!key.empty()) {
        result = open.Open(handle, key, KeyAccess::Read);
        handle = open.Handle();
    }
    std::map<std::string, std::size_t> places;
    RawValue value;
    for (std::uint32_t index = 0; result == error::Success; ++index) {
        result = EnumRawValue(registry_, handle, index, NameCapacity, value);
        if (result != error::Success) break;
        const auto [place, isNew] = places.try_emplace(FoldedName(value.name), entries.size());
        if (isNew) {
            entries.push_back(ToEntry(value));
            continue;
        }
        // Of several that the code page gives one name, the name reaches one.
        RegValueEntry& entry = entries[place->second];
        if (QueryRawValue(registry_, handle, entry.name, value) == error::Success) {
            entry = ToEntry(value);
        }
    }
    NoteRead(hive, key, "values", result);
    return entries;
}

std::string modRegistry::GetStringValue(Hive hive, const std::string& key,
                                        const std::string& valueName) {
    OpenKey open(registry_);
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    Bytes data;
    ErrorCode result = open.Open(Registry::HandleOf(hive), key);
    if (result == error::Success) {
        result = registry_.RegQueryValueExA(open.Handle(), valueName, type, nullptr, size);
    }
    if (result == error::Success && !MakeRoom(data, size)) result = error::MoreData;
    if (result == error::Success) {
        result = registry_.RegQueryValueExA(open.Handle(), valueName, type, &data, size);
    }
    NoteRead(hive, key, valueName, result);
    if (result != error::Success) return {};
    data.resize(std::min<std::size_t>(size, data.size()));
    return TrimAtNull(std::string(data.begin(), data.end()));
}

std::int32_t modRegistry::GetDwordValue(Hive hive, const std::string& key,
                                        const std::string& valueName, bool& missing) {
    OpenKey open(registry_);
    const ErrorCode opened = open.Open(Registry::HandleOf(hive), key, KeyAccess::Read);
    NoteRead(hive, key, valueName, opened);
    if (opened != error::Success) return 0;
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    Bytes data(4);
    if (registry_.RegQueryValueExA(open.Handle(), valueName, type, &data, size) != error::Success) {
        missing = true;
        return 0;
    }
    data.resize(std::min<std::size_t>(size, data.size()));
    return ToInteger(data);
}

bool modRegistry::GetBinaryValue(Hive hive, const std::string& key, const std::string& valueName,
                                 Bytes& bytes, bool expect552) {
    constexpr std::size_t SlowInfoCacheSize = 552;
    OpenKey open(registry_);
    const ErrorCode opened = open.Open(Registry::HandleOf(hive), key, KeyAccess::Read);
    NoteRead(hive, key, valueName, opened);
    if (opened != error::Success) return false;
    // The first question has room for one byte only: it is asked for the size.
    std::uint32_t type = 0;
    std::uint32_t size = 1;
    bytes.assign(1, 0);
    registry_.RegQueryValueExA(open.Handle(), valueName, type, &bytes, size);
    if (!MakeRoom(bytes, size) || registry_.RegQueryValueExA(open.Handle(), valueName, type, &bytes,
                                                             size) != error::Success) {
        return false;
    }
    bytes.resize(std::min<std::size_t>(size, bytes.size()));
    const bool closed = open.Close() == error::Success;
    return (expect552 && bytes.size() == SlowInfoCacheSize) || (bytes.size() > 1 && closed);
}

}  // namespace velkarix
