// Disabling startup items and enabling them again: values move between keys and shortcuts between
// folders, and nothing is lost on the way.
#include <algorithm>

#include "Input.h"
#include "RegistryMerge.h"
#include "StartupTest.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class StartupDisable : public StartupItemTest {};

TEST_P(StartupDisable, ADisabledItemMovesWholeAndComesBackWhole) {
    const std::optional<RegistryValue> whole = ReadItem(Item(), true);
    ASSERT_TRUE(whole);
    ASSERT_FALSE(ReadItem(Item(), false));
    OpenStartup();
    TickItem(Item(), true);
    ASSERT_TRUE(Running().Press("cmdDisable"));
    EXPECT_EQ(ReadItem(Item(), false), whole);
    EXPECT_FALSE(ReadItem(Item(), true));
    EXPECT_TRUE(IsListed(Item(), false));
    EXPECT_FALSE(IsListed(Item(), true));

    TickItem(Item(), false);
    ASSERT_TRUE(Running().Press("cmdEnable"));
    EXPECT_FALSE(IsListed(Item(), false));
    EXPECT_TRUE(IsListed(Item(), true));
    // A key that has come into being for the item stays.
    for (const bool enabled : {true, false}) {
        EXPECT_EQ(ReadItem(Item(), enabled), enabled ? whole : std::nullopt);
    }
    EXPECT_EQ(BackupFiles(), std::vector<std::string>());
}

INSTANTIATE_TEST_SUITE_P(Each, StartupDisable, testing::ValuesIn(StartupItems), TitleOfStartupItem);

class EverySystemStartupDisable : public StartupTest {
  protected:
    // A suspicious value, one of the key that only some systems know, and a shortcut.
    const std::vector<StartupItem> items_ = {StartupItems[0], StartupItems[2], StartupItems[11]};
    const StartupState moved_ = AllMoved();

    StartupState AllMoved() const {
        for (const StartupItem& item : items_) {
            WriteItem(item, false, *ReadItem(item, true));
            RemoveItem(item, true);
        }
        StartupState state = ReadState();
        for (const StartupItem& item : items_) {
            WriteItem(item, true, *ReadItem(item, false));
            RemoveItem(item, false);
        }
        return state;
    }
    void TickAll(bool enabled) {
        for (const StartupItem& item : items_) TickItem(item, enabled);
    }
    bool AllListed(bool enabled) {
        return std::ranges::all_of(
            items_, [&](const StartupItem& item) { return IsListed(item, enabled); });
    }
    // Presses the arrow until the row is selected that the list has at that place.
    void MoveTo(int row, WORD arrow) {
        for (int i = 0; i < Items().RowCount() && Items().Selected() != row; ++i) {
            const std::optional<int> before = Items().Selected();
            PressKey(arrow);
            WaitUntil([&] { return Items().Selected() != before; }, 2000);
        }
        ASSERT_EQ(Items().Selected(), row);
    }
    void TickAllBySpace(bool enabled) {
        for (const StartupItem& item : items_) {
            PressKey(VK_HOME);
            ASSERT_TRUE(WaitUntil([this] { return Items().Selected() == 0; }));
            const int row = RowOfItem(item, enabled);
            MoveTo(row, VK_DOWN);
            PressKey(VK_SPACE);
            ASSERT_TRUE(WaitUntil([&] { return Items().Checked(row); })) << item;
        }
    }
};

TEST_F(EverySystemStartupDisable, ValuesAndAShortcutAreDisabledAndEnabledByMouse) {
    OpenStartup();
    TickAll(true);
    ClickAt(Inside(Running().Control("cmdDisable").Area()));
    ASSERT_TRUE(WaitUntil([this] { return AllListed(false); }));
    EXPECT_EQ(ReadState(), moved_);
    EXPECT_FALSE(AllListed(true));

    TickAll(false);
    ClickAt(Inside(Running().Control("cmdEnable").Area()));
    ASSERT_TRUE(WaitUntil([this] { return AllListed(true); }));
    EXPECT_EQ(ReadState(), StateBefore());
    EXPECT_FALSE(AllListed(false));
}

