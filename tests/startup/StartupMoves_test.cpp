#include "startup/StartupMoves.h"

#include <string>

#include "tests/shell/ItemFaults.h"
#include "tests/shell/ItemFixture.h"

namespace velkarix {
namespace {

class StartupMoves : public ItemFixture {
  protected:
    bool Move(const std::string& name) {
        return RelocateRunValue(application, User, Live, Held, name);
    }
    std::optional<MemoryValue> At(const char* key, const std::string& name) {
        return machine.registry.ValueAt(User, key, name);
    }
    std::string NotDeleted(ErrorCode code) {
        return "Following Key Value Could not be deleted: \r\n\r\n" + std::string(Live) +
               "\r\n\r\nItem" + application.registry.GetSystemErrorText(code);
    }
};

TEST_F(StartupMoves, MoveAValueAsText) {
    machine.SetValue(User, Live, "Item", "C:\\a.exe /x");
    EXPECT_TRUE(Move("Item"));
    EXPECT_FALSE(At(Live, "Item"));
    EXPECT_EQ(At(Held, "Item"),
              (MemoryValue{"Item",
                           registryType::Sz,
                           {'C', ':', '\\', 'a', '.', 'e', 'x', 'e', ' ', '/', 'x', 0}}));
    EXPECT_TRUE(desktop.messages.empty());
    EXPECT_FALSE(machine.disk.Exists("C:\\Velkarix\\Backup"));
}

// A value that expands comes back as plain text: as it was it is kept.
TEST_F(StartupMoves, KeepAValueOfAnotherTypeAsItWas) {
    const Bytes data = {'%', 'T', 'E', 'M', 'P', '%', 0};
    machine.registry.SetRaw(User, Live, "Item", registryType::ExpandSz, data);
    EXPECT_TRUE(Move("Item"));
    EXPECT_EQ(At(Held, "Item"), (MemoryValue{"Item", registryType::Sz, data}));
    MemoryHives kept;
    ASSERT_TRUE(MergeRegistryFile(kept, Kept("Startup")));
    EXPECT_EQ(kept.ValueAt(User, Live, "Item"),
              (MemoryValue{"Item", registryType::ExpandSz, data}));
}

TEST_F(StartupMoves, NameThemselvesWhereAValueCanNotBeKept) {
    machine.registry.SetRaw(User, Live, "Item", registryType::Binary, {'a'});
    machine.AddFile("C:\\Velkarix\\Backup");
    EXPECT_FALSE(Move("Item"));
    EXPECT_EQ(OnlyMessage(MessageIcon::Information).substr(0, 26), "Error Occurred endisRun: \r");
    EXPECT_TRUE(At(Live, "Item"));
    EXPECT_FALSE(At(Held, "Item"));
}

TEST_F(StartupMoves, WriteAnEmptyTextForAValueThatIsGone) {
    machine.AddKey(User, Live);
    EXPECT_TRUE(Move("Item"));
    EXPECT_EQ(At(Held, "Item"), (MemoryValue{"Item", registryType::Sz, {0}}));
    ASSERT_EQ(desktop.messages.size(), 1u);
    EXPECT_EQ(desktop.messages.at(0).icon, MessageIcon::Critical);
    EXPECT_EQ(desktop.messages.at(0).text.find("Following Key Value Could not be deleted: "), 0u);
}

TEST_F(StartupMoves, LeaveWhatStandsAtTheDestinationOfAValueThatIsGone) {
    machine.AddKey(User, Live);
    machine.SetValue(User, Held, "Item", "all that is left");
    EXPECT_TRUE(Move("Item"));
    EXPECT_EQ(machine.registry.TextAt(User, Held, "Item"), "all that is left");
    EXPECT_EQ(desktop.messages.size(), 1u);
}

TEST_F(StartupMoves, WriteNothingForAValueThatCanNotBeReachedByItsName) {
    const std::string name("Item\0x", 6);
    machine.registry.SetRaw(User, Live, name, registryType::Sz, {'a', 0});
    EXPECT_FALSE(Move(name));
    EXPECT_EQ(desktop.messages.size(), 1u);
    EXPECT_TRUE(At(Live, name));
    EXPECT_FALSE(machine.registry.HasKey(User, Held));
}

TEST_F(StartupMoves, WriteNothingForAValueThatIsListedByANameThatLeadsNowhere) {
    machine.registry.SetNamedValue(User, Live, u"\u0430\u0431", registryType::Sz, {'a', 0});
    EXPECT_FALSE(Move("??"));
    EXPECT_EQ(OnlyMessage(MessageIcon::Critical).find("Following Key Value Could not be deleted: "),
              0u);
    EXPECT_EQ(machine.registry.ValueNamesOf(User, Live).size(), 1u);
    EXPECT_FALSE(machine.registry.HasKey(User, Held));
}

TEST_F(StartupMoves, EndWhereTheEmptyTextCanNotBeWritten) {
    machine.AddKey(User, Live);
    machine.FailAlways("RegCreateKeyA");
    EXPECT_FALSE(Move("Item"));
    EXPECT_EQ(desktop.messages.size(), 1u);  // of the key alone
    EXPECT_EQ(machine.Journal().CountOf("RegDeleteValueA"), 0u);
}

TEST_F(StartupMoves, TellOfAValueThatCanNotBeDeletedAndStandsInBothKeys) {
    machine.SetValue(User, Live, "Item", "a");
    machine.FailAlways("RegDeleteValueA");
    EXPECT_TRUE(Move("Item"));
    EXPECT_TRUE(At(Live, "Item"));
    EXPECT_TRUE(At(Held, "Item"));
    EXPECT_EQ(OnlyMessage(MessageIcon::Critical).find("Following Key Value Could not be deleted: "),
              0u);
}

// Trouble at each call, also such that a value which is there seems to be gone.
TEST_F(StartupMoves, LoseNoValueWhateverFails) {
    const MemoryValue value{"Item", registryType::Sz, {'a', 'b', 0}};
    ExpectNeverLost({[&](MemoryRegistry& registry) {
                         registry.SetRaw(User, Live, "Item", value.type, value.data);
                     },
                     [](Application& run) { RelocateRunValue(run, User, Live, Held, "Item"); },
                     [&](const MemoryRegistry& now, const MemoryHives&) {
                         return now.ValueAt(User, Live, "Item") == value ||
                                now.ValueAt(User, Held, "Item") == value;
                     },
                     [&](const MemoryRegistry& now) {
                         return !now.ValueAt(User, Live, "Item") &&
                                now.ValueAt(User, Held, "Item") == value;
                     }});
}

TEST_F(StartupMoves, LoseNothingAtTheDestinationOfAValueThatIsGone) {
    const MemoryValue value{"Item", registryType::Sz, {'a', 'b', 0}};
    const auto stands = [&](const MemoryRegistry& now) {
        return now.ValueAt(User, Held, "Item") == value;
    };
    ExpectNeverLost({[&](MemoryRegistry& registry) {
                         registry.AddKey(User, Live);
                         registry.SetRaw(User, Held, "Item", value.type, value.data);
                     },
                     [](Application& run) { RelocateRunValue(run, User, Live, Held, "Item"); },
                     [&](const MemoryRegistry& now, const MemoryHives&) { return stands(now); },
                     stands});
}

}  // namespace
}  // namespace velkarix
