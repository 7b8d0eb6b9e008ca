#include "shell/ValueMove.h"

#include <gtest/gtest.h>

#include "shell/Relocation.h"
#include "tests/shell/ItemFixture.h"

namespace velkarix {
namespace {

const std::string Clsid = "{0-1}";

Bytes Text(const std::string& text) {
    Bytes data(text.begin(), text.end());
    data.push_back(0);
    return data;
}

class ValueMoveTest : public ItemFixture {
  protected:
    void Put(std::uint32_t type, const Bytes& data, Hive hive = User) {
        machine.registry.RemoveValue(hive, Held, Clsid);
        machine.registry.SetRaw(hive, Live, Clsid, type, data);
        machine.SetValue(hive, Live, "Other", "stays");
    }
    void MoveHook() { RelocateValue(application, "Hooks", User, Live, Held, Clsid); }
    void MoveToolbar(Hive hive = User) {
        RelocateToolbarValue(application, "Toolbar", hive, Live, Held, Clsid);
    }
    auto LiveValue(Hive hive = User) { return machine.registry.ValueAt(hive, Live, Clsid); }
    auto HeldValue(Hive hive = User) { return machine.registry.ValueAt(hive, Held, Clsid); }

    // The value has moved, and stands at the destination like this.
    void ExpectArrived(std::uint32_t type, const Bytes& data, Hive hive = User) {
        EXPECT_FALSE(LiveValue(hive).has_value());
        EXPECT_EQ(HeldValue(hive), (MemoryValue{Clsid, type, data}));
        EXPECT_EQ(machine.registry.TextAt(hive, Live, "Other"), "stays");
        EXPECT_TRUE(desktop.messages.empty());
    }

