#include "tests/machine/MemoryRegistry.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"

namespace velkarix {
namespace {

namespace right {
constexpr std::uint32_t QueryValue = 0x1;
constexpr std::uint32_t SetValue = 0x2;
constexpr std::uint32_t CreateSubKey = 0x4;
constexpr std::uint32_t EnumerateSubKeys = 0x8;
constexpr std::uint32_t All = static_cast<std::uint32_t>(KeyAccess::All);
constexpr std::uint32_t AsMuchAsAllowed = 0x2000000;
}  // namespace right

constexpr ErrorCode badPathName = 161;
constexpr std::size_t longestKeyName = 255;
constexpr std::size_t longestPath = 260;  // that one call takes
constexpr std::size_t longestValueName95 = 255;
constexpr std::size_t longestValueNameNt = 16383;

bool IsText(std::uint32_t type) {
    return type == registryType::Sz || type == registryType::ExpandSz ||
           type == registryType::MultiSz;
}

// The bytes that are stored when these are written. A NUL stands behind them that a text may leave
// uncounted; the 95 family takes a simple text up to its NUL whatever the size is.
Bytes AsStored(std::uint32_t type, Bytes data, Family family) {
    const bool endsAtNul = family == Family::Windows95 && type == registryType::Sz;
    const bool isUnended = !data.empty() && data.back() != 0;
    if (endsAtNul) {
        data.erase(std::find(data.begin(), data.end(), 0), data.end());
    }
    if (endsAtNul || (family == Family::WindowsNt && IsText(type) && isUnended)) {
        data.push_back(0);
    }
    return data;
}

// A value that seems to have grown beyond the buffer, whose size `size` is, tells how large it is.
ErrorCode TellGrown(ErrorCode failure, std::uint32_t& size) {
    constexpr std::uint32_t Growth = 1000;
    if (failure == error::MoreData) {
        size += Growth;
    }
    return failure;
}

// Copies as much as fits and tells the whole size; a text gets a NUL behind it where it lacks one
// and there is room.
ErrorCode Deliver(const MemoryValue& value, Bytes& buffer, std::uint32_t& size) {
    size = static_cast<std::uint32_t>(value.data.size());
    if (buffer.size() < value.data.size()) {
        return error::MoreData;
    }
    std::copy(value.data.begin(), value.data.end(), buffer.begin());
    if (IsText(value.type) && buffer.size() > value.data.size() && !value.data.empty() &&
        value.data.back() != 0) {
        buffer[value.data.size()] = 0;
    }
    return error::Success;
}

}  // namespace

ErrorCode MemoryRegistry::RegCreateKeyA(KeyHandle parent, const std::string& subKey,
                                        KeyHandle& opened) {
    if (const ErrorCode failure = journal_.Enter("RegCreateKeyA", Describe(parent, subKey))) {
        return failure;
    }
    std::shared_ptr<MemoryKey> key;
    if (const ErrorCode failure = StartOf(parent, subKey, key)) {
        return failure;
    }
    const std::uint32_t needed = family_ == Family::WindowsNt ? right::CreateSubKey : 0;
    if (const ErrorCode failure =
            MemoryKey::Make(key, TrimAtNull(subKey), needed, longestKeyName)) {
        return failure;
    }
    return Open(key, right::AsMuchAsAllowed, Describe(parent, subKey), opened);
}

ErrorCode MemoryRegistry::RegOpenKeyA(KeyHandle parent, const std::string& subKey,
                                      KeyHandle& opened) {
    if (const ErrorCode failure = journal_.Enter("RegOpenKeyA", Describe(parent, subKey))) {
        return failure;
    }
    return FindAndOpen(parent, subKey, right::AsMuchAsAllowed, opened);
}

ErrorCode MemoryRegistry::RegOpenKeyExA(KeyHandle parent, const std::string& subKey,
                                        KeyAccess access, KeyHandle& opened) {
    if (const ErrorCode failure = journal_.Enter("RegOpenKeyExA", Describe(parent, subKey))) {
        return failure;
    }
    return FindAndOpen(parent, subKey, static_cast<std::uint32_t>(access), opened);
}

ErrorCode MemoryRegistry::RegCloseKey(KeyHandle key) {
    if (const ErrorCode failure = journal_.Enter("RegCloseKey", Describe(key))) {
        return failure;
    }
    return RootOf(key) || handles_.erase(key) != 0 ? error::Success : error::InvalidHandle;
}

ErrorCode MemoryRegistry::RegDeleteKeyA(KeyHandle parent, const std::string& subKey) {
    if (const ErrorCode failure = journal_.Enter("RegDeleteKeyA", Describe(parent, subKey))) {
        return failure;
    }
    std::shared_ptr<MemoryKey> key;
    if (const ErrorCode failure = Walk(parent, subKey, key)) {
        return failure;
    }
    const bool isRefused =
        family_ == Family::WindowsNt && (key->subKeys.Size() != 0 || key->allowed != right::All);
    if (isRefused || key->parent == nullptr) {
        return error::AccessDenied;
    }
    MemoryKey* above = key->parent;
    key->MarkDeleted();
    above->subKeys.Remove(key->name);
    return error::Success;
}

ErrorCode MemoryRegistry::RegDeleteValueA(KeyHandle key, const std::string& name) {
    if (const ErrorCode failure = journal_.Enter("RegDeleteValueA", Describe(key) + ", " + name)) {
        return failure;
    }
    std::shared_ptr<MemoryKey> found;
    if (const ErrorCode failure = KeyOf(key, right::SetValue, found)) {
        return failure;
    }
    return found->values.Remove(TrimAtNull(name)) ? error::Success : error::FileNotFound;
}

ErrorCode MemoryRegistry::RegEnumKeyA(KeyHandle key, std::uint32_t index, std::uint32_t capacity,
                                      std::string& name) {
    if (const ErrorCode failure =
            journal_.Enter("RegEnumKeyA", Describe(key) + ", " + std::to_string(index))) {
        return failure;
    }
    return EnumKey(key, index, capacity, name);
}

ErrorCode MemoryRegistry::RegEnumKeyExA(KeyHandle key, std::uint32_t index, std::uint32_t capacity,
                                        std::string& name) {
    if (const ErrorCode failure =
            journal_.Enter("RegEnumKeyExA", Describe(key) + ", " + std::to_string(index))) {
        return failure;
    }
    return EnumKey(key, index, capacity, name);
}

ErrorCode MemoryRegistry::RegEnumValueA(KeyHandle key, std::uint32_t index,
                                        std::uint32_t nameCapacity, std::string& name,
                                        std::uint32_t& type, Bytes& data, std::uint32_t& size) {
    if (const ErrorCode failure =
            journal_.Enter("RegEnumValueA", Describe(key) + ", " + std::to_string(index))) {
        return TellGrown(failure, size);
    }
    std::shared_ptr<MemoryKey> found;
    if (const ErrorCode failure = KeyOf(key, right::QueryValue, found)) {
        return failure;
    }
    const auto value = found->values.At(index);
    if (!value) {
        return error::NoMoreItems;
    }
    if (ListedName(*value).size() >= nameCapacity) {
        return error::MoreData;
    }
    type = value->type;
    if (const ErrorCode failure = Deliver(*value, data, size)) {
        return failure;
    }
    name = ListedName(*value);
    return error::Success;
}

ErrorCode MemoryRegistry::RegQueryValueExA(KeyHandle key, const std::string& name,
                                           std::uint32_t& type, Bytes* data, std::uint32_t& size) {
    if (const ErrorCode failure = journal_.Enter("RegQueryValueExA", Describe(key) + ", " + name)) {
        return TellGrown(failure, size);
    }
    std::shared_ptr<MemoryKey> found;
    if (const ErrorCode failure = KeyOf(key, right::QueryValue, found)) {
        return failure;
    }
    const auto value = found->values.Find(TrimAtNull(name));
    if (!value) {
        return error::FileNotFound;
    }
    type = value->type;
    if (data != nullptr) {
        return Deliver(*value, *data, size);
    }
    size = static_cast<std::uint32_t>(value->data.size());
    return error::Success;
}

ErrorCode MemoryRegistry::RegSetValueExA(KeyHandle key, const std::string& name, std::uint32_t type,
                                         const Bytes& data) {
    if (const ErrorCode failure = journal_.Enter("RegSetValueExA", Describe(key) + ", " + name)) {
        return failure;
    }
    std::shared_ptr<MemoryKey> found;
    if (const ErrorCode failure = KeyOf(key, right::SetValue, found)) {
        return failure;
    }
    const std::size_t longest =
        family_ == Family::Windows95 ? longestValueName95 : longestValueNameNt;
    const std::string asTold = TrimAtNull(name);
    if (asTold.size() > longest) {
        return error::InvalidParameter;
    }
    found->Set(asTold, type, AsStored(type, data, family_));
    return error::Success;
}

ErrorCode MemoryRegistry::SHCopyKeyA(KeyHandle source, const std::string& subKey,
                                     KeyHandle destination) {
    if (const ErrorCode failure =
            journal_.Enter("SHCopyKeyA", Describe(source, subKey) + ", " + Describe(destination))) {
        return failure;
    }
    if (!hasCopyKey_) {
        return error::ProcNotFound;
    }
    std::shared_ptr<MemoryKey> from;
    std::shared_ptr<MemoryKey> to;
    if (const ErrorCode failure = Walk(source, subKey, from)) {
        return failure;
    }
    if (const ErrorCode failure = KeyOf(destination, right::SetValue | right::CreateSubKey, to)) {
        return failure;
    }
    to->CopyFrom(*from);
    if (afterCopy) {
        afterCopy();
    }
    return error::Success;
}

// ---- Keys behind handles and paths

ErrorCode MemoryRegistry::KeyOf(KeyHandle handle, std::uint32_t wanted,
                                std::shared_ptr<MemoryKey>& key) const {
    if (const auto root = RootOf(handle)) {
        key = root;
        return error::Success;
    }
    const auto found = handles_.find(handle);
    if (found == handles_.end()) {
        return error::InvalidHandle;
    }
    if (found->second.key->deleted) {
        return error::KeyDeleted;
    }
    if (family_ == Family::WindowsNt && (found->second.access & wanted) != wanted) {
        return error::AccessDenied;
    }
    key = found->second.key;
    return error::Success;
}

ErrorCode MemoryRegistry::StartOf(KeyHandle parent, const std::string& subKey,
                                  std::shared_ptr<MemoryKey>& key) const {
    if (const ErrorCode failure = KeyOf(parent, 0, key)) {
        return failure;
    }
    if (subKey.starts_with('\\')) {
        return family_ == Family::WindowsNt ? badPathName : error::FileNotFound;
    }
    return TrimAtNull(subKey).size() > longestPath ? error::MoreData : error::Success;
}

ErrorCode MemoryRegistry::Walk(KeyHandle parent, const std::string& subKey,
                               std::shared_ptr<MemoryKey>& key) const {
    std::shared_ptr<MemoryKey> start;
    if (const ErrorCode failure = StartOf(parent, subKey, start)) {
        return failure;
    }
    key = MemoryKey::Find(start, TrimAtNull(subKey));
    return key ? error::Success : error::FileNotFound;
}

ErrorCode MemoryRegistry::FindAndOpen(KeyHandle parent, const std::string& subKey,
                                      std::uint32_t wanted, KeyHandle& opened) {
    std::shared_ptr<MemoryKey> key;
    if (const ErrorCode failure = Walk(parent, subKey, key)) {
        return failure;
    }
    return Open(key, wanted, Describe(parent, subKey), opened);
}

ErrorCode MemoryRegistry::Open(const std::shared_ptr<MemoryKey>& key, std::uint32_t wanted,
                               const std::string& path, KeyHandle& opened) {
    const bool asMuchAsAllowed = wanted == right::AsMuchAsAllowed;
    const std::uint32_t access = asMuchAsAllowed ? key->allowed : wanted;
    if (family_ == Family::WindowsNt && (access == 0 || (access & ~key->allowed) != 0)) {
        return error::AccessDenied;
    }
    opened = nextHandle_;
    nextHandle_ += 4;
    handles_[opened] = {key, access, path};
    return error::Success;
}

ErrorCode MemoryRegistry::EnumKey(KeyHandle key, std::uint32_t index, std::uint32_t capacity,
                                  std::string& name) {
    std::shared_ptr<MemoryKey> found;
    if (const ErrorCode failure = KeyOf(key, right::EnumerateSubKeys, found)) {
        return failure;
    }
    const auto subKey = found->subKeys.At(index);
    if (!subKey) {
        return error::NoMoreItems;
    }
    if (ListedName(*subKey).size() >= capacity) {
        return error::MoreData;
    }
    name = ListedName(*subKey);
    return error::Success;
}

std::string MemoryRegistry::Describe(KeyHandle handle, const std::string& below) const {
    std::string path;
    if (const auto root = RootOf(handle)) {
        path = handle == HandleOf(Hive::ClassesRoot) ? "HKCR" : root->name;
    } else if (const auto found = handles_.find(handle); found != handles_.end()) {
        path = found->second.path;
    } else {
        path = "(no key)";
    }
    return below.empty() ? path : path + "\\" + below;
}

}  // namespace velkarix
