// Deleting an entry: it is kept in a file first, whatever happens meanwhile.
#include <algorithm>
#include <functional>

#include "tests/installed/InstalledPage.h"
#include "tests/machine/RegistryFileMerge.h"

namespace velkarix {
namespace {

constexpr const char* KeptFile = "C:\\Velkarix\\Backup\\6_1_153_12_0_0_AddRemove.reg";
constexpr Hive AllUsers = Hive::LocalMachine;
constexpr const char* AppFile = "C:\\Apps\\app.exe";

// Values of all types on three levels, in the entry that the tests delete.
void AddFullEntry(MemoryHives& hives) {
    const std::string key = InstalledPage::KeyOf("{App}");
    hives.SetValue(AllUsers, key, "", "default");
    hives.SetValue(AllUsers, key, "DisplayName", "App \"1\"");
    hives.SetValue(AllUsers, key, "UninstallString", std::string("\"") + AppFile + "\" /u");
    hives.SetValue(AllUsers, key, "DisplayIcon", AppFile);
    for (std::uint32_t type = 0; type < 13; ++type) {
        hives.SetRaw(AllUsers, key, std::to_string(type), type, {'a', 0});
        if (type != registryType::Sz) {
            hives.SetRaw(AllUsers, key + "\\Sub", std::to_string(type), type, {});
        }
    }
    hives.SetRaw(AllUsers, key + "\\Sub\\Deep", "Large", registryType::Binary, Bytes(4097, 7));
    hives.AddKey(AllUsers, key + "\\Bare");
}

class DeletedEntry : public InstalledPage {
  protected:
    void OpenAndSelect() {
        AddFullEntry(Registry());
        AddAppWithIcon("Other", AppFile);
        AddApp("{App}2");
        SetCache("{App}", CacheRecord(u"C:\\Apps\\app.exe"));
        Machine().AddFile(AppFile).Content("code").Icon(0, {1, 1, {1}}, {1, 1, {2}});
        Open();
        Select("{App}");
        before = State();
        Machine().Journal().Clear();
    }
    void Delete(MessageAnswer answer) {
        program.desktop.answers = {answer};
        EXPECT_TRUE(Click("cmdDelete"));
    }
    std::string State() { return Registry().TreeText(AllUsers, "Software"); }
    bool HasEntry() { return Registry().HasKey(AllUsers, KeyOf("{App}")); }
    std::string Kept() { return Machine().disk.ContentOf(KeptFile).value_or("(no file)"); }

