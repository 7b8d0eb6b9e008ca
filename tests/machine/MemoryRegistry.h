// The registry's calls over the hives in memory. They take each name up to its first NUL: what has
// a NUL in its name is listed, and can't be reached.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "platform/Registry.h"
#include "tests/machine/CallJournal.h"
#include "tests/machine/MemoryHives.h"
#include "tests/machine/NamedSystem.h"

namespace velkarix {

class MemoryRegistry : public Registry, public MemoryHives {
  public:
    explicit MemoryRegistry(CallJournal& journal) : journal_(journal) {}

    // ---- Set-up and looking, besides what MemoryHives gives; none of it is journalled.
    // Decides how RegDeleteKeyA treats a key with subkeys and which rights and lengths count.
    void SetFamily(Family family) { family_ = family; }
    // Whether the system has SHCopyKeyA; it does at first.
    void SetHasCopyKey(bool there) { hasCopyKey_ = there; }
    // What becomes of a copy that SHCopyKeyA has just made and is about to call whole.
    std::function<void()> afterCopy;

    // How many handles are open; the hives don't count.
    std::size_t OpenKeyCount() const { return handles_.size(); }

    // ---- Registry
    ErrorCode RegCreateKeyA(KeyHandle parent, const std::string& subKey,
                            KeyHandle& opened) override;
    ErrorCode RegOpenKeyA(KeyHandle parent, const std::string& subKey, KeyHandle& opened) override;
    ErrorCode RegOpenKeyExA(KeyHandle parent, const std::string& subKey, KeyAccess access,
                            KeyHandle& opened) override;
    ErrorCode RegCloseKey(KeyHandle key) override;
    ErrorCode RegDeleteKeyA(KeyHandle parent, const std::string& subKey) override;
    ErrorCode RegDeleteValueA(KeyHandle key, const std::string& name) override;
    ErrorCode RegEnumKeyA(KeyHandle key, std::uint32_t index, std::uint32_t capacity,
                          std::string& name) override;
    ErrorCode RegEnumKeyExA(KeyHandle key, std::uint32_t index, std::uint32_t capacity,
                            std::string& name) override;
    ErrorCode RegEnumValueA(KeyHandle key, std::uint32_t index, std::uint32_t nameCapacity,
                            std::string& name, std::uint32_t& type, Bytes& data,
                            std::uint32_t& size) override;
    ErrorCode RegQueryValueExA(KeyHandle key, const std::string& name, std::uint32_t& type,
                               Bytes* data, std::uint32_t& size) override;
    ErrorCode RegSetValueExA(KeyHandle key, const std::string& name, std::uint32_t type,
                             const Bytes& data) override;
    ErrorCode SHCopyKeyA(KeyHandle source, const std::string& subKey,
                         KeyHandle destination) override;

  private:
    struct OpenKey {
        std::shared_ptr<MemoryKey> key;
        std::uint32_t access = 0;
        std::string path;  // as it was opened, for the journal
    };

    // The key behind a handle, when the handle was opened with the wanted rights.
    ErrorCode KeyOf(KeyHandle handle, std::uint32_t wanted, std::shared_ptr<MemoryKey>& key) const;
    // The key that a path starts from, when the path is one that the system takes.
    ErrorCode StartOf(KeyHandle parent, const std::string& subKey,
                      std::shared_ptr<MemoryKey>& key) const;
    ErrorCode Walk(KeyHandle parent, const std::string& subKey,
                   std::shared_ptr<MemoryKey>& key) const;
    ErrorCode FindAndOpen(KeyHandle parent, const std::string& subKey, std::uint32_t wanted,
                          KeyHandle& opened);
    ErrorCode Open(const std::shared_ptr<MemoryKey>& key, std::uint32_t wanted,
                   const std::string& path, KeyHandle& opened);
    ErrorCode EnumKey(KeyHandle key, std::uint32_t index, std::uint32_t capacity,
                      std::string& name);
    // "HKCU\\Software\\Example" for the journal.
    std::string Describe(KeyHandle handle, const std::string& below = {}) const;

    CallJournal& journal_;
    Family family_ = Family::WindowsNt;
    bool hasCopyKey_ = true;
    std::map<KeyHandle, OpenKey> handles_;
    KeyHandle nextHandle_ = 0x100;
};

}  // namespace velkarix
