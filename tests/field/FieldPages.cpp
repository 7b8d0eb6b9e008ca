#include "tests/field/FieldPages.h"

#include "tests/machine/MachineText.h"

namespace velkarix {

namespace {

constexpr const char* ReportFile = "C:\\report.txt";

}  // namespace

FieldPages::FieldPages() {
    PutStartupFolders(Machine());
}

void FieldPages::TearDown() {
    EXPECT_EQ(Registry().OpenKeyCount(), 0u);
    EXPECT_EQ(Machine().files.OpenFileCount(), 0u);
    EXPECT_EQ(Machine().files.OpenSearchCount(), 0u);
    EXPECT_EQ(Machine().shell.OpenIconCount(), 0u);
}

void FieldPages::Enter(const FieldList& list) {
    if (program.application.forms.Loaded("frmMain") == nullptr) program.Start();
    program.Get<Button>("frmMain", "cmdOptions").Raise("Click");
    program.Get<Button>("frmMain", list.entrance).Raise("Click");
}

bool FieldPages::Click(const FieldList& list, const char* button) {
    return program.application.forms.Loaded(list.page)->Find(button)->Raise("Click");
}

std::vector<RowTexts> FieldPages::Rows(const FieldList& list) {
    std::vector<RowTexts> rows;
    ListView& view = View(list);
    for (std::size_t i = 0; i < view.RowCount(); ++i) {
        RowTexts texts;
        for (std::size_t column = 0; column < view.Columns().size(); ++column) {
            texts.push_back(view.Row(i).Text(column));
        }
        rows.push_back(std::move(texts));
    }
    return rows;
}

ListRow* FieldPages::RowOf(const FieldList& list, const std::string& text) {
    ListView& view = View(list);
    for (std::size_t i = 0; i < view.RowCount(); ++i) {
        if (view.Row(i).Text(0) == text) return &view.Row(i);
    }
    return nullptr;
}

std::string FieldPages::ReportOf(const FieldList& list) {
    program.desktop.nextSaveFile = ReportFile;
    EXPECT_TRUE(Click(list, list.report));
    return Machine().disk.ContentOf(ReportFile).value_or("(no report)");
}

RowTexts FieldPages::Messages() {
    RowTexts texts;
    for (const Message& message : program.desktop.messages) texts.push_back(message.text);
    return texts;
}

std::string FieldPages::Standing(const FieldItem& item, bool live) {
    const std::string& holder = live ? item.live : item.held;
    return item.isValue ? TextOfValue(Registry(), item.hive, holder, item.name)
                        : TextOfKey(Registry(), item.hive, holder + "\\" + item.name);
}

bool FieldPages::IsKept(const FieldItem& item, const std::string& standing) {
    for (const std::string& file : KeptFiles(Machine())) {
        MemoryHives hives;
        MergeRegistryFile(hives, file);
        const std::string merged = item.isValue
                                       ? TextOfValue(hives, item.hive, item.live, item.name)
                                       : TextOfKey(hives, item.hive, item.live + "\\" + item.name);
        if (merged == standing) return true;
    }
    return false;
}

void FieldPages::PassASecond() {
    Machine().clock.SetLocalTime(MakeTime(2004, 6, 1, 12, 0, ++seconds_));
}

void FieldPages::Give(const FieldList& list, const char* command, ListRow* row) {
    ASSERT_NE(row, nullptr) << command;
    PassASecond();
    if (command == list.remove) {
        View(list).UserSelect(row);
        program.desktop.answers = {MessageAnswer::Yes};
    } else {
        View(list).UserCheck(*row, true);
    }
    EXPECT_TRUE(Click(list, command));
}

void FieldPages::GoOffAndOnAndAway(const FieldList& list, const FieldItem& item,
                                   const std::string& text) {
    const std::string before = Standing(item, true);
    ASSERT_NE(before, "");
    std::string arrived = before;
    if (item.isValue) {
        const auto value = *Registry().ValueAt(item.hive, item.live, item.name);
        const PlaceCase place{"", item.hive, "", "", item.asBytes};
        arrived = TextOf(Arrived(place, {value.name, value.type, value.data}));
    }
    if (list.disable != nullptr) {
        Give(list, list.disable, RowOf(list, text));
        EXPECT_EQ(Standing(item, true), "");
        EXPECT_EQ(Standing(item, false), arrived);
        EXPECT_TRUE(arrived == before || IsKept(item, before)) << "lost by disabling";
        ASSERT_NE(RowOf(list, text), nullptr);
        EXPECT_EQ(RowOf(list, text)->Text(list.enabled), "False");
        Give(list, list.enable, RowOf(list, text));
        EXPECT_EQ(Standing(item, true), arrived);
        EXPECT_EQ(Standing(item, false), "");
        EXPECT_EQ(Messages(), RowTexts());
    }
    Give(list, list.remove, RowOf(list, text));
    EXPECT_EQ(Standing(item, true), "");
    EXPECT_TRUE(IsKept(item, arrived)) << "lost by deleting";
    EXPECT_TRUE(IsKept(item, before)) << "lost at last";
    EXPECT_EQ(RowOf(list, text), nullptr);
    EXPECT_EQ(Messages().size(), 1u);  // the question
}

void FieldPages::GoAway(const FieldList& list, const FieldItem& item, const std::string& text) {
    for (const char* command : {list.disable, list.remove}) {
        if (command == nullptr) continue;
        Give(list, command, RowOf(list, text));
        EXPECT_EQ(Standing(item, true), "");
    }
}

void FieldPages::ExpectUnmoved(const FieldList& list, const std::string& text) {
    const std::string before = StateOfRegistry();
    for (const char* command : {list.disable, list.remove}) {
        if (command == nullptr) continue;
        Give(list, command, RowOf(list, text));
        EXPECT_EQ(StateOfRegistry(), before) << command;
    }
}

}  // namespace velkarix
