// One key of the registry in memory, with its values and subkeys.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "base/Bytes.h"
#include "platform/Errors.h"
#include "tests/machine/NamedList.h"

namespace velkarix {

struct MemoryValue {
    std::string name;
    std::uint32_t type = 0;  // of registryType, or any other number
    Bytes data;
    // How listings name it, where that is otherwise; no call finds it by that.
    std::string listedAs = {};

    friend bool operator==(const MemoryValue&, const MemoryValue&) = default;
};

// How a listing names a key or a value.
template <typename Item>
const std::string& ListedName(const Item& item) {
    return item.listedAs.empty() ? item.name : item.listedAs;
}

struct MemoryKey {
    explicit MemoryKey(std::string keyName, MemoryKey* keyParent = nullptr)
        : name(std::move(keyName)), parent(keyParent) {}

    // The subkey at a path below this key, and null when there is none.
    static std::shared_ptr<MemoryKey> Find(std::shared_ptr<MemoryKey> from,
                                           const std::string& path);
    // Goes down a path from `from`, making what is missing where the key above gives `neededRight`.
    // `from` is the subkey on Success. No name is longer than `longestName`, in bytes.
    static ErrorCode Make(std::shared_ptr<MemoryKey>& from, const std::string& path,
                          std::uint32_t neededRight, std::size_t longestName);

    void Set(const std::string& valueName, std::uint32_t type, Bytes data);
    // Adds all values and subkeys of `source` to this key, by their names up to the first NUL.
    void CopyFrom(const MemoryKey& source);
    // Marks this key and all below it: handles to them are of no use from then on.
    void MarkDeleted();
    // Limits what callers may do with this key and all below it.
    void Allow(std::uint32_t rights);
    // This key and all below it as text, each line behind `indent`.
    std::string Text(const std::string& indent) const;

    std::string name;
    std::string listedAs;         // as a value's
    MemoryKey* parent = nullptr;  // null for a hive, and for a deleted key
    bool deleted = false;
    std::uint32_t allowed = 0xF003F;  // the rights that a caller can get
    NamedList<MemoryKey> subKeys{ListOrder::Sorted};
    NamedList<MemoryValue> values{ListOrder::AsAdded};
};

}  // namespace velkarix
