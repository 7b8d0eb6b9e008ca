// A machine in memory with the registry operations over it, for the tests of all their files.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "registry/modRegistry.h"
#include "tests/machine/MemoryMachine.h"
#include "tests/machine/RecordingDesktop.h"

namespace velkarix {

class RegistryFixture : public testing::Test {
  protected:
    // No handle is left open by any operation, whatever fails.
    void TearDown() override { EXPECT_EQ(machine.registry.OpenKeyCount(), 0u); }

    std::vector<std::string> Calls() { return machine.Journal().Names(); }

    // The one message that was shown, which must be a critical one with the program's title.
    std::string OnlyMessage() {
        if (desktop.messages.size() != 1) {
            return std::to_string(desktop.messages.size()) + " messages";
        }
        EXPECT_EQ(desktop.messages[0].title, "Velkarix");
        EXPECT_EQ(desktop.messages[0].icon, MessageIcon::Critical);
        EXPECT_EQ(desktop.messages[0].buttons, MessageButtons::Ok);
        return desktop.messages[0].text;
    }

    static constexpr Hive User = Hive::CurrentUser;
    static constexpr Hive MachineHive = Hive::LocalMachine;
    const std::string key = "Software\\Example";

    MemoryMachine machine;
    RecordingDesktop desktop;
    modRegistry registry{machine.Parts(), desktop, "Velkarix"};
};

// Lists the same names for every key, as subkeys and as values with a text.
class ListedNames : public MemoryRegistry {
  public:
    ListedNames(CallJournal& journal, std::vector<std::string> names)
        : MemoryRegistry(journal), names_(std::move(names)) {}
    ErrorCode RegEnumKeyExA(KeyHandle, std::uint32_t index, std::uint32_t,
                            std::string& name) override {
        if (index >= names_.size()) return error::NoMoreItems;
        name = names_[index];
        return error::Success;
    }
    ErrorCode RegEnumValueA(KeyHandle key, std::uint32_t index, std::uint32_t capacity,
                            std::string& name, std::uint32_t& type, Bytes& data,
                            std::uint32_t& size) override {
        type = registryType::Sz;
        data.assign({'x', 0});
        size = 2;
        return RegEnumKeyExA(key, index, capacity, name);
    }

  private:
    std::vector<std::string> names_;
};

// Two names of a double-byte code page: the second bytes are no letters.
inline const std::vector<std::string> DoubleByteNames = {
    "\x83"
    "A",
    "\x83"
    "a"};

using Strings = std::vector<std::string>;

}  // namespace velkarix
