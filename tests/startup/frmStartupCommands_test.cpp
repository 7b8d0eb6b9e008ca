// Switching startup items off and on.
#include "tests/startup/StartupPage.h"

namespace velkarix {
namespace {

class StartupChanges : public StartupPage {
  protected:
    StartupChanges() { Machine().AddFile("C:\\a.exe"); }
    MemoryEntry& Put(const char* folder, const std::string& name, const char* arguments = "") {
        return PutShortcut(Machine(), folder, name, "C:\\a.exe", arguments);
    }
    // What a shortcut file with these arguments holds.
    static std::string Content(const char* arguments) {
        const Bytes bytes = MemoryEntry("", 0).Shortcut({"C:\\a.exe", arguments, ""}).content;
        return {bytes.begin(), bytes.end()};
    }
    std::string In(const char* folder, const char* name) {
        return TextOf(std::string(folder) + "\\" + name);
    }
    bool Has(const char* folder, const char* name) {
        return HasFile(std::string(folder) + "\\" + name);
    }
    std::string Told(const std::string& operation, ErrorCode code) {
        return "Error Occurred " + operation + ": \r\n" + ErrorText(code);
    }
};

// ---- Values

TEST_F(StartupChanges, MoveTheValuesOfEveryKeyToTheirTwins) {
    for (const RunKey& key : RunKeys) {
        Machine().SetValue(key.hive, std::string(LiveRun) + key.suffix, key.location, "C:\\a.exe");
    }
    Open();
    const RowTexts live = Items();
    TickAll();
    Click("cmdDisable");
    for (const RunKey& key : RunKeys) {
        const std::string twin = std::string(HeldRun) + key.suffix;
        EXPECT_EQ(Machine().registry.TextAt(key.hive, twin, key.location), "C:\\a.exe");
        EXPECT_FALSE(
            Machine().registry.ValueAt(key.hive, std::string(LiveRun) + key.suffix, key.location));
    }
    ASSERT_EQ(List().RowCount(), RunKeys.size());
    EXPECT_EQ(ColumnOf(startupColumn::Enabled), RowTexts(RunKeys.size(), "False"));
    TickAll();
    Click("cmdEnable");
    EXPECT_EQ(Items(), live);
    EXPECT_EQ(Messages(), RowTexts());
}

TEST_F(StartupChanges, MakeTextOfAValueThatExpandsWithItsDataAsItWas) {
    const Bytes data = {'%', 'A', '%', 0};
    Machine().registry.SetRaw(Hive::LocalMachine, LiveRun, "a", registryType::ExpandSz, data);
    Open();
    Tick("a");
    Click("cmdDisable");
    Tick("a");
    Click("cmdEnable");
    EXPECT_EQ(Machine().registry.ValueAt(Hive::LocalMachine, LiveRun, "a"),
              (MemoryValue{"a", registryType::Sz, data}));
    EXPECT_TRUE(HasFile(std::string(KeptStem) + "Startup.reg"));
}

TEST_F(StartupChanges, MoveTheCheckedRowsInTheOtherStateAlone) {
    for (const char* name : {"a", "b"}) {
        SetRun(Hive::CurrentUser, name, "");
        SetHeld(Hive::LocalMachine, std::string("held ") + name, "");
    }
    Open();
    for (const char* name : {"a", "held a"}) Tick(name);
    Click("cmdDisable");
    EXPECT_EQ(Items(), (RowTexts{"a, HKCU\\Run, False", "b, HKCU\\Run, True",
                                 "held a, HKLM\\Run, False", "held b, HKLM\\Run, False"}));
    for (const char* name : {"b", "held a"}) Tick(name);
    Click("cmdEnable");
    EXPECT_EQ(Items(), (RowTexts{"a, HKCU\\Run, False", "b, HKCU\\Run, True",
                                 "held a, HKLM\\Run, True", "held b, HKLM\\Run, False"}));
}

TEST_F(StartupChanges, OnlyRefreshWithoutACheckedRow) {
    SetRun(Hive::CurrentUser, "a", "");
    SetHeld(Hive::CurrentUser, "b", "");
    Open();
    for (const char* command : {"cmdDisable", "cmdEnable"}) {
        SetRun(Hive::CurrentUser, command, "");
        Machine().Journal().Clear();
        Click(command);
        EXPECT_EQ(Changes(), RowTexts());
        EXPECT_NE(RowNamed(command), nullptr);
    }
}

TEST_F(StartupChanges, GoOnWithTheNextRowWhereAValueCanNotBeMoved) {
    for (const char* name : {"a", "b"}) SetRun(Hive::CurrentUser, name, "C:\\a.exe");
    Open();
    TickAll();
    Machine().FailNext("RegDeleteValueA");
    Click("cmdDisable");
    ASSERT_EQ(Messages().size(), 1u);
    EXPECT_EQ(Messages().at(0).find("Following Key Value Could not be deleted: "), 0u);
    EXPECT_EQ(Items(),
              (RowTexts{"a, HKCU\\Run, True", "a, HKCU\\Run, False", "b, HKCU\\Run, False"}));
}

TEST_F(StartupChanges, ShowAnEmptyCommandOfAValueThatWasGone) {
    SetRun(Hive::CurrentUser, "a", "C:\\a.exe");
    Open();
    Tick("a");
    Machine().registry.RemoveValue(Hive::CurrentUser, LiveRun, "a");
    Click("cmdDisable");
    EXPECT_EQ(Items(), (RowTexts{"a, HKCU\\Run, False"}));
    EXPECT_EQ(List().Row(0).Text(startupColumn::Command), "");
    ASSERT_EQ(Messages().size(), 1u);
    EXPECT_EQ(Messages().at(0).find("Following Key Value Could not be deleted: "), 0u);
}

TEST_F(StartupChanges, RefreshTheNodeThatIsSelected) {
    SetRun(Hive::CurrentUser, "a", "");
    SetRun(Hive::LocalMachine, "b", "");
    Open();
    ClickNode("HKCU");
    TickAll();
    Click("cmdDisable");
    EXPECT_EQ(Items(), (RowTexts{"a, HKCU\\Run, False"}));
}

// ---- Shortcuts

TEST_F(StartupChanges, MoveShortcutsBetweenTheirFolders) {
    Put(LiveLM, "a.lnk", "/lm");
    Put(LiveCU, "b.lnk", "/cu");
    Open();
    TickAll();
    Click("cmdDisable");
    EXPECT_EQ(In(HeldLM, "a.lnk"), Content("/lm"));
    EXPECT_EQ(In(HeldCU, "b.lnk"), Content("/cu"));
    EXPECT_FALSE(Has(LiveLM, "a.lnk"));
    EXPECT_FALSE(Has(LiveCU, "b.lnk"));
    EXPECT_EQ(Items(), (RowTexts{"a.lnk, Startup LM, False", "b.lnk, Startup CU, False"}));
    TickAll();
    Click("cmdEnable");
    EXPECT_EQ(In(LiveLM, "a.lnk"), Content("/lm"));
    EXPECT_EQ(In(LiveCU, "b.lnk"), Content("/cu"));
    EXPECT_EQ(Items(), (RowTexts{"a.lnk, Startup LM, True", "b.lnk, Startup CU, True"}));
    EXPECT_EQ(Messages(), RowTexts());
    EXPECT_TRUE(HasFile("C:\\a.exe"));
    EXPECT_EQ(Machine().Journal().CountOf("CopyFileA"), 4u);  // nothing was replaced and kept
}

TEST_F(StartupChanges, ReplaceAShortcutOfTheSameNameAndKeepIt) {
    for (const bool disable : {true, false}) {
        SCOPED_TRACE(disable);
        const char* from = disable ? LiveCU : HeldCU;
        const char* to = disable ? HeldCU : LiveCU;
        Machine().disk.Remove("C:\\Velkarix\\Backup");
        for (const char* folder : {from, to}) {
            Machine().disk.Remove(std::string(folder) + "\\a.lnk");
        }
        Put(from, "a.lnk", "/new");
        Put(to, "a.lnk", "/old");
        if (disable) {
            Open();
        } else {
            LeaveAndComeBack();
        }
        TickAll();
        Click(disable ? "cmdDisable" : "cmdEnable");
        EXPECT_EQ(In(to, "a.lnk"), Content("/new"));
        EXPECT_FALSE(Has(from, "a.lnk"));
        EXPECT_EQ(TextOf(std::string(KeptStem) + "a.lnk"), Content("/old"));
        EXPECT_EQ(List().RowCount(), 1u);
    }
    EXPECT_EQ(Messages(), RowTexts());
}

TEST_F(StartupChanges, StopAtAShortcutThatCanNotBeMovedWithoutARefresh) {
    for (const bool disable : {true, false}) {
        SCOPED_TRACE(disable);
        Machine().disk.Remove(LiveCU);
        Machine().disk.Remove(HeldCU);
        const char* from = disable ? LiveCU : HeldCU;
        for (const char* folder : {LiveCU, HeldCU}) Machine().AddFolder(folder);
        for (const char* name : {"a.lnk", "b.lnk", "c.lnk"}) Put(from, name);
        program.desktop.messages.clear();
        if (disable) {
            Open();
        } else {
            LeaveAndComeBack();
        }
        const RowTexts before = Items();
        TickAll();
        Machine().disk.Find(std::string(from) + "\\b.lnk")->Unreadable();
        Click(disable ? "cmdDisable" : "cmdEnable");
        EXPECT_EQ(Messages(), (RowTexts{Told(disable ? "Disable Startup" : "Enable Startup",
                                             error::SharingViolation)}));
        EXPECT_EQ(program.desktop.messages.at(0).icon, MessageIcon::Information);
        EXPECT_EQ(program.desktop.messages.at(0).title, "Velkarix");
        EXPECT_EQ(Items(), before);
        EXPECT_FALSE(Has(from, "a.lnk"));
        EXPECT_TRUE(Has(from, "b.lnk"));
        EXPECT_TRUE(Has(from, "c.lnk"));
    }
}

TEST_F(StartupChanges, MoveNoShortcutThatDidNotArriveWhole) {
    Put(LiveCU, "a.lnk", "/x");
    Open();
    TickAll();
    Machine().disk.SetFreeBytes(10);
    Click("cmdDisable");
    EXPECT_EQ(Messages(), (RowTexts{Told("Disable Startup", error::DiskFull)}));
    EXPECT_EQ(In(LiveCU, "a.lnk"), Content("/x"));
    EXPECT_FALSE(Has(HeldCU, "a.lnk"));
}

TEST_F(StartupChanges, ShowAShortcutTwiceThatCouldNotBeDeletedAfterItsCopy) {
    Put(LiveCU, "a.lnk").ReadOnly();
    Open();
    TickAll();
    Click("cmdDisable");
    EXPECT_EQ(Items(), (RowTexts{"a.lnk, Startup CU, True", "a.lnk, Startup CU, False"}));
    EXPECT_EQ(Messages(), RowTexts());
}

TEST_F(StartupChanges, TellOfAShortcutThatIsGoneAndOfAFolderThatIsNotNamed) {
    Put(LiveCU, "a.lnk");
    Put(HeldLM, "b.lnk");
    Machine().registry.RemoveValue(Hive::LocalMachine, ShellFoldersKey, "Common Startup");
    Open();
    TickAll();
    Machine().disk.Remove(std::string(LiveCU) + "\\a.lnk");
    Click("cmdDisable");
    Click("cmdEnable");
    EXPECT_EQ(Messages(), (RowTexts{Told("Disable Startup", error::FileNotFound),
                                    Told("Enable Startup", error::PathNotFound)}));
    EXPECT_TRUE(Has(HeldLM, "b.lnk"));
}

TEST_F(StartupChanges, DoNothingWhileAnotherChangeRuns) {
    SetRun(Hive::CurrentUser, "a", "");
    Open();
    TickAll();
    Select("a");
    Machine().Journal().Clear();
    program.application.itemChangeRuns = true;
    for (const char* command : {"cmdDisable", "cmdEnable", "cmdDelete"}) Click(command);
    EXPECT_EQ(Machine().Journal().Calls().size(), 0u);
    EXPECT_EQ(Messages(), RowTexts());
    program.application.itemChangeRuns = false;
}

}  // namespace
}  // namespace velkarix
