#include "shell/RegistryBackup.h"

#include <algorithm>

#include "tests/shell/ItemFixture.h"

namespace velkarix {
namespace {

class RegistryBackupTest : public ItemFixture {
  protected:
    ErrorCode Keep(const std::string& sections) {
        return KeepRegistryFile(application, "List", sections);
    }

    const std::string section = "[HKEY_CURRENT_USER\\A]\r\n@=\"b\"\r\n\r\n";
    const std::string other = "[HKEY_CURRENT_USER\\B]\r\n\r\n";
    const std::string header = "REGEDIT4\r\n\r\n";
};

TEST_F(RegistryBackupTest, KeepsAFileNamedForTheMomentAndTheList) {
    EXPECT_EQ(Keep(section), error::Success);
    EXPECT_EQ(Kept("List"), header + section);
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(RegistryBackupTest, MakesTheFolderWhenItIsMissingAndUsesOneThatIsThere) {
    machine.disk.Remove("C:\\Velkarix\\Backup");
    EXPECT_EQ(Keep(section), error::Success);
    machine.clock.SetLocalTime(MakeTime(2004, 6, 1, 12, 0, 1));
    EXPECT_EQ(Keep(other), error::Success);
    EXPECT_EQ(machine.disk.ContentOf("C:\\Velkarix\\Backup\\6_1_153_12_0_1_List.reg"),
              header + other);
    EXPECT_EQ(Kept("List"), header + section);
}

TEST_F(RegistryBackupTest, TellsThatTheFolderCantBeMade) {
    machine.FailNext("CreateDirectoryA");
    EXPECT_EQ(Keep(section), error::AccessDenied);
    EXPECT_EQ(machine.Journal().CountOf("CreateFileA"), 0u);
}

TEST_F(RegistryBackupTest, TwoOfOneSecondGoIntoOneFileWithOneHeader) {
    EXPECT_EQ(Keep(section), error::Success);
    EXPECT_EQ(Keep(other), error::Success);
    EXPECT_EQ(Kept("List"), header + section + other);
    EXPECT_EQ(KeepRegistryFile(application, "Other", other), error::Success);
    EXPECT_EQ(Kept("Other"), header + other);
}

TEST_F(RegistryBackupTest, NeverTouchesAFileThatItCouldNotContinue) {
    for (const std::string& text : {std::string(), std::string("mine"), header + "[HKEY_CURR",
                                    header + "[HKEY_CURRENT_USER\\A]\r\n", section + other}) {
        machine.AddFile(KeptFile("List")).Content(text);
        EXPECT_EQ(Keep(section), error::AlreadyExists) << text;
        EXPECT_EQ(Kept("List"), text);
    }
    machine.AddFile(KeptFile("List")).Content(header).Unreadable();
    EXPECT_EQ(Keep(section), error::SharingViolation);
    EXPECT_EQ(Kept("List"), header);
}

TEST_F(RegistryBackupTest, TellsThatTheDiskTookLess) {
    machine.disk.SetFreeBytes(20);
    EXPECT_EQ(Keep(section), error::HandleDiskFull);
}

TEST_F(RegistryBackupTest, IsNoSuccessWhenTheFileReadsOtherwise) {
    EXPECT_EQ(Keep(section), error::Success);
    const std::vector<std::string> calls = machine.Journal().Names();
    const auto reading = std::find(calls.begin(), calls.end(), "ReadFile");
    ItemWorld world;
    world.machine.Journal().OnCall(static_cast<std::size_t>(reading - calls.begin()), [&] {
        world.machine.AddFile(KeptFile("List")).content.back() = '!';
    });
    EXPECT_EQ(KeepRegistryFile(world.application, "List", section), error::WriteFault);
}

TEST_F(RegistryBackupTest, IsNoSuccessWhenAnyOfItsCallsFailsAndKeepsWhatWasThere) {
    EXPECT_EQ(Keep(section), error::Success);
    machine.Journal().Clear();
    EXPECT_EQ(Keep(other), error::Success);
    const std::vector<std::string> calls = machine.Journal().Names();
    for (std::size_t i = 0; i < calls.size(); ++i) {
        // A file that won't close has been written and read, and without the time the file is kept
        // under another name.
        if (calls[i] == "CloseFile" || calls[i] == "GetLocalTime") continue;
        ItemWorld world;
        world.machine.AddFile(KeptFile("List")).Content(header + section);
        world.machine.Journal().FailCall(i, error::AccessDenied);
        EXPECT_NE(KeepRegistryFile(world.application, "List", other), error::Success) << calls[i];
        // What it may have written behind the end can be merged all the same.
        const std::string kept = KeptText(world, "List");
        EXPECT_TRUE(kept == header + section || kept == header + section + other) << calls[i];
    }
}

}  // namespace
}  // namespace velkarix
