// A move or deletion serves events while it removes a key: whatever the user does then, no item is
// lost, no second one is begun, and nothing is touched that is gone.
#include <functional>
#include <tuple>

#include "tests/browser/ItemLists.h"
#include "tests/machine/ControlGestures.h"

namespace velkarix {
namespace {

struct Interruption {
    const char* name;
    std::function<void(TestProgram&, const ListCase&)> happens;
    bool endsThePage = false;
};

void Press(TestProgram& program, const char* control) {
    if (Form* page = program.application.forms.Loaded("frmIE")) {
        ASSERT_TRUE(page->Find(control)->Raise("Click"));
    }
}

void PressMain(TestProgram& program, const char* control) {
    program.Get<Button>("frmMain", control).Raise("Click");
}

const Interruption Interruptions[] = {
    {"Disable", [](TestProgram& it, const ListCase& list) { Press(it, list.disable); }},
    {"Enable", [](TestProgram& it, const ListCase& list) { Press(it, list.enable); }},
    {"Delete",
     [](TestProgram& it, const ListCase& list) {
         ListView& rows = it.Get<ListView>("frmIE", list.list);
         if (rows.RowCount() > 0) rows.UserSelect(&rows.Row(rows.RowCount() - 1));
         it.desktop.answers = {MessageAnswer::Yes};
         Press(it, list.remove);
         it.desktop.answers.clear();
     }},
    {"Refresh", [](TestProgram& it, const ListCase& list) { Press(it, list.refresh); }},
    {"TickAllAndSort",
     [](TestProgram& it, const ListCase& list) {
         ListView& rows = it.Get<ListView>("frmIE", list.list);
         TickAllRows(rows);
         rows.UserColumnClick(1);
     }},
    {"Leave", [](TestProgram& it, const ListCase&) { PressMain(it, "cmdOptions"); }, true},
    {"LeaveAndComeBack",
     [](TestProgram& it, const ListCase&) {
         PressMain(it, "cmdOptions");
         PressMain(it, "cmdIE");
     }},
    {"End", [](TestProgram& it, const ListCase&) { it.application.forms.UnloadAll("frmMain"); },
     true},
};

enum class Change { Disable, Enable, Delete };
constexpr const char* ChangeNames[] = {"Disable", "Enable", "Delete"};

// The interruption happens in the yield of this number; a move of two items has six.
using Interrupted = std::tuple<const ListCase*, Change, const Interruption*, int>;

class ItemReentrance : public ItemListPage, public testing::WithParamInterface<Interrupted> {
  protected:
    // A and B of the first scope lie in their place before the change, or in that after it.
    void Fill(MemoryMachine& machine, bool changed) {
        PutClasses(machine);
        const bool enabled = change != Change::Enable;
        for (const char letter : {'C', 'D'}) {
            for (const bool state : {true, false}) {
                if (state == (letter == 'C')) PutItem(machine, list, place, state, letter);
            }
        }
        if (changed) machine.AddKey(place.hive, enabled ? place.held : place.live);
        if (change == Change::Delete) {
            if (!changed) PutItem(machine, list, place, true, 'A');
            return;
        }
        for (const char letter : {'A', 'B'}) {
            PutItem(machine, list, place, changed ? !enabled : enabled, letter);
        }
    }
    void Start() {
        if (change == Change::Delete) {
            SelectItem(list, place, true, 'A');
            program.desktop.answers = {MessageAnswer::Yes};
            Click(list.remove);
            return;
        }
        const bool enabled = change == Change::Disable;
        for (const char letter : {'A', 'B'}) TickItem(list, place, enabled, letter);
        Click(enabled ? list.disable : list.enable);
    }

