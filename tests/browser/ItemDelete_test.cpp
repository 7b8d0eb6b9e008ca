// Deleting the selected item, in every list and scope of the browser page.
#include "tests/browser/ItemLists.h"

namespace velkarix {
namespace {

struct DeleteCase {
    ScopeCase scope;
    bool enabled;
};

void PrintTo(const DeleteCase& each, std::ostream* stream) {
    PrintTo(each.scope, stream);
    *stream << (each.enabled ? " live" : " held");
}

std::vector<DeleteCase> AllDeletions() {
    std::vector<DeleteCase> cases;
    for (const ScopeCase& scope : AllScopes()) {
        cases.push_back({scope, true});
        cases.push_back({scope, false});
    }
    return cases;
}

class ItemDelete : public ItemListPage, public testing::WithParamInterface<DeleteCase> {
  protected:
    // The items lie in both places and in all scopes of the list, so that a wrong one could go.
    void Fill(MemoryMachine& machine, bool withTheSelected) {
        PutClasses(machine);
        machine.AddFile(ItemFile).Content("code");
        for (const PlaceCase& each : list.places) {
            for (const bool state : {true, false}) {
                PutItem(machine, list, each, state, 'B');
                const bool isSelected = &each == &place && state == enabled;
                if (withTheSelected || !isSelected) PutItem(machine, list, each, state, 'A');
            }
        }
    }
    void OpenAndSelect() {
        Fill(Machine(), true);
        Open();
        SelectItem(list, place, enabled, 'A');
        before = State();
        Machine().Journal().Clear();
    }
    void Delete(MessageAnswer answer) {
        program.desktop.answers = {answer};
        EXPECT_TRUE(Click(list.remove));
    }
    std::string Backup() { return Machine().disk.ContentOf(BackupPath()).value_or("(no file)"); }
    std::string BackupPath() {
        return std::string("C:\\Velkarix\\Backup\\6_1_153_12_0_0_") + list.backup + ".reg";
    }

    const ListCase& list = *GetParam().scope.list;
    const PlaceCase& place = *GetParam().scope.place;
    const bool enabled = GetParam().enabled;
    std::string before;
};

TEST_P(ItemDelete, AsksFirst) {
    OpenAndSelect();
    Delete(MessageAnswer::No);
    ASSERT_EQ(program.desktop.messages.size(), 1u);
    const Message& question = program.desktop.messages[0];
    EXPECT_EQ(question.text, "Are you sure you want to delete the selected item: \r\n\r\n" +
                                 std::string(list.textPrefix) + ItemName(list, 'A'));
    EXPECT_EQ(question.title, "Velkarix");
    EXPECT_EQ(question.icon, MessageIcon::Question);
    EXPECT_EQ(question.buttons, MessageButtons::YesNo);
}

TEST_P(ItemDelete, ChangesNothingAfterANo) {
    OpenAndSelect();
    Delete(MessageAnswer::No);
    EXPECT_TRUE(Machine().Journal().Calls().empty());
    EXPECT_EQ(State(), before);
    EXPECT_EQ(Backup(), "(no file)");
    EXPECT_EQ(ListOf(list).SelectedRow(), RowOf(list, place, enabled, 'A'));
}

TEST_P(ItemDelete, RemovesTheItemOfTheRowAndNothingElse) {
    OpenAndSelect();
    Delete(MessageAnswer::Yes);
    MemoryMachine expected;
    Fill(expected, false);
    EXPECT_EQ(State(), StateOf(expected));
    EXPECT_EQ(Machine().disk.ContentOf(ItemFile), "code");
    EXPECT_EQ(RowOf(list, place, enabled, 'A'), nullptr);
    EXPECT_NE(RowOf(list, place, !enabled, 'A'), nullptr);
    EXPECT_EQ(Messages().size(), 1u);
}

TEST_P(ItemDelete, KeepsARegistryFileThatBringsItBack) {
    OpenAndSelect();
    Delete(MessageAnswer::Yes);
    ASSERT_NE(State(), before);
    EXPECT_TRUE(MergeRegistryFile(Machine().registry, Backup())) << Backup();
    EXPECT_EQ(State(), before);
}

TEST_P(ItemDelete, ReadsTheFileBackBeforeItRemoves) {
    OpenAndSelect();
    Delete(MessageAnswer::Yes);
    // Of the calls, those that matter here.
    RowTexts steps;
    for (const Call& call : Machine().Journal().Calls()) {
        if (call == Call{"CreateFileA", BackupPath()}) steps.push_back("open");
        if (call.name == "WriteFile") steps.push_back("write");
        if (call.name.starts_with("RegDelete")) steps.push_back("remove");
    }
    const auto removes = std::find(steps.begin(), steps.end(), "remove");
    ASSERT_GE(removes - steps.begin(), 2);
    EXPECT_EQ(std::vector(removes - 2, removes), (RowTexts{"write", "open"}));
    EXPECT_EQ(std::count(removes, steps.end(), "remove"), steps.end() - removes);
}

TEST_P(ItemDelete, LeavesTheItemWhereItCanNotBeKept) {
    OpenAndSelect();
    Machine().FailNext("WriteFile", error::DiskFull);
    Delete(MessageAnswer::Yes);
    EXPECT_EQ(State(), before);
    ASSERT_EQ(Messages().size(), 2u);
    EXPECT_EQ(Messages()[1], "Error Occurred backupItem: \r\n" +
                                 program.application.registry.GetSystemErrorText(error::DiskFull));
    EXPECT_NE(RowOf(list, place, enabled, 'A'), nullptr);
}

TEST_P(ItemDelete, DoesNothingWithoutASelectedRow) {
    OpenAndSelect();
    ListOf(list).UserSelect(nullptr);
    TickItem(list, place, enabled, 'A');  // plays no part
    Delete(MessageAnswer::Yes);
    EXPECT_TRUE(Machine().Journal().Calls().empty());
    EXPECT_EQ(Messages(), RowTexts());
}

INSTANTIATE_TEST_SUITE_P(EveryScope, ItemDelete, testing::ValuesIn(AllDeletions()),
                         [](const auto& test) {
                             const DeleteCase& each = test.param;
                             return Letters(std::string(each.scope.list->list) +
                                            each.scope.place->scope +
                                            (each.enabled ? "Live" : "Held"));
                         });

}  // namespace
}  // namespace velkarix
