// A machine in memory with the registry operations over it, for the tests of all their files.
#pragma once

#include <gtest/gtest.h>

#include <string>
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

using Strings = std::vector<std::string>;

}  // namespace velkarix