    const ListCase& list = *std::get<0>(GetParam());
    const PlaceCase& place = list.places[0];
    const Change change = std::get<1>(GetParam());
    const Interruption& interruption = *std::get<2>(GetParam());
};

TEST_P(ItemReentrance, EndsAsWithoutTheInterruption) {
    Fill(Machine(), false);
    Open();
    bool interrupted = false;
    program.desktop.onYield = [&] {
        if (program.desktop.yields != std::get<3>(GetParam())) return;
        interrupted = true;
        interruption.happens(program, list);
    };
    Start();
    ASSERT_TRUE(interrupted);
    MemoryMachine expected;
    Fill(expected, true);
    EXPECT_EQ(State(), StateOf(expected));
    EXPECT_EQ(Messages().size(), change == Change::Delete ? 1u : 0u);  // of the first one alone
    EXPECT_EQ(program.application.forms.Loaded("frmIE") == nullptr, interruption.endsThePage);
    EXPECT_EQ(Machine().registry.OpenKeyCount(), 0u);
    EXPECT_EQ(program.application.itemChangeRuns, false);
}

std::vector<const Interruption*> AllInterruptions() {
    std::vector<const Interruption*> all;
    for (const Interruption& each : Interruptions) all.push_back(&each);
    return all;
}

std::string NameOf(const testing::TestParamInfo<Interrupted>& test) {
    const auto& [list, change, interruption, yield] = test.param;
    return std::string(list->list) + ChangeNames[static_cast<int>(change)] + "Meets" +
           interruption->name + std::to_string(yield);
}

const auto AnyChange = testing::Values(Change::Disable, Change::Enable, Change::Delete);

INSTANTIATE_TEST_SUITE_P(
    InTheFirstYield, ItemReentrance,
    testing::Combine(testing::Values(&BHOs, &Buttons, &Menus, &Protocols, &Domains), AnyChange,
                     testing::ValuesIn(AllInterruptions()), testing::Values(1)),
    NameOf);
INSTANTIATE_TEST_SUITE_P(InALaterYield, ItemReentrance,
                         testing::Combine(testing::Values(&BHOs), AnyChange,
                                          testing::ValuesIn(AllInterruptions()),
                                          testing::Values(2, 3)),
                         NameOf);
INSTANTIATE_TEST_SUITE_P(InTheSecondItem, ItemReentrance,
                         testing::Combine(testing::Values(&BHOs),
                                          testing::Values(Change::Disable, Change::Enable),
                                          testing::ValuesIn(AllInterruptions()),
                                          testing::Values(4, 6)),
                         NameOf);

// ---- The list afterwards

class ListAfterAnInterruption : public ItemListPage {
  protected:
    void DisableAWhile(const std::function<void()>& happens) {
        Put(BHOs, BHOs.places[0], true, "A");
        Open();
        TickItem(BHOs, BHOs.places[0], true, 'A');
        program.desktop.onYield = [this, happens] {
            if (program.desktop.yields == 1) happens();
        };
        Machine().Journal().Clear();
        Click("cmdDisableBHO");
    }
};

TEST_F(ListAfterAnInterruption, ShowsWhereTheItemLies) {
    DisableAWhile([this] { Click("cmdRefreshBHO"); });
    EXPECT_EQ(ColumnOf("lstvBHO", 1), RowTexts{"False"});
}

TEST_F(ListAfterAnInterruption, ShowsWhereTheItemLiesOnAPageThatWasLeftAndEnteredAgain) {
    DisableAWhile([this] {
        PressMain(program, "cmdOptions");
        PressMain(program, "cmdIE");
        EXPECT_EQ(ColumnOf("lstvBHO", 1), (RowTexts{"True", "False"}));
    });
    EXPECT_EQ(ColumnOf("lstvBHO", 1), RowTexts{"False"});
}

TEST_F(ListAfterAnInterruption, IsNotBuiltForAPageThatIsGone) {
    DisableAWhile([this] { program.application.forms.Unload("frmIE"); });
    const RowTexts opened = Machine().Journal().ArgumentsOf("RegOpenKeyA");
    const RowTexts openedBy = Machine().Journal().ArgumentsOf("RegOpenKeyExA");
    for (const std::string& key :
         {std::string("HKLM\\") + live::BHOs, std::string("HKLM\\") + held::BHOs}) {
        EXPECT_EQ(std::count(opened.begin(), opened.end(), key), 0);
        EXPECT_EQ(std::count(openedBy.begin(), openedBy.end(), key), 0);
    }
}

TEST_F(ListAfterAnInterruption, MayGoInTheMiddleOfACommandOfItsMenuOrKey) {
    Put(BHOs, BHOs.places[0], true, "A");
    Open();
    SelectItem(BHOs, BHOs.places[0], true, 'A');
    program.desktop.onYield = [this] { program.application.forms.UnloadAll("frmMain"); };
    program.desktop.answers = {MessageAnswer::Yes};
    program.desktop.nextMenuChoice = "mnuBHO_Delete";
    ListOf(BHOs).UserMouseUp(MouseButton::Right);
    EXPECT_FALSE(
        Machine().registry.HasKey(Hive::LocalMachine, live::BHOs + ("\\" + ItemName(BHOs, 'A'))));
    EXPECT_EQ(program.application.forms.Loaded("frmIE"), nullptr);
}

}  // namespace
}  // namespace velkarix
