#include "tests/machine/MemoryHives.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace velkarix {
namespace {

// The name to keep the thing under, and how it is listed; that is empty where it is the same.
std::pair<std::string, std::string> AnsiNames(const std::u16string& name) {
    std::pair<std::string, std::string> names;
    bool isForeign = false;
    for (const char16_t character : name) {
        if (character <= 0xFF) {
            names.first += static_cast<char>(character);
            names.second += static_cast<char>(character);
            continue;
        }
        // Behind all names of the code page's characters.
        names.first += "\xFF" + std::to_string(static_cast<unsigned>(character));
        names.second += '?';
        isForeign = true;
    }
    if (!isForeign) names.second.clear();
    return names;
}

}  // namespace

MemoryHives::MemoryHives()
    : localMachine_(std::make_shared<MemoryKey>("HKLM")),
      currentUser_(std::make_shared<MemoryKey>("HKCU")),
      // The classes are a part of the machine's hive under a second name.
      classesRoot_(localMachine_) {
    MemoryKey::Make(classesRoot_, "SOFTWARE\\Classes", 0, SIZE_MAX);
}

void MemoryHives::AddKey(Hive hive, const std::string& key) {
    MakeKey(hive, key);
}

void MemoryHives::SetValue(Hive hive, const std::string& key, const std::string& name,
                           const std::string& text) {
    Bytes data(text.begin(), text.end());
    data.push_back(0);
    SetRaw(hive, key, name, registryType::Sz, std::move(data));
}

void MemoryHives::SetDword(Hive hive, const std::string& key, const std::string& name,
                           std::uint32_t value) {
    Bytes data;
    for (int shift = 0; shift < 32; shift += 8) {
        data.push_back(static_cast<std::uint8_t>(value >> shift));
    }
    SetRaw(hive, key, name, registryType::Dword, std::move(data));
}

void MemoryHives::SetRaw(Hive hive, const std::string& key, const std::string& name,
                         std::uint32_t type, Bytes data) {
    MakeKey(hive, key)->Set(name, type, std::move(data));
}

std::string MemoryHives::AddNamedKey(Hive hive, const std::string& key,
                                     const std::u16string& name) {
    const auto [stored, listed] = AnsiNames(name);
    std::string path = key + "\\" + stored;
    MakeKey(hive, path)->listedAs = listed;
    return path;
}

void MemoryHives::SetNamedValue(Hive hive, const std::string& key, const std::u16string& name,
                                std::uint32_t type, Bytes data) {
    const auto [stored, listed] = AnsiNames(name);
    const auto found = MakeKey(hive, key);
    found->Set(stored, type, std::move(data));
    found->values.Find(stored)->listedAs = listed;
}

void MemoryHives::RemoveKey(Hive hive, const std::string& key) {
    if (const auto found = KeyAt(hive, key); found && found->parent != nullptr) {
        MemoryKey* parent = found->parent;
        found->MarkDeleted();
        parent->subKeys.Remove(found->name);
    }
}

void MemoryHives::RemoveValue(Hive hive, const std::string& key, const std::string& name) {
    if (const auto found = KeyAt(hive, key)) {
        found->values.Remove(name);
    }
}

void MemoryHives::Restrict(Hive hive, const std::string& key, std::optional<KeyAccess> allowed) {
    MakeKey(hive, key)->Allow(allowed ? static_cast<std::uint32_t>(*allowed) : 0);
}

bool MemoryHives::HasKey(Hive hive, const std::string& key) const {
    return KeyAt(hive, key) != nullptr;
}

std::optional<MemoryValue> MemoryHives::ValueAt(Hive hive, const std::string& key,
                                                const std::string& name) const {
    const auto found = KeyAt(hive, key);
    const auto value = found ? found->values.Find(name) : nullptr;
    return value ? std::optional(*value) : std::nullopt;
}

std::optional<std::string> MemoryHives::TextAt(Hive hive, const std::string& key,
                                               const std::string& name) const {
    const auto value = ValueAt(hive, key, name);
    if (!value) {
        return std::nullopt;
    }
    return std::string(value->data.begin(), std::find(value->data.begin(), value->data.end(), 0));
}

std::vector<std::string> MemoryHives::SubKeysOf(Hive hive, const std::string& key) const {
    const auto found = KeyAt(hive, key);
    return found ? found->subKeys.Names() : std::vector<std::string>();
}

std::vector<std::string> MemoryHives::ValueNamesOf(Hive hive, const std::string& key) const {
    const auto found = KeyAt(hive, key);
    return found ? found->values.Names() : std::vector<std::string>();
}

std::string MemoryHives::TreeText(Hive hive, const std::string& key) const {
    const auto found = KeyAt(hive, key);
    return found ? found->Text({}) : std::string();
}

std::shared_ptr<MemoryKey> MemoryHives::RootOf(KeyHandle handle) const {
    if (handle == Registry::HandleOf(Hive::LocalMachine)) {
        return localMachine_;
    }
    if (handle == Registry::HandleOf(Hive::CurrentUser)) {
        return currentUser_;
    }
    return handle == Registry::HandleOf(Hive::ClassesRoot) ? classesRoot_ : nullptr;
}

std::shared_ptr<MemoryKey> MemoryHives::KeyAt(Hive hive, const std::string& path) const {
    return MemoryKey::Find(RootOf(Registry::HandleOf(hive)), path);
}

std::shared_ptr<MemoryKey> MemoryHives::MakeKey(Hive hive, const std::string& path) {
    std::shared_ptr<MemoryKey> key = RootOf(Registry::HandleOf(hive));
    MemoryKey::Make(key, path, 0, SIZE_MAX);  // other ways into the registry have no limit
    return key;
}

}  // namespace velkarix
