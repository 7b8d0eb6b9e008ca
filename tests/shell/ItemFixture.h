// The program's services on a machine in memory, for tests of what moves and deletes registry
// items.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shell/Application.h"
#include "tests/machine/MemoryMachine.h"
#include "tests/machine/RecordingDesktop.h"
#include "tests/machine/RegistryFileMerge.h"

namespace velkarix {

struct ItemWorld {
    MemoryMachine machine;
    RecordingDesktop desktop;
    Application application{machine.Parts(), desktop};
};

// The registry file that a list keeps while the clock stands still, and its text.
inline std::string KeptFile(const std::string& listName) {
    return "C:\\Velkarix\\Backup\\6_1_153_12_0_0_" + listName + ".reg";
}
inline std::string KeptText(const ItemWorld& world, const std::string& listName) {
    return world.machine.disk.ContentOf(KeptFile(listName)).value_or("");
}

class ItemFixture : public testing::Test, protected ItemWorld {
  protected:
    void TearDown() override {
        EXPECT_EQ(machine.registry.OpenKeyCount(), 0u);
        EXPECT_EQ(machine.files.OpenFileCount(), 0u);
    }

    // The one message that was shown, which must be of this kind and carry the program's title.
    std::string OnlyMessage(MessageIcon icon) {
        if (desktop.messages.size() != 1) {
            return std::to_string(desktop.messages.size()) + " messages";
        }
        EXPECT_EQ(desktop.messages[0].title, "Velkarix");
        EXPECT_EQ(desktop.messages[0].icon, icon);
        EXPECT_EQ(desktop.messages[0].buttons, MessageButtons::Ok);
        return desktop.messages[0].text;
    }
    std::string Kept(const std::string& listName) { return KeptText(*this, listName); }

    static constexpr Hive User = Hive::CurrentUser;
    static constexpr Hive AllUsers = Hive::LocalMachine;
    static constexpr const char* Live = "Software\\Live";
    static constexpr const char* Held = "Software\\Velkarix\\Disabled\\List";
};

}  // namespace velkarix