    const std::string notDeleted =
        "Following Key Value Could not be deleted: \r\nSoftware\\Live\r\n\r\n{0-1}\r\n";
    const std::string cantWrite = "The configuration registry key could not be written.\r\n";
    const std::string keptStart = "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\Live]\r\n";
};

// ---- What arrives, and what is kept

TEST_F(ValueMoveTest, ATextMovesAsItIsAndKeepsNoFile) {
    for (const std::string text : {"", "text", "caf\xE9"}) {
        Put(registryType::Sz, Text(text));
        MoveHook();
        ExpectArrived(registryType::Sz, Text(text));
    }
    Put(registryType::Sz, Text("text"), AllUsers);
    MoveToolbar(AllUsers);
    ExpectArrived(registryType::Sz, Text("text"), AllUsers);
    EXPECT_EQ(Kept("Hooks") + Kept("Toolbar"), "");
}

TEST_F(ValueMoveTest, WhatIsWrittenOverAtTheDestinationIsKeptAsItWas) {
    Put(registryType::Sz, Text("text"));
    machine.registry.SetRaw(User, Held, Clsid, registryType::Sz, Text("other"));
    MoveHook();
    ExpectArrived(registryType::Sz, Text("text"));
    EXPECT_EQ(Kept("Hooks"),
              "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\Velkarix\\Disabled\\List]\r\n"
              "\"{0-1}\"=\"other\"\r\n\r\n");
}

TEST_F(ValueMoveTest, NothingMovesOntoAValueThatCantBeKept) {
    Put(registryType::Sz, Text("text"));
    machine.registry.SetRaw(User, Held, Clsid, registryType::Sz, Text("other"));
    machine.disk.SetFreeBytes(0);
    MoveHook();
    EXPECT_EQ(LiveValue(), (MemoryValue{Clsid, registryType::Sz, Text("text")}));
    EXPECT_EQ(HeldValue(), (MemoryValue{Clsid, registryType::Sz, Text("other")}));
    EXPECT_EQ(OnlyMessage(MessageIcon::Information),
              "Error Occurred endisHook: \r\nThe disk is full.\r\n");
}

TEST_F(ValueMoveTest, AnythingElseBecomesATextAndIsKeptAsItWas) {
    struct Row {
        std::uint32_t type;
        Bytes data;
        std::string arrives;
        std::string kept;
    };
    for (const Row& row : std::vector<Row>{
             {registryType::ExpandSz, Text("%a%"), "%a%", "hex(2):25,61,25,00"},
             {registryType::Binary, {'a', 'b'}, "ab", "hex:61,62"},
             {registryType::Binary, {}, "", "hex:"},
             {registryType::Dword, {65, 0, 0, 0}, "A", "dword:00000041"},
             {registryType::Sz, {'a', 'b'}, "ab", "hex(1):61,62"},
             {registryType::Sz, {}, "", "hex(1):"},
             {registryType::Sz, {'a', 0, 'b', 0}, "a", "hex(1):61,00,62,00"},
             {registryType::Sz, {'a', 0, 0}, "a", "hex(1):61,00,00"},
             {registryType::MultiSz, {'a', 0, 'b', 0, 0}, "a", "hex(7):61,00,62,00,00"}}) {
        machine.disk.Remove(KeptFile("Hooks"));
        Put(row.type, row.data);
        MoveHook();
        ExpectArrived(registryType::Sz, Text(row.arrives));
        EXPECT_EQ(Kept("Hooks"), keptStart + "\"{0-1}\"=" + row.kept + "\r\n\r\n");
    }
}

TEST_F(ValueMoveTest, AToolbarOfAllUsersIsAText) {
    Put(registryType::Binary, {'a'}, AllUsers);
    MoveToolbar(AllUsers);
    ExpectArrived(registryType::Sz, Text("a"), AllUsers);
    EXPECT_EQ(Kept("Toolbar"),
              "REGEDIT4\r\n\r\n[HKEY_LOCAL_MACHINE\\Software\\Live]\r\n\"{0-1}\"=hex:61\r\n\r\n");
}

TEST_F(ValueMoveTest, AToolbarOfTheUserMovesByteForByteAndKeepsNoFile) {
    for (const Bytes& data : {Bytes{1, 2}, Bytes{0, 0, 0}, Bytes(5000, 7), Bytes{0}}) {
        Put(registryType::Binary, data);
        MoveToolbar();
        ExpectArrived(registryType::Binary, data);
    }
    EXPECT_EQ(Kept("Toolbar"), "");
}

TEST_F(ValueMoveTest, AMarkOfOneByteOrNoneBecomesOneZeroByteAndIsKeptAsItWas) {
    Put(registryType::Binary, {1});
    MoveToolbar();
    ExpectArrived(registryType::Binary, {0});
    EXPECT_EQ(Kept("Toolbar"), keptStart + "\"{0-1}\"=hex:01\r\n\r\n");
    machine.disk.Remove(KeptFile("Toolbar"));
    Put(registryType::Binary, {});
    MoveToolbar();
    ExpectArrived(registryType::Binary, {0});
    EXPECT_EQ(Kept("Toolbar"), keptStart + "\"{0-1}\"=hex:\r\n\r\n");
}

TEST_F(ValueMoveTest, AToolbarOfTheUserOfAnotherTypeBecomesBytesAndIsKeptAsItWas) {
    Put(registryType::Sz, Text("ab"));
    MoveToolbar();
    ExpectArrived(registryType::Binary, Text("ab"));
    EXPECT_EQ(Kept("Toolbar"), keptStart + "\"{0-1}\"=\"ab\"\r\n\r\n");
}

TEST_F(ValueMoveTest, WhatIsAtTheDestinationIsReplaced) {
    Put(registryType::Sz, Text("new"));
    machine.SetDword(User, Held, Clsid, 5);
    machine.SetValue(User, Held, "Own", "kept");
    MoveHook();
    ExpectArrived(registryType::Sz, Text("new"));
    EXPECT_EQ(machine.registry.TextAt(User, Held, "Own"), "kept");
}

// ---- What doesn't move

TEST_F(ValueMoveTest, NothingHappensWhenTheItemIsGone) {
    MoveHook();
    MoveToolbar();
    machine.AddKey(User, Live);
    MoveHook();
    EXPECT_FALSE(machine.registry.HasKey(User, Held));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(ValueMoveTest, WhatCantBeKeptStaysAndTheUserReadsWhy) {
    Put(registryType::Binary, {1});
    machine.FailAlways("CreateDirectoryA", error::SharingViolation);
    const std::string why =
        "The process cannot access the file because it is being used by another process.\r\n";
    MoveHook();
    EXPECT_EQ(OnlyMessage(MessageIcon::Information), "Error Occurred endisHook: \r\n" + why);
    desktop.messages.clear();
    MoveToolbar();
    EXPECT_EQ(OnlyMessage(MessageIcon::Information), "Error Occurred endisToolbar: \r\n" + why);
    EXPECT_EQ(LiveValue(), (MemoryValue{Clsid, registryType::Binary, {1}}));
    EXPECT_FALSE(HeldValue().has_value());
}

TEST_F(ValueMoveTest, AValueThatNoFileCanHoldStaysWhereItWouldChange) {
    machine.registry.SetRaw(User, Live, "a\nb", registryType::Binary, {1});
    RelocateValue(application, "Hooks", User, Live, Held, "a\nb");
    EXPECT_EQ(OnlyMessage(MessageIcon::Information),
              "Error Occurred endisHook: \r\nThe data is invalid.\r\n");
    EXPECT_TRUE(machine.registry.ValueAt(User, Live, "a\nb").has_value());
    EXPECT_FALSE(machine.registry.HasKey(User, Held));
}

TEST_F(ValueMoveTest, AValueThatCantBeReachedByItsNameStaysAndSoDoesItsNamesake) {
    const std::string name = Clsid + std::string("\0x", 2);
    machine.registry.SetRaw(User, Live, name, registryType::Sz, Text("hidden"));
    Put(registryType::Sz, Text("text"));
    RelocateValue(application, "Hooks", User, Live, Held, name);
    EXPECT_EQ(OnlyMessage(MessageIcon::Critical).substr(0, 41),
              "Following Key Value Could not be deleted:");
    EXPECT_TRUE(machine.registry.ValueAt(User, Live, name).has_value());
    EXPECT_TRUE(LiveValue().has_value());
    EXPECT_FALSE(machine.registry.HasKey(User, Held));
}

TEST_F(ValueMoveTest, AValueThatCantBeReadStays) {
    Put(registryType::Sz, Text("text"));
    machine.FailNext("RegQueryValueExA");
    MoveHook();
    EXPECT_EQ(OnlyMessage(MessageIcon::Critical), notDeleted + "Access is denied.\r\n");
    EXPECT_TRUE(LiveValue().has_value());
    EXPECT_FALSE(machine.registry.HasKey(User, Held));
}

TEST_F(ValueMoveTest, AValueStaysWhereTheDestinationMayNotBeRead) {
    Put(registryType::Sz, Text("text"));
    machine.SetValue(User, Held, Clsid, "old");
    machine.registry.Restrict(User, Held, KeyAccess::Write);
    MoveHook();
    EXPECT_EQ(OnlyMessage(MessageIcon::Critical), notDeleted + "Access is denied.\r\n");
    EXPECT_TRUE(LiveValue().has_value());
    EXPECT_EQ(HeldValue()->data, Text("old"));
}

TEST_F(ValueMoveTest, AValueStaysWhereTheDestinationCantBeMade) {
    Put(registryType::Sz, Text("text"));
    machine.FailNext("RegCreateKeyA");
    MoveHook();
    EXPECT_EQ(OnlyMessage(MessageIcon::Critical),
              std::string("Following Key Could not be created: \r\n") + Held +
                  "\r\nAccess is denied.\r\n");
    EXPECT_TRUE(LiveValue().has_value());
}

TEST_F(ValueMoveTest, AWriteThatIsRefusedLeavesTheValueWhereItWas) {
    Put(registryType::Sz, Text("text"));
    machine.FailAlways("RegSetValueExA");
    MoveHook();
    EXPECT_EQ(OnlyMessage(MessageIcon::Critical),
              notDeleted + "The system cannot find the file specified.\r\n");
    machine.SetValue(User, Held, Clsid, "old");
    desktop.messages.clear();
    MoveToolbar();
    EXPECT_EQ(desktop.messages.size(), 1u);
    EXPECT_EQ(HeldValue()->data, Text("old"));
    EXPECT_EQ(LiveValue(), (MemoryValue{Clsid, registryType::Sz, Text("text")}));
}

// The layer's own reading of the source fails, and it writes what it hasn't read.
TEST_F(ValueMoveTest, AWrongWriteOfATextIsTakenBackWhereNothingWas) {
    Put(registryType::Sz, Text("text"));
    machine.FailNext("RegOpenKeyA");
    MoveHook();
    EXPECT_EQ(OnlyMessage(MessageIcon::Critical), notDeleted + cantWrite);
    EXPECT_EQ(LiveValue()->data, Text("text"));
    EXPECT_FALSE(HeldValue().has_value());
}

TEST_F(ValueMoveTest, AWrongWriteOfBytesIsTakenBackWhereNothingWas) {
    Put(registryType::Binary, {1, 2, 3});
    machine.AddKey(User, Held);
    // Source and destination are opened before the layer opens the source once more.
    machine.Journal().OnCall(4, [&] { machine.FailNext("RegOpenKeyExA"); });
    MoveToolbar();
    EXPECT_EQ(machine.Journal().Names()[6], "RegOpenKeyExA");
    EXPECT_EQ(OnlyMessage(MessageIcon::Critical), notDeleted + cantWrite);
    EXPECT_EQ(LiveValue()->data, (Bytes{1, 2, 3}));
    EXPECT_FALSE(HeldValue().has_value());
}

TEST_F(ValueMoveTest, AWrongWriteIsTakenBackToWhatStoodThere) {
    Put(registryType::Sz, Text("text"));
    machine.registry.SetRaw(User, Held, Clsid, 77, {1, 2, 3});
    machine.FailNext("RegOpenKeyA");
    MoveHook();
    EXPECT_EQ(OnlyMessage(MessageIcon::Critical), notDeleted + cantWrite);
    EXPECT_EQ(LiveValue()->data, Text("text"));
    EXPECT_EQ(HeldValue(), (MemoryValue{Clsid, 77, {1, 2, 3}}));
}

TEST_F(ValueMoveTest, AValueThatCantBeDeletedStandsInBothPlaces) {
    Put(registryType::Sz, Text("text"));
    machine.FailNext("RegDeleteValueA");
    MoveHook();
    EXPECT_EQ(OnlyMessage(MessageIcon::Critical), notDeleted + "Access is denied.\r\n");
    EXPECT_TRUE(LiveValue().has_value());
    EXPECT_EQ(HeldValue()->data, Text("text"));
}

TEST_F(ValueMoveTest, AnUnnamedValueMovesToo) {
    machine.SetValue(User, Live, "", "text");
    RelocateValue(application, "Hooks", User, Live, Held, "");
    EXPECT_EQ(machine.registry.TextAt(User, Held, ""), "text");
    EXPECT_FALSE(machine.registry.ValueAt(User, Live, "").has_value());
}

}  // namespace
}  // namespace velkarix
