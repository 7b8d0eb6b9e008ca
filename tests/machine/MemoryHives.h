// The hives of the registry in memory, and how a test fills them and looks at them. Names compare
// without case and keep their first spelling; subkeys are listed in the order of their names and
// values in the order that they were first written.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Registry.h"
#include "tests/machine/MemoryKey.h"

namespace velkarix {

class MemoryHives {
  public:
    MemoryHives();

    // Each makes the key when missing. An empty value name is the key's default value.
    void AddKey(Hive hive, const std::string& key);
    // A text (REG_SZ), stored with its NUL.
    void SetValue(Hive hive, const std::string& key, const std::string& name,
                  const std::string& text);
    void SetDword(Hive hive, const std::string& key, const std::string& name, std::uint32_t value);
    // Any type, any bytes, as they are.
    void SetRaw(Hive hive, const std::string& key, const std::string& name, std::uint32_t type,
                Bytes data);
    // A key, or a value, by a name of any characters. Those that the code page lacks are listed as
    // question marks, by which nothing is found. Gives the path of the key for the calls below.
    std::string AddNamedKey(Hive hive, const std::string& key, const std::u16string& name);
    void SetNamedValue(Hive hive, const std::string& key, const std::u16string& name,
                       std::uint32_t type, Bytes data);
    // Removes a key with all that is below it, without a word.
    void RemoveKey(Hive hive, const std::string& key);
    void RemoveValue(Hive hive, const std::string& key, const std::string& name);
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

  protected:
    // The hive of a predefined handle; null for any other handle.
    std::shared_ptr<MemoryKey> RootOf(KeyHandle handle) const;

  private:
    std::shared_ptr<MemoryKey> KeyAt(Hive hive, const std::string& path) const;
    std::shared_ptr<MemoryKey> MakeKey(Hive hive, const std::string& path);

    std::shared_ptr<MemoryKey> localMachine_;
    std::shared_ptr<MemoryKey> currentUser_;
    std::shared_ptr<MemoryKey> classesRoot_;
};

}  // namespace velkarix
