// Deleting startup items: only when the user agrees, and never without a copy that brings them
// back.
#include <algorithm>

#include "RegistryMerge.h"
#include "StartupTest.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class StartupDelete : public StartupItemTest {
  protected:
    // Selects the item's row and clicks the button that deletes it. The question that comes.
    Window Ask(const StartupItem& item, bool enabled) {
        SelectItem(item, enabled);
        EXPECT_TRUE(Running().Control("cmdDelete").Click());
        return Running().Message();
    }
    static std::string Question(const StartupItem& item) {
        return "Are you sure you want to delete the selected item: \r\n\r\n" + item.name;
    }
    // What is kept of a value or a shortcut ends with this; before it stands the moment.
    static std::string EndOfName(const StartupItem& item) {
        return item.hive != nullptr ? "_Startup.reg" : "_" + item.name;
    }
    static void ExpectMoment(const std::string& file, const std::string& end) {
        ASSERT_TRUE(file.ends_with(end)) << file;
        const std::string stamp = file.substr(0, file.size() - end.size());
        EXPECT_EQ(stamp.find_first_not_of("0123456789_"), std::string::npos) << stamp;
        EXPECT_EQ(std::ranges::count(stamp, '_'), 5) << stamp;
    }
    // Puts back what is kept, as the user would: by the system's own editor, or by hand.
    void PutBack(const std::string& file, bool enabled) const {
        const std::string path = install_.Path("Backup\\" + file);
        if (Item().hive != nullptr) {
            ASSERT_TRUE(MergeRegistryFile(path));
        } else {
            const std::string bytes = ReadWholeFile(path);
            WriteItem(Item(), enabled, {REG_NONE, {bytes.begin(), bytes.end()}});
        }
    }
    void DeleteAndPutBack(bool enabled) {
        const StartupState before = ReadState();
        OpenStartup();
        const Window question = Ask(Item(), enabled);
        ASSERT_TRUE(question);
        EXPECT_EQ(question.Text(), "Velkarix");
        EXPECT_EQ(MessageText(question), Question(Item()));
        ASSERT_TRUE(Answer(question, IDYES));
        ASSERT_TRUE(WaitUntil([&] { return !IsListed(Item(), enabled); }));
        EXPECT_FALSE(ReadItem(Item(), enabled));
        const std::vector<std::string> files = BackupFiles();
        ASSERT_EQ(files.size(), 1u);
        ExpectMoment(files[0], EndOfName(Item()));
        PutBack(files[0], enabled);
        EXPECT_EQ(ReadState(), before);
        ASSERT_TRUE(Running().Press("cmdRefresh"));
        EXPECT_TRUE(IsListed(Item(), enabled));
    }
};

TEST_P(StartupDelete, WhatIsKeptOfALiveItemBringsBackExactlyWhatWasThere) {
    DeleteAndPutBack(true);
}

TEST_P(StartupDelete, WhatIsKeptOfADisabledItemBringsBackExactlyWhatWasThere) {
    WriteItem(Item(), false, *ReadItem(Item(), true));
    DeleteAndPutBack(false);
}

INSTANTIATE_TEST_SUITE_P(Each, StartupDelete, testing::ValuesIn(StartupItems), TitleOfStartupItem);

class EverySystemStartupDelete : public StartupDelete {};

TEST_P(EverySystemStartupDelete, WhatIsKeptBringsBackExactlyWhatWasThere) {
    DeleteAndPutBack(true);
}

INSTANTIATE_TEST_SUITE_P(Some, EverySystemStartupDelete,
                         testing::Values(StartupItems.front(), StartupItems.back()),
                         TitleOfStartupItem);

class StartupDeleteNothing : public StartupDelete {};

TEST_P(StartupDeleteNothing, NoKeepsTheItem) {
    OpenStartup();
    const Window question = Ask(Item(), true);
    ASSERT_TRUE(question);
    ASSERT_TRUE(Answer(question, IDNO));
    ASSERT_TRUE(Running().Press("cmdRefresh"));
    EXPECT_TRUE(IsListed(Item(), true));
    EXPECT_EQ(ReadState(), StateBefore());
    EXPECT_TRUE(BackupFiles().empty());
}

INSTANTIATE_TEST_SUITE_P(Some, StartupDeleteNothing,
                         testing::Values(StartupItems.front(), StartupItems.back()),
                         TitleOfStartupItem);

class StartupDeleteOther : public StartupTest {};

TEST_F(StartupDeleteOther, WithoutASelectedRowNothingIsAsked) {
    OpenStartup();
    ShowNode(StartupNodes[2]);
    ASSERT_FALSE(Items().Selected());
    ASSERT_TRUE(Running().Press("cmdDelete"));
    EXPECT_EQ(ReadState(), StateBefore());
}

TEST_F(StartupDeleteOther, ATickedRowIsNotTheOneThatGoes) {
    OpenStartup();
    TickItem(StartupItems[0], true);
    SelectItem(StartupItems[2], true);
    ASSERT_TRUE(Running().Control("cmdDelete").Click());
    const Window question = Running().Message();
    ASSERT_TRUE(Answer(question, IDYES));
    ASSERT_TRUE(WaitUntil([&] { return !IsListed(StartupItems[2], true); }));
    EXPECT_TRUE(ReadItem(StartupItems[0], true));
}

TEST_F(StartupDeleteOther, AShortcutThatCannotBeKeptIsNotDeleted) {
    const StartupItem& item = StartupItems.back();
    OpenStartup();
    // A file in the folder's place refuses every copy, whatever rights the user has.
    RemoveDirectoryA(install_.Path("Backup").c_str());
    install_.Write("Backup", "in the way");
    SelectItem(item, true);
    ASSERT_TRUE(Running().Control("cmdDelete").Click());
    ASSERT_TRUE(Answer(Running().Message(), IDYES));
    const Window message = Running().Message();
    ASSERT_TRUE(message);
    EXPECT_EQ(MessageText(message).find("Error Occurred backupItem: \r\n"), 0u)
        << MessageText(message);
    EXPECT_TRUE(Answer(message, IDOK));
    EXPECT_EQ(ReadState(), StateBefore());
}

}  // namespace
}  // namespace velkarix::e2e
