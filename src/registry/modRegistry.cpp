#include "registry/modRegistry.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "registry/CopyKeyTree.h"
#include "registry/KeyListing.h"
#include "registry/KeyTree.h"
#include "registry/OpenKey.h"

namespace velkarix {
namespace {

constexpr const char* Break = LineBreak.data();

}  // namespace

modRegistry::modRegistry(const Machine& machine, Desktop& desktop, std::string title,
                         UnreadPlaces* unread)
    : registry_(machine.registry),
      system_(machine.system),
      desktop_(desktop),
      title_(std::move(title)),
      unread_(unread) {}

// ---- Writing

bool modRegistry::SetStringValue(Hive hive, const std::string& key, const std::string& valueName,
                                 const std::string& text) {
    Bytes data(text.begin(), text.end());
    data.push_back(0);
    return SetValue(hive, key, valueName, registryType::Sz, data, false);
}

bool modRegistry::SetBinaryValue(Hive hive, const std::string& key, const std::string& valueName,
                                 const Bytes& bytes, bool writeZeros) {
    return SetValue(hive, key, valueName, registryType::Binary,
                    writeZeros ? Bytes(bytes.size()) : bytes, false);
}

bool modRegistry::SetDwordValue(Hive hive, const std::string& key, const std::string& valueName,
                                std::int32_t value) {
    return SetValue(hive, key, valueName, registryType::Dword, DwordBytes(value), true);
}

bool modRegistry::StoreDwordValue(Hive hive, const std::string& key, const std::string& valueName,
                                  std::int32_t value) {
    if (!SetDwordValue(hive, key, valueName, value)) return false;
    RawValue standing;
    return ReadRawValue(registry_, hive, key, valueName, standing) == error::Success &&
           StandsAs(standing, {valueName, registryType::Dword, DwordBytes(value)});
}

bool modRegistry::SetValue(Hive hive, const std::string& key, const std::string& valueName,
                           std::uint32_t type, const Bytes& data, bool quiet) {
    OpenKey open(registry_);
    const ErrorCode created = open.Create(Registry::HandleOf(hive), key);
    if (created != error::Success) {
        if (!quiet) ShowFailure("Key Could not be created", key, created);
        return false;
    }
    if (IsReachable(valueName)) registry_.RegSetValueExA(open.Handle(), valueName, type, data);
    return true;
}

bool modRegistry::CreateKey(Hive hive, const std::string& key) {
    OpenKey open(registry_);
    const ErrorCode created = open.Create(Registry::HandleOf(hive), key);
    if (created != error::Success) ShowFailure("Key Could not be created", key, created);
    return created == error::Success;
}

// ---- Deleting

bool modRegistry::DeleteKey(Hive hive, const std::string& key, bool quiet) {
    const ErrorCode deleted = OpenKey(registry_).Go(
        Registry::HandleOf(hive), key, false, [this](KeyHandle above, const std::string& rest) {
            return registry_.RegDeleteKeyA(above, rest);
        });
    if (deleted != error::Success && !quiet) ShowKeyNotDeleted(key, deleted);
    return deleted == error::Success;
}

bool modRegistry::DeleteValue(Hive hive, const std::string& key, const std::string& valueName,
                              bool quiet) {
    OpenKey open(registry_);
    const ErrorCode opened = open.Open(Registry::HandleOf(hive), key, KeyAccess::All);
    if (opened != error::Success) {
        if (!quiet) ShowValueFailure("Key Value Could not be opened", key, valueName, opened);
        return false;
    }
    const ErrorCode deleted = IsReachable(valueName)
                                  ? registry_.RegDeleteValueA(open.Handle(), valueName)
                                  : error::InvalidData;
    open.Close();
    if (deleted != error::Success && !quiet) ShowValueNotDeleted(key, valueName, deleted);
    return deleted == error::Success;
}

bool modRegistry::DeleteSubKeys(Hive hive, const std::string& key) {
    bool opened = false;
    return DeleteBelow(hive, key, 0, opened) && opened;
}

bool modRegistry::DeleteBelow(Hive hive, const std::string& key, int level, bool& opened) {
    if (level > DeepestKeyLevel) return false;
    OpenKey open(registry_);
    opened = open.Open(Registry::HandleOf(hive), key, KeyAccess::All) == error::Success;
    if (!opened) return true;

    // All names come first, so that deleting can't disturb the enumeration.
    constexpr std::uint32_t NameCapacity = 256;
    std::vector<std::string> names;
    for (std::uint32_t index = 0;; ++index) {
        desktop_.YieldEvents();
        std::string name;
        if (registry_.RegEnumKeyA(open.Handle(), index, NameCapacity, name) != error::Success) {
            break;
        }
        names.push_back(TrimAtNull(name));
    }
    const std::string prefix = key + "\\";
    for (const std::string& name : names) {
        bool subKeyOpened = false;
        if (!DeleteBelow(hive, prefix + name, level + 1, subKeyOpened)) return false;
        registry_.RegDeleteKeyA(open.Handle(), name);
    }
    return true;
}

// ---- Copying

bool modRegistry::CopyKey(Hive srcHive, const std::string& srcKey, Hive destHive,
                          const std::string& destKey) {
    CreateKey(destHive, destKey);
    const KeyHandle source = Registry::HandleOf(srcHive);
    OpenKey destination(registry_);
    if (destination.Open(source, destKey, KeyAccess::Write) != error::Success) return false;
    const bool isLong = srcKey.size() > LongestPath;
    ErrorCode copied =
        isLong ? error::ProcNotFound : registry_.SHCopyKeyA(source, srcKey, destination.Handle());
    if (copied == error::ProcNotFound) {
        copied = CopyKeyTree(registry_, source, srcKey, destination.Handle());
    }
    return copied == error::Success;
}

// ---- What the user is told

std::string modRegistry::GetSystemErrorText(ErrorCode code) {
    constexpr std::uint32_t Capacity = 256;
    return system_.FormatMessageA(code, Capacity);
}

void modRegistry::ShowKeyNotDeleted(const std::string& key, ErrorCode code) {
    ShowFailure("Key Could not be deleted", key + Break, code);
}

void modRegistry::ShowValueNotDeleted(const std::string& key, const std::string& valueName,
                                      ErrorCode code) {
    ShowValueFailure("Key Value Could not be deleted", key, valueName, code);
}

void modRegistry::ShowValueFailure(const char* what, const std::string& key,
                                   const std::string& valueName, ErrorCode code) {
    ShowFailure(what, key + Break + Break + valueName, code);
}

void modRegistry::ShowFailure(const char* what, const std::string& detail, ErrorCode code) {
    std::string text =
        std::string("Following ") + what + ": " + Break + detail + Break + GetSystemErrorText(code);
    std::replace(text.begin(), text.end(), '\0', ' ');  // where the message would end
    desktop_.ShowMessage({text, title_, MessageIcon::Critical, MessageButtons::Ok});
}

}  // namespace velkarix
