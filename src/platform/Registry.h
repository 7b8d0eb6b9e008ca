// The system's registry calls, by their own names. One call each, no decisions: the order of the
// calls and what is made of their results belongs to registry/modRegistry.
#pragma once

#include <cstdint>
#include <string>

#include "base/Bytes.h"
#include "platform/Errors.h"

namespace velkarix {

// An open key or one of the predefined hives. 0 is no key.
using KeyHandle = std::uintptr_t;

enum class Hive : std::uint32_t {
    ClassesRoot = 0x80000000,
    CurrentUser = 0x80000001,
    LocalMachine = 0x80000002,
};

// Access masks for RegOpenKeyExA.
enum class KeyAccess : std::uint32_t {
    Read = 0x20019,
    Write = 0x20006,
    All = 0xF003F,
};

// The numbers of the value types; a value read may carry any other number as well.
namespace registryType {
constexpr std::uint32_t None = 0;
constexpr std::uint32_t Sz = 1;
constexpr std::uint32_t ExpandSz = 2;
constexpr std::uint32_t Binary = 3;
constexpr std::uint32_t Dword = 4;
constexpr std::uint32_t MultiSz = 7;
constexpr std::uint32_t Qword = 11;
}  // namespace registryType

// Results are the system's codes (0 is success). On failure the outputs keep what they held,
// except where a size is told.
class Registry {
  public:
    virtual ~Registry() = default;

    // The handle of a predefined hive. The three hives are always open and never closed.
    static KeyHandle HandleOf(Hive hive) { return static_cast<KeyHandle>(hive); }

    // Opens `subKey` below `parent`, making it (and the levels above it) when missing.
    virtual ErrorCode RegCreateKeyA(KeyHandle parent, const std::string& subKey,
                                    KeyHandle& opened) = 0;
    // Opens with the rights that the caller can get. An empty `subKey` opens `parent` again.
    virtual ErrorCode RegOpenKeyA(KeyHandle parent, const std::string& subKey,
                                  KeyHandle& opened) = 0;
    virtual ErrorCode RegOpenKeyExA(KeyHandle parent, const std::string& subKey, KeyAccess access,
                                    KeyHandle& opened) = 0;
    virtual ErrorCode RegCloseKey(KeyHandle key) = 0;
    // The 95 family deletes the tree; the NT family refuses a key with subkeys (AccessDenied).
    virtual ErrorCode RegDeleteKeyA(KeyHandle parent, const std::string& subKey) = 0;
    // An empty name is the key's default value, here and below.
    virtual ErrorCode RegDeleteValueA(KeyHandle key, const std::string& name) = 0;

    // Names of subkeys by index from 0; `capacity` is the buffer's size in bytes with the NUL: a
    // longer name gives MoreData. NoMoreItems past the last.
    virtual ErrorCode RegEnumKeyA(KeyHandle key, std::uint32_t index, std::uint32_t capacity,
                                  std::string& name) = 0;
    virtual ErrorCode RegEnumKeyExA(KeyHandle key, std::uint32_t index, std::uint32_t capacity,
                                    std::string& name) = 0;
    // The value at `index`. `data` is the buffer: its size is what the system may fill. `size`
    // comes back as the value's size in bytes, also with MoreData, when `data` was too small.
    // `nameCapacity` is in bytes with the NUL.
    virtual ErrorCode RegEnumValueA(KeyHandle key, std::uint32_t index, std::uint32_t nameCapacity,
                                    std::string& name, std::uint32_t& type, Bytes& data,
                                    std::uint32_t& size) = 0;
    // Reads a value into `data`, whose size is what the system may fill; null only asks for the
    // type and size. `size` comes back as the value's size in bytes, also with MoreData.
    virtual ErrorCode RegQueryValueExA(KeyHandle key, const std::string& name, std::uint32_t& type,
                                       Bytes* data, std::uint32_t& size) = 0;
    virtual ErrorCode RegSetValueExA(KeyHandle key, const std::string& name, std::uint32_t type,
                                     const Bytes& data) = 0;
    // Copies the values and subkeys of `subKey` into `destination`. ProcNotFound where the
    // system's shell library doesn't have the call.
    virtual ErrorCode SHCopyKeyA(KeyHandle source, const std::string& subKey,
                                 KeyHandle destination) = 0;
};

}  // namespace velkarix
