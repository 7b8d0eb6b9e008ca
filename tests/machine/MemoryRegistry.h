// The registry in memory. Names compare without case and keep their first spelling; subkeys are
// listed in the order of their names and values in the order that they were first written.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Registry.h"
#include "tests/machine/CallJournal.h"
#include "tests/machine/MemoryKey.h"
#include "tests/machine/NamedSystem.h"

namespace velkarix {

class MemoryRegistry : public Registry {
  public:
    explicit MemoryRegistry(CallJournal& journal);

    // ---- Set-up and looking; none of it is journalled.
    // Decides how RegDeleteKeyA treats a key with subkeys and which rights and lengths count.
    void SetFamily(Family family) { family_ = family; }
    // Whether the system has SHCopyKeyA; it does at first.
    void SetHasCopyKey(bool there) { hasCopyKey_ = there; }

    // Each makes the key when missing. An empty value name is the key's default value.
    void AddKey(Hive hive, const std::string& key);
    // A text (REG_SZ), stored with its NUL.
    void SetValue(Hive hive, const std::string& key, const std::string& name,
                  const std::string& text);
    void SetDword(Hive hive, const std::string& key, const std::string& name, std::uint32_t value);
    // Any type, any bytes, as they are.
    void SetRaw(Hive hive, const std::string& key, const std::string& name, std::uint32_t type,
                Bytes data);
    // Removes a key with all that is below it, without a word.
    void RemoveKey(Hive hive, const std::string& key);
    // What a caller may do with the key from now on, and nothing more: opening it otherwise, or
    // deleting it when it isn't open to all, gives AccessDenied. Nothing at all for nullopt.
    void Restrict(Hive hive, const std::string& key, std::optional<KeyAccess> allowed);

    bool HasKey(Hive hive, const std::string& key) const;
    // Nothing when the key or the value is missing.
    std::optional<MemoryValue> ValueAt(Hive hive, const std::string& key,
                                       const std::string& name) const;
    // The value's bytes as text, up to the first NUL; nothing when it is missing.
    std::optional<std::string> TextAt(Hive hive, const std::string& key,
                                      const std::string& name) const;
    std::vector<std::string> SubKeysOf(Hive hive, const std::string& key) const;
    std::vector<std::string> ValueNamesOf(Hive hive, const std::string& key) const;
    // The whole tree below a key as text, one line for each key and value, to compare states.
    std::string TreeText(Hive hive, const std::string& key) const;
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

    std::shared_ptr<MemoryKey> RootOf(KeyHandle handle) const;  // null for no hive
    std::shared_ptr<MemoryKey> KeyAt(Hive hive, const std::string& path) const;
    std::shared_ptr<MemoryKey> MakeKey(Hive hive, const std::string& path);
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
    std::shared_ptr<MemoryKey> localMachine_;
    std::shared_ptr<MemoryKey> currentUser_;
    std::shared_ptr<MemoryKey> classesRoot_;
    std::map<KeyHandle, OpenKey> handles_;
    KeyHandle nextHandle_ = 0x100;
};

}  // namespace velkarix