TEST_F(EverySystemStartupDisable, ValuesAndAShortcutAreDisabledAndEnabledByTheKeyboardAlone) {
    Start();
    ASSERT_TRUE(BringToFront(Running().Main()));
    PressKey('3', {VK_CONTROL});
    ASSERT_TRUE(WaitUntil([this] { return Running().Focus() == "tvwStartup"; }));
    ASSERT_TRUE(TabTo("lstvStartup"));
    TickAllBySpace(true);
    ASSERT_TRUE(TabTo("cmdDisable"));
    PressKey(VK_RETURN);
    ASSERT_TRUE(WaitUntil([this] { return AllListed(false); }));
    EXPECT_EQ(ReadState(), moved_);

    ASSERT_TRUE(TabTo("lstvStartup"));
    TickAllBySpace(false);
    ASSERT_TRUE(TabTo("cmdEnable"));
    PressKey(VK_SPACE);
    ASSERT_TRUE(WaitUntil([this] { return AllListed(true); }));
    EXPECT_EQ(ReadState(), StateBefore());
}

class StartupMoves : public StartupTest {
  protected:
    void TickAllRows() {
        for (int row = 0; row < Items().RowCount(); ++row) Tick(Items(), row);
    }
    std::vector<std::string> States() { return Items().Column(1); }
    static StartupItem OfRun(const char* name) { return MakeStartupItem("", name, "HKLM\\Run"); }
    // The value after it was disabled, with what the program has kept of it.
    RegistryValue AfterDisabling(const StartupItem& item) {
        OpenStartup();
        TickItem(item, true);
        EXPECT_TRUE(Running().Press("cmdDisable"));
        EXPECT_FALSE(ReadItem(item, true));
        return ReadItem(item, false).value_or(RegistryValue{});
    }
    // Has the system's own editor put back what the only file says that was kept.
    void MergeBackup() {
        const std::vector<std::string> files = BackupFiles();
        ASSERT_EQ(files.size(), 1u);
        EXPECT_TRUE(files[0].ends_with("_Startup.reg")) << files[0];
        ASSERT_TRUE(MergeRegistryFile(install_.Path("Backup\\" + files[0])));
    }
};

TEST_F(StartupMoves, WithoutATickTheCommandsOnlyRefresh) {
    OpenStartup();
    const std::vector<RowTexts> rows = Items().Rows();
    SelectRow(Items(), 3);
    ASSERT_TRUE(Running().Press("cmdDisable"));
    ASSERT_TRUE(Running().Press("cmdEnable"));
    EXPECT_EQ(Items().Rows(), rows);
    EXPECT_EQ(ReadState(), StateBefore());
}

TEST_F(StartupMoves, AllItemsOfAllPlacesMoveAtOnceAndEachCommandTakesItsOwnKind) {
    OpenStartup();
    const auto count = static_cast<std::size_t>(Items().RowCount());
    TickAllRows();
    ASSERT_TRUE(Running().Press("cmdDisable"));
    EXPECT_EQ(States(), std::vector<std::string>(count, "False"));
    for (int row = 0; row < Items().RowCount(); ++row) EXPECT_FALSE(Items().Checked(row)) << row;
    for (const StartupItem& item : StartupItems) EXPECT_FALSE(ReadItem(item, true)) << item;

    TickAllRows();
    ASSERT_TRUE(Running().Press("cmdEnable"));
    EXPECT_EQ(States(), std::vector<std::string>(count, "True"));
    for (const StartupItem& item : StartupItems) EXPECT_FALSE(ReadItem(item, false)) << item;
}

TEST_F(StartupMoves, WhatOneNodeShowsIsAllThatMoves) {
    OpenStartup();
    ShowNode(StartupNodes[5]);
    TickAllRows();
    ASSERT_TRUE(Running().Press("cmdDisable"));
    EXPECT_EQ(Caption(), StartupCaption("Current User Registry"));
    for (const StartupItem& item : StartupItems) {
        EXPECT_EQ(ReadItem(item, true).has_value(), item.hive != HKEY_CURRENT_USER) << item;
    }
}