    const RowTexts others{"Other", "{App}2"};
    std::string before;
};

TEST_F(DeletedEntry, IsAskedForByItsText) {
    OpenAndSelect();
    Delete(MessageAnswer::No);
    ASSERT_EQ(program.desktop.messages.size(), 1u);
    const Message& question = program.desktop.messages[0];
    EXPECT_EQ(question.text,
              "Are you sure you want to delete the selected item: \r\n\r\nApp \"1\"");
    EXPECT_EQ(question.title, "Velkarix");
    EXPECT_EQ(question.icon, MessageIcon::Question);
    EXPECT_EQ(question.buttons, MessageButtons::YesNo);
}

TEST_F(DeletedEntry, StaysAfterANo) {
    OpenAndSelect();
    Delete(MessageAnswer::No);
    EXPECT_TRUE(Machine().Journal().Calls().empty());
    EXPECT_EQ(State(), before);
    EXPECT_EQ(Kept(), "(no file)");
    EXPECT_EQ(List().SelectedRow(), RowOf("{App}"));
}

TEST_F(DeletedEntry, IsTheOneOfTheRowAndNoOther) {
    OpenAndSelect();
    Delete(MessageAnswer::Yes);
    EXPECT_FALSE(HasEntry());
    AddFullEntry(Registry());
    EXPECT_EQ(State(), before);  // so nothing else went
    EXPECT_EQ(Machine().disk.ContentOf(AppFile), "code");
    EXPECT_EQ(Names(), others);
    EXPECT_EQ(Messages().size(), 1u);
}

TEST_F(DeletedEntry, IsBroughtBackByTheFileThatIsKept) {
    OpenAndSelect();
    Delete(MessageAnswer::Yes);
    ASSERT_NE(State(), before);
    EXPECT_TRUE(MergeRegistryFile(Registry(), Kept())) << Kept();
    EXPECT_EQ(State(), before);
    Click("cmdRefresh");
    EXPECT_EQ(Names().size(), 3u);
}

TEST_F(DeletedEntry, GoesAfterItsFileWasReadBackAndBeforeTheListIsBuilt) {
    OpenAndSelect();
    Delete(MessageAnswer::Yes);
    RowTexts steps;  // of the calls, those that matter here
    for (const Call& call : Machine().Journal().Calls()) {
        if (call == Call{"CreateFileA", KeptFile}) steps.push_back("open");
        if (call.name == "WriteFile") steps.push_back("write");
        if (call.name.starts_with("RegDelete")) steps.push_back("remove");
        if (call.name == "ExtractIconExA") steps.push_back("list");
    }
    ASSERT_EQ(steps.back(), "list");  // is built anew at last
    steps.pop_back();
    const auto removes = std::find(steps.begin(), steps.end(), "remove");
    ASSERT_GE(removes - steps.begin(), 2);
    EXPECT_EQ(std::vector(removes - 2, removes), (RowTexts{"write", "open"}));
    EXPECT_EQ(std::count(removes, steps.end(), "remove"), steps.end() - removes);
}

TEST_F(DeletedEntry, StaysWhereItCanNotBeKept) {
    OpenAndSelect();
    Machine().FailNext("WriteFile", error::DiskFull);
    Delete(MessageAnswer::Yes);
    EXPECT_EQ(State(), before);
    ASSERT_EQ(Messages().size(), 2u);
    EXPECT_EQ(Messages()[1], "Error Occurred backupItem: \r\n" +
                                 program.application.registry.GetSystemErrorText(error::DiskFull));
    EXPECT_NE(RowOf("{App}"), nullptr);
}

TEST_F(DeletedEntry, StaysInTheListWhereItCanNotBeDeleted) {
    OpenAndSelect();
    Registry().Restrict(AllUsers, KeyOf("{App}"), KeyAccess::Read);
    Delete(MessageAnswer::Yes);
    EXPECT_EQ(State(), before);
    ASSERT_EQ(Messages().size(), 2u);
    EXPECT_TRUE(Messages()[1].ends_with("{App}\r\n\r\nAccess is denied.\r\n")) << Messages()[1];
    EXPECT_NE(RowOf("{App}"), nullptr);
}

TEST_F(DeletedEntry, OfARowThatIsGoneNeedsNoFile) {
    OpenAndSelect();
    Registry().RemoveKey(AllUsers, KeyOf("{App}"));
    Delete(MessageAnswer::Yes);
    EXPECT_EQ(Kept(), "(no file)");
    EXPECT_EQ(Messages().size(), 1u);
    EXPECT_EQ(Names(), others);
}

TEST_F(DeletedEntry, IsNoneWithoutASelectedRow) {
    OpenAndSelect();
    List().UserSelect(nullptr);
    Delete(MessageAnswer::Yes);
    EXPECT_TRUE(Machine().Journal().Calls().empty());
    EXPECT_EQ(Messages(), RowTexts());
}

TEST_F(DeletedEntry, SharesTheFileOfItsSecondWithTheNext) {
    OpenAndSelect();
    Delete(MessageAnswer::Yes);
    Select("Other");
    Delete(MessageAnswer::Yes);
    EXPECT_EQ(Names(), RowTexts{"{App}2"});
    EXPECT_TRUE(MergeRegistryFile(Registry(), Kept()));
    EXPECT_EQ(State(), before);
}

// ---- What the user does while the entry goes

struct Interruption {
    const char* name;
    std::function<void(TestProgram&)> happens;
    bool endsThePage = false;
};

void PrintTo(const Interruption& each, std::ostream* stream) {
    *stream << each.name;
}

void Press(RunningProgram& program, const char* form, const char* button) {
    program.Get<Button>(form, button).Raise("Click");
}

const Interruption Interruptions[] = {
    {"Refresh", [](TestProgram& it) { Press(it, "frmAddRemove", "cmdRefresh"); }},
    {"Delete",
     [](TestProgram& it) {
         ListView& list = it.Get<ListView>("frmAddRemove", "lstvAddRemove");
         list.UserSelect(&list.Row(list.RowCount() - 1));
         it.desktop.answers = {MessageAnswer::Yes};
         Press(it, "frmAddRemove", "cmdDelete");
         it.desktop.answers.clear();
     }},
    {"SortAndView",
     [](TestProgram& it) {
         it.Get<ListView>("frmAddRemove", "lstvAddRemove").UserColumnClick(2);
         it.Get<OptionButton>("frmAddRemove", "optReport").Raise("Click");
     }},
    {"Leave", [](TestProgram& it) { Press(it, "frmMain", "cmdOptions"); }, true},
    {"LeaveAndComeBack",
     [](TestProgram& it) {
         Press(it, "frmMain", "cmdOptions");
         Press(it, "frmMain", "cmdAddremove");
     }},
    {"End", [](TestProgram& it) { it.application.forms.UnloadAll("frmMain"); }, true},
};

class InterruptedDeletion : public DeletedEntry,
                            public testing::WithParamInterface<std::tuple<Interruption, int>> {};

TEST_P(InterruptedDeletion, EndsAsWithoutTheInterruption) {
    const auto& [interruption, yield] = GetParam();
    OpenAndSelect();
    bool interrupted = false;
    program.desktop.onYield = [&] {
        if (program.desktop.yields != yield) return;
        interrupted = true;
        interruption.happens(program);
    };
    Delete(MessageAnswer::Yes);
    ASSERT_TRUE(interrupted);
    EXPECT_FALSE(HasEntry());
    EXPECT_EQ(Messages().size(), 1u);  // of the first deletion alone
    EXPECT_FALSE(program.application.itemChangeRuns);
    ASSERT_EQ(program.application.forms.Loaded("frmAddRemove") == nullptr,
              interruption.endsThePage);
    if (!interruption.endsThePage) {
        RowTexts names = Names();
        std::sort(names.begin(), names.end());
        EXPECT_EQ(names, others);
    }
    EXPECT_TRUE(MergeRegistryFile(Registry(), Kept()));
    EXPECT_EQ(State(), before);
}

INSTANTIATE_TEST_SUITE_P(InAnyYield, InterruptedDeletion,
                         testing::Combine(testing::ValuesIn(Interruptions),
                                          testing::Values(1, 2, 4, 6)),
                         [](const auto& test) {
                             return std::string(std::get<0>(test.param).name) +
                                    std::to_string(std::get<1>(test.param));
                         });

TEST_F(DeletedEntry, MayTakeThePageAwayThatItsMenuBelongsTo) {
    OpenAndSelect();
    program.desktop.onYield = [this] { program.application.forms.UnloadAll("frmMain"); };
    program.desktop.answers = {MessageAnswer::Yes};
    program.desktop.nextMenuChoice = "mnuAddRemove_Delete";
    List().UserMouseUp(MouseButton::Right);
    EXPECT_FALSE(HasEntry());
}

}  // namespace
}  // namespace velkarix
