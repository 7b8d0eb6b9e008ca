#include "shell/Relocation.h"

#include <functional>

#include "tests/shell/ItemFixture.h"

namespace velkarix {
namespace {

const std::string NotDeleted =
    "Following Key Could not be deleted: \r\nSoftware\\Live\\Item\r\n\r\n";
const std::string CantWriteText = "The configuration registry key could not be written.\r\n";

class RelocateKeyTest : public ItemFixture {
  protected:
    void AddItem(const std::string& key) {
        machine.SetValue(User, key, "", "default");
        machine.registry.SetRaw(User, key, "Odd", 77, {1, 2, 3});
        machine.registry.SetRaw(User, key + "\\Sub", "Empty", registryType::Binary, {});
        machine.SetDword(User, key + "\\Sub\\Deep", "Number", 5);
        machine.AddKey(User, key + "\\Bare");
    }
    void Disable() { RelocateKey(application, "List", User, live, held); }
    std::string TreeOf(const std::string& key) { return machine.registry.TreeText(User, key); }

    const std::string live = std::string(Live) + "\\Item";
    const std::string held = std::string(Held) + "\\Item";
};

TEST_F(RelocateKeyTest, MovesTheKeyWithAllBelowItAndBackAgain) {
    AddItem(live);
    const std::string item = TreeOf(live);
    Disable();
    EXPECT_EQ(TreeOf(held), item);
    EXPECT_FALSE(machine.registry.HasKey(User, live));
    RelocateKey(application, "List", User, held, live);
    EXPECT_EQ(TreeOf(live), item);
    EXPECT_FALSE(machine.registry.HasKey(User, held));
    EXPECT_TRUE(machine.registry.HasKey(User, Held));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(RelocateKeyTest, StaysInItsHiveWhereTheSamePathIsTakenInAnother) {
    AddItem(live);
    machine.SetValue(AllUsers, held, "Name", "of all users");
    Disable();
    EXPECT_EQ(machine.registry.ValueNamesOf(AllUsers, held), (std::vector<std::string>{"Name"}));
    EXPECT_EQ(machine.registry.ValueNamesOf(User, held), (std::vector<std::string>{"", "Odd"}));
}

TEST_F(RelocateKeyTest, MergesIntoADestinationThatIsThere) {
    AddItem(live);
    machine.SetValue(User, held, "", "other");
    machine.SetValue(User, held, "Own", "kept");
    Disable();
    EXPECT_EQ(machine.registry.TextAt(User, held, ""), "default");
    EXPECT_EQ(machine.registry.TextAt(User, held, "Own"), "kept");
    EXPECT_FALSE(machine.registry.HasKey(User, live));
}

TEST_F(RelocateKeyTest, KeepsADestinationOfWhichItWritesSomethingOver) {
    AddItem(live);
    machine.SetValue(User, held, "", "other");
    const std::string other = TreeOf(held);
    Disable();
    EXPECT_FALSE(machine.registry.HasKey(User, live));
    MemoryHives kept;
    EXPECT_TRUE(MergeRegistryFile(kept, Kept("List")));
    EXPECT_EQ(kept.TreeText(User, held), other);
}

TEST_F(RelocateKeyTest, MovesNothingOntoADestinationThatCantBeKept) {
    AddItem(live);
    machine.SetValue(User, held, "", "other");
    const std::string other = TreeOf(held);
    machine.disk.SetFreeBytes(0);
    Disable();
    EXPECT_TRUE(machine.registry.HasKey(User, live));
    EXPECT_EQ(TreeOf(held), other);
    EXPECT_EQ(OnlyMessage(MessageIcon::Information),
              "Error Occurred backupItem: \r\nThe disk is full.\r\n");
}

TEST_F(RelocateKeyTest, KeepsNothingWhereTheDestinationIsAPartOfTheItem) {
    AddItem(live);
    machine.SetValue(User, held, "", "default");
    Disable();
    EXPECT_FALSE(machine.registry.HasKey(User, live));
    EXPECT_EQ(machine.Journal().CountOf("WriteFile"), 0u);
}

TEST_F(RelocateKeyTest, DoesNothingWhenTheItemIsGone) {
    Disable();
    EXPECT_FALSE(machine.registry.HasKey(User, held));
    EXPECT_EQ(machine.Journal().CountOf("RegCreateKeyA"), 0u);
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(RelocateKeyTest, LeavesTheItemWhereTheDestinationCantBeMade) {
    AddItem(live);
    const std::string item = TreeOf(live);
    machine.FailNext("RegCreateKeyA");
    Disable();
    EXPECT_EQ(TreeOf(live), item);
    EXPECT_EQ(OnlyMessage(MessageIcon::Critical),
              "Following Key Could not be created: \r\n" + held + "\r\nAccess is denied.\r\n");
}

TEST_F(RelocateKeyTest, RemovesADestinationThatItMadeForACopyThatFailed) {
    AddItem(live);
    const std::string item = TreeOf(live);
    machine.FailNext("SHCopyKeyA");
    Disable();
    EXPECT_EQ(TreeOf(live), item);
    EXPECT_FALSE(machine.registry.HasKey(User, held));
    EXPECT_TRUE(desktop.messages.empty());

    machine.registry.SetHasCopyKey(false);
    machine.registry.Restrict(User, live + "\\Sub\\Deep", KeyAccess::Write);
    Disable();
    EXPECT_EQ(TreeOf(live), item);
    EXPECT_FALSE(machine.registry.HasKey(User, held));
}

TEST_F(RelocateKeyTest, LeavesADestinationThatWasThereWhenTheCopyFails) {
    AddItem(live);
    machine.SetValue(User, held, "Own", "kept");
    machine.FailNext("SHCopyKeyA");
    Disable();
    EXPECT_EQ(machine.registry.TextAt(User, held, "Own"), "kept");
    EXPECT_TRUE(machine.registry.HasKey(User, live));
}

TEST_F(RelocateKeyTest, LeavesADestinationThatMayNotBeReadWhenTheCopyFails) {
    AddItem(live);
    machine.AddKey(User, held);
    machine.registry.Restrict(User, held, KeyAccess::Write);
    Disable();
    EXPECT_TRUE(machine.registry.HasKey(User, live));
    EXPECT_TRUE(machine.registry.HasKey(User, held));
}

TEST_F(RelocateKeyTest, KeepsTheItemWhereACopyIsShortThoughItReportsSuccess) {
    const std::vector<std::function<void()>> damages = {
        [&] { machine.registry.RemoveValue(User, held, ""); },
        [&] {
            machine.registry.SetRaw(User, held, "Odd", 78, {1, 2, 3});
        },
        [&] {
            machine.registry.SetRaw(User, held, "Odd", 77, {1, 2});
        },
        [&] { machine.registry.RemoveValue(User, held + "\\Sub", "Empty"); },
        [&] { machine.SetDword(User, held + "\\Sub\\Deep", "Number", 6); },
        [&] { machine.registry.RemoveKey(User, held + "\\Sub\\Deep"); },
        [&] { machine.registry.RemoveKey(User, held + "\\Bare"); },
        [&] { machine.registry.RemoveKey(User, held); },
    };
    AddItem(live);
    const std::string item = TreeOf(live);
    for (std::size_t i = 0; i < damages.size(); ++i) {
        machine.registry.afterCopy = damages[i];
        desktop.messages.clear();
        Disable();
        EXPECT_EQ(TreeOf(live), item) << i;
        EXPECT_FALSE(machine.registry.HasKey(User, held)) << i;
        EXPECT_EQ(OnlyMessage(MessageIcon::Critical), NotDeleted + CantWriteText) << i;
    }
}

// Nothing can write a simple text of no bytes there: it arrives as one NUL, the same empty text.
TEST_F(RelocateKeyTest, MovesATextOfNoBytesOnWindows95WithoutTheShellsCall) {
    machine.SetSystem(NamedSystem::Windows95);
    machine.registry.SetHasCopyKey(false);
    machine.registry.SetRaw(User, live, "Empty", registryType::Sz, {});
    machine.registry.SetRaw(User, live, "Expands", registryType::ExpandSz, {});
    Disable();
    EXPECT_FALSE(machine.registry.HasKey(User, live));
    EXPECT_EQ(machine.registry.ValueAt(User, held, "Empty"),
              (MemoryValue{"Empty", registryType::Sz, {0}}));
    EXPECT_EQ(machine.registry.ValueAt(User, held, "Expands"),
              (MemoryValue{"Expands", registryType::ExpandSz, {}}));
    EXPECT_TRUE(desktop.messages.empty());
}

// The copy is all that is left of it, and the list shows it.
TEST_F(RelocateKeyTest, LeavesTheCopyOfAnItemThatSomebodyTakesAwayMeanwhile) {
    for (const std::string below : {"", "\\Sub\\Deep"}) {
        machine.registry.RemoveKey(User, held);
        AddItem(live);
        const std::string item = TreeOf(live);
        machine.registry.afterCopy = [&] { machine.registry.RemoveKey(User, live + below); };
        Disable();
        EXPECT_EQ(TreeOf(held), item) << below;
    }
}

// The system copies what is named by the part before the NUL, or under that name.
TEST_F(RelocateKeyTest, KeepsTheItemWhereSomethingInItCantBeReachedByItsName) {
    const std::vector<std::function<void()>> additions = {
        [&] { machine.registry.SetRaw(User, live, std::string("Odd\0x", 5), 77, {4}); },
        [&] { machine.registry.SetRaw(User, live + "\\Sub", std::string("New\0x", 5), 77, {4}); },
        [&] { machine.AddKey(User, live + std::string("\\Sub\0x", 6)); },
        [&] { machine.AddKey(User, live + std::string("\\\0x", 3)); },
    };
    for (std::size_t i = 0; i < additions.size(); ++i) {
        for (const bool hasCopyKey : {true, false}) {
            machine.registry.SetHasCopyKey(hasCopyKey);
            machine.registry.RemoveKey(User, live);
            AddItem(live);
            additions[i]();
            const std::string item = TreeOf(live);
            desktop.messages.clear();
            Disable();
            EXPECT_EQ(TreeOf(live), item) << i;
            EXPECT_FALSE(machine.registry.HasKey(User, held)) << i;
        }
    }
}

TEST_F(RelocateKeyTest, LeavesADestinationThatWasThereWhenTheCopyIsShort) {
    AddItem(live);
    machine.SetValue(User, held, "Own", "kept");
    machine.registry.afterCopy = [&] { machine.registry.RemoveValue(User, held, ""); };
    Disable();
    EXPECT_EQ(machine.registry.TextAt(User, held, "Own"), "kept");
    EXPECT_TRUE(machine.registry.HasKey(User, live));
    EXPECT_EQ(OnlyMessage(MessageIcon::Critical), NotDeleted + CantWriteText);
}

TEST_F(RelocateKeyTest, TellsWhyACopyCantBeReadBack) {
    AddItem(live);
    machine.FailNext("RegQueryValueExA", error::BadKey);
    Disable();
    EXPECT_TRUE(machine.registry.HasKey(User, live));
    EXPECT_EQ(OnlyMessage(MessageIcon::Critical),
              NotDeleted + "The configuration registry key is invalid.\r\n");
}

TEST_F(RelocateKeyTest, LeavesTheItemInBothPlacesWhereItCantBeDeleted) {
    AddItem(live);
    const std::string item = TreeOf(live);
    for (int i = 0; i < 4; ++i) machine.FailNext("RegDeleteKeyA");
    Disable();
    EXPECT_EQ(TreeOf(held), item);
    EXPECT_TRUE(machine.registry.HasKey(User, live));
    EXPECT_EQ(OnlyMessage(MessageIcon::Critical), NotDeleted + "Access is denied.\r\n");
}

TEST_F(RelocateKeyTest, DeletesOnlyAfterCopyingAndReadingBack) {
    machine.SetValue(User, live, "Name", "text");
    Disable();
    const std::vector<std::string> calls = machine.Journal().Names();
    const auto at = [&](const std::string& call) {
        return std::find(calls.begin(), calls.end(), call) - calls.begin();
    };
    EXPECT_LT(at("SHCopyKeyA"), at("RegQueryValueExA"));
    EXPECT_LT(at("RegQueryValueExA"), at("RegDeleteKeyA"));
}

TEST_F(RelocateKeyTest, DeleteKeyTreeTellsWhetherTheKeyIsGone) {
    AddItem(live);
    EXPECT_TRUE(DeleteKeyTree(application, User, live));
    EXPECT_FALSE(machine.registry.HasKey(User, live));
    EXPECT_TRUE(machine.registry.HasKey(User, Live));
    EXPECT_TRUE(desktop.messages.empty());
    EXPECT_FALSE(DeleteKeyTree(application, User, live));
    EXPECT_EQ(OnlyMessage(MessageIcon::Critical),
              NotDeleted + "The system cannot find the file specified.\r\n");
}

}  // namespace
}  // namespace velkarix