TEST_F(StartupMoves, ATextWithVariablesBecomesPlainTextAndIsKeptAsItWas) {
    const StartupItem item = OfRun("Sample System Filter");
    const std::optional<RegistryValue> before = ReadItem(item, true);
    ASSERT_EQ(before, TextValue("%SystemRoot%\\system32\\SampleFilter.dll", REG_EXPAND_SZ));
    EXPECT_EQ(AfterDisabling(item), TextValue("%SystemRoot%\\system32\\SampleFilter.dll"));
    MergeBackup();
    EXPECT_EQ(ReadItem(item, true), before);
}

TEST_F(StartupMoves, ANumberBecomesItsBytesAsTextAndIsKeptAsItWas) {
    const StartupItem item = OfRun("Sample Counter");
    const std::optional<RegistryValue> before = ReadItem(item, true);
    ASSERT_EQ(before, (RegistryValue{REG_DWORD, {5, 0, 0, 0}}));
    EXPECT_EQ(AfterDisabling(item), TextValue("\x05"));
    MergeBackup();
    EXPECT_EQ(ReadItem(item, true), before);
}

TEST_F(StartupMoves, AHeldValueOfThatNameIsReplacedAndKept) {
    const StartupItem& item = StartupItems.front();
    const RegistryValue held = TextValue("C:\\old.exe");
    WriteItem(item, false, held);
    const std::optional<RegistryValue> live = ReadItem(item, true);
    EXPECT_EQ(AfterDisabling(item), live);
    MergeBackup();
    EXPECT_EQ(ReadItem(item, false), held);
}

TEST_F(StartupMoves, AHeldShortcutOfThatNameIsReplacedAndKept) {
    const StartupItem& item = StartupItems.back();
    const std::optional<RegistryValue> live = ReadItem(item, true);
    WriteItem(item, false, {REG_NONE, {'o', 'l', 'd'}});
    EXPECT_EQ(AfterDisabling(item), live);
    const std::vector<std::string> files = BackupFiles();
    ASSERT_EQ(files.size(), 1u);
    EXPECT_TRUE(files[0].ends_with("_" + item.name)) << files[0];
    EXPECT_EQ(install_.Read("Backup\\" + files[0]), "old");
}

// A folder in the shortcut's place refuses every copy, whatever rights the user has.
TEST_F(StartupMoves, AShortcutThatCannotBeCopiedStaysAndEndsTheCommand) {
    const StartupItem& first = StartupItems[5];
    ASSERT_EQ(first.name, "Sample Office Bar.lnk");
    const StartupItem behind = MakeStartupItem("", "Sample Tray", "HKLM\\Run");
    const std::string place = install_.Path(first.held + "\\" + first.name);
    ASSERT_TRUE(CreateDirectoryA(place.c_str(), nullptr));
    OpenStartup();
    TickItem(first, true);
    TickItem(behind, true);
    ASSERT_TRUE(Running().Control("cmdDisable").Click());
    const Window message = Running().Message();
    ASSERT_TRUE(message);
    EXPECT_EQ(message.Text(), "Velkarix");
    EXPECT_EQ(MessageText(message).find("Error Occurred Disable Startup: \r\n"), 0u)
        << MessageText(message);
    EXPECT_TRUE(Answer(message, IDOK));
    EXPECT_TRUE(ReadItem(first, true));
    EXPECT_TRUE(ReadItem(behind, true)) << "what comes later in the list isn't handled";
    EXPECT_TRUE(Items().Checked(RowOfItem(behind, true))) << "the list isn't read again";
}

TEST_F(StartupMoves, WhatIsDisabledIsStillSoAtTheNextStart) {
    OpenStartup();
    for (const StartupItem& item : StartupItems) TickItem(item, true);
    ASSERT_TRUE(Running().Press("cmdDisable"));
    ASSERT_EQ(Running().Close(), 0u);
    OpenStartup();
    for (const StartupItem& item : StartupItems) {
        EXPECT_TRUE(IsListed(item, false)) << item;
        EXPECT_FALSE(IsListed(item, true)) << item;
    }
}

}  // namespace
}  // namespace velkarix::e2e
