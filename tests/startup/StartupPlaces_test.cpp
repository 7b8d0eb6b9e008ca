#include "startup/StartupPlaces.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/machine/TestProgram.h"

namespace velkarix {
namespace {

TEST(StartupPlaces, AreFiveKeysOfEachHive) {
    TestProgram program;
    program.application.DisabledRoot = "Software\\Held\\";
    struct Expected {
        const char* location;
        Hive hive;
        const char* suffix;
    };
    const Expected expected[] = {
        {"HKLM\\Run", Hive::LocalMachine, ""},
        {"HKLM\\RunOnce", Hive::LocalMachine, "Once"},
        {"HKLM\\RunOnceEx", Hive::LocalMachine, "OnceEx"},
        {"HKLM\\RunServices", Hive::LocalMachine, "Services"},
        {"HKLM\\RunServicesOnce", Hive::LocalMachine, "ServicesOnce"},
        {"HKCU\\Run", Hive::CurrentUser, ""},
        {"HKCU\\RunOnce", Hive::CurrentUser, "Once"},
        {"HKCU\\RunOnceEx", Hive::CurrentUser, "OnceEx"},
        {"HKCU\\RunServices", Hive::CurrentUser, "Services"},
        {"HKCU\\RunServicesOnce", Hive::CurrentUser, "ServicesOnce"},
    };
    ASSERT_EQ(RunKeys.size(), std::size(expected));
    for (std::size_t i = 0; i < RunKeys.size(); ++i) {
        const RunKey* key = FindRunKey(expected[i].location);
        ASSERT_EQ(key, &RunKeys[i]) << expected[i].location;
        EXPECT_EQ(key->hive, expected[i].hive);
        EXPECT_EQ(
            RunKeyPath(program.application, *key, true),
            std::string("Software\\Microsoft\\Windows\\CurrentVersion\\Run") + expected[i].suffix);
        EXPECT_EQ(RunKeyPath(program.application, *key, false),
                  std::string("Software\\Held\\Run") + expected[i].suffix);
    }
}

TEST(StartupPlaces, AreTwoFolders) {
    ASSERT_EQ(StartupFolders.size(), 2u);
    const StartupFolder* machine = FindStartupFolder("Startup LM");
    ASSERT_NE(machine, nullptr);
    EXPECT_EQ(machine->hive, Hive::LocalMachine);
    EXPECT_STREQ(machine->valueName, "Common Startup");
    EXPECT_STREQ(machine->heldFolder, "DLMStartup");
    const StartupFolder* user = FindStartupFolder("Startup CU");
    ASSERT_NE(user, nullptr);
    EXPECT_EQ(user->hive, Hive::CurrentUser);
    EXPECT_STREQ(user->valueName, "Startup");
    EXPECT_STREQ(user->heldFolder, "DCUStartup");
}

TEST(StartupPlaces, AreFoundByTheirWholeLocationAlone) {
    for (const char* location : {"", "HKLM", "HKCU", "HKLM\\Ru", "HKLM\\Runs", "hklm\\run",
                                 "Startup", "Startup lm", "Startup LM "}) {
        EXPECT_EQ(FindRunKey(location), nullptr) << location;
        EXPECT_EQ(FindStartupFolder(location), nullptr) << location;
    }
    EXPECT_EQ(FindRunKey("Startup LM"), nullptr);
    EXPECT_EQ(FindStartupFolder("HKLM\\Run"), nullptr);
}

}  // namespace
}  // namespace velkarix
