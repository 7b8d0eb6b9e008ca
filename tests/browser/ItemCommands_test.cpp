// Switching items off and on, in every list and scope of the browser page.
#include "browser/ItemPlaces.h"
#include "tests/browser/ItemLists.h"

namespace velkarix {
namespace {

// A disables what is on, an enable what is off: each test is run with both.
struct MoveCase {
    ScopeCase scope;
    bool enabled;  // before the move
};

void PrintTo(const MoveCase& move, std::ostream* stream) {
    PrintTo(move.scope, stream);
    *stream << (move.enabled ? " off" : " on");
}

std::vector<MoveCase> AllMoves() {
    std::vector<MoveCase> moves;
    for (const ScopeCase& scope : AllScopes()) {
        moves.push_back({scope, true});
        moves.push_back({scope, false});
    }
    return moves;
}

class ItemMoves : public ItemListPage, public testing::WithParamInterface<MoveCase> {
  protected:
    const ListCase& list = *GetParam().scope.list;
    const PlaceCase& place = *GetParam().scope.place;
    const bool enabled = GetParam().enabled;
    const char* const command = enabled ? list.disable : list.enable;
};

// Items of one list in all its scopes; of the scope of the test those letters lie in `from` and
// in `to`.
void Fill(MemoryMachine& machine, const MoveCase& move, const char* from, const char* to) {
    PutClasses(machine);
    for (const PlaceCase& place : move.scope.list->places) {
        const bool isTested = &place == move.scope.place;
        for (const char* letter = isTested ? from : "AZ"; *letter != 0; ++letter) {
            PutItem(machine, *move.scope.list, place, move.enabled, *letter);
        }
        for (const char* letter = isTested ? to : "CD"; *letter != 0; ++letter) {
            PutItem(machine, *move.scope.list, place, !move.enabled, *letter);
        }
    }
}

TEST_P(ItemMoves, TakeTheTickedRowsOfTheOtherStateAndNothingElse) {
    Fill(Machine(), GetParam(), "ABZ", "CD");
    Open();
    for (const char letter : {'A', 'Z'}) TickItem(list, place, enabled, letter);
    TickItem(list, place, !enabled, 'C');
    SelectItem(list, place, enabled, 'B');  // plays no part
    EXPECT_TRUE(Click(command));
    MemoryMachine expected;
    Fill(expected, GetParam(), "B", "CDAZ");
    EXPECT_EQ(State(), StateOf(expected));
    EXPECT_EQ(Messages(), RowTexts());
    EXPECT_EQ(program.machine.disk.ContentOf(ItemFile), std::nullopt);
}

TEST_P(ItemMoves, ShowAfterwardsWhereTheItemsLie) {
    Fill(Machine(), GetParam(), "AB", "C");
    Open();
    TickItem(list, place, enabled, 'A');
    TickItem(list, place, !enabled, 'C');
    Click(command);
    EXPECT_EQ(RowOf(list, place, enabled, 'A'), nullptr);
    for (const char letter : {'A', 'C'}) {
        ListRow* row = RowOf(list, place, !enabled, letter);
        ASSERT_NE(row, nullptr);
        EXPECT_FALSE(row->Checked());
        EXPECT_EQ(row->TextColor(), enabled ? std::optional(DisabledColor) : std::nullopt);
    }
}

TEST_P(ItemMoves, ListAnewWhenNoRowTakesPart) {
    Fill(Machine(), GetParam(), "A", "C");
    Open();
    TickItem(list, place, !enabled, 'C');
    Put(list, place, enabled, "B");
    const std::string before = State();
    Click(command);
    EXPECT_EQ(State(), before);
    EXPECT_NE(RowOf(list, place, enabled, 'B'), nullptr);
    ASSERT_NE(RowOf(list, place, !enabled, 'C'), nullptr);
    EXPECT_FALSE(RowOf(list, place, !enabled, 'C')->Checked());
}

std::string HiveName(Hive hive) {
    if (hive == Hive::ClassesRoot) return "HKCR\\";
    return hive == Hive::CurrentUser ? "HKCU\\" : "HKLM\\";
}

TEST_P(ItemMoves, CopyFirstAndDeleteThen) {
    Fill(Machine(), GetParam(), "A", "");
    Open();
    TickItem(list, place, enabled, 'A');
    Machine().Journal().Clear();
    Click(command);
    const std::string name = ItemName(list, 'A');
    const std::string from = HiveName(place.hive) + (enabled ? place.live : place.held);
    const std::string to = HiveName(place.hive) + (enabled ? place.held : place.live);
    if (list.values) {
        EXPECT_EQ(Changes(), (RowTexts{"RegCreateKeyA " + to, "RegSetValueExA " + to + ", " + name,
                                       "RegDeleteValueA " + from + ", " + name}));
        return;
    }
    const std::string source = from + "\\" + name;
    const std::string destination = to + "\\" + name;
    EXPECT_EQ(Changes(),
              (RowTexts{"RegCreateKeyA " + destination, "SHCopyKeyA " + source + ", " + destination,
                        "RegDeleteKeyA " + source + "\\www", "RegDeleteKeyA " + source}));
}

TEST_P(ItemMoves, TakeAnItemThatLiesInBothPlacesByTheRowThatIsTicked) {
    Fill(Machine(), GetParam(), "A", "A");
    Open();
    TickItem(list, place, !enabled, 'A');
    const std::string before = State();
    Click(command);
    EXPECT_EQ(State(), before);
    TickItem(list, place, enabled, 'A');
    Click(command);
    EXPECT_EQ(RowOf(list, place, enabled, 'A'), nullptr);
    EXPECT_NE(RowOf(list, place, !enabled, 'A'), nullptr);
}

TEST_P(ItemMoves, GoOnBehindAnItemThatIsGone) {
    Fill(Machine(), GetParam(), "AB", "");
    Open();
    for (const char letter : {'A', 'B'}) TickItem(list, place, enabled, letter);
    const std::string holder = enabled ? place.live : place.held;
    Machine().registry.RemoveKey(place.hive,
                                 list.values ? holder : holder + "\\" + ItemName(list, 'A'));
    if (list.values) Put(list, place, enabled, "B");
    Click(command);
    EXPECT_EQ(RowOf(list, place, enabled, 'A'), nullptr);
    EXPECT_EQ(RowOf(list, place, !enabled, 'A'), nullptr);
    EXPECT_NE(RowOf(list, place, !enabled, 'B'), nullptr);
    EXPECT_EQ(Messages(), RowTexts());
}

INSTANTIATE_TEST_SUITE_P(EveryScope, ItemMoves, testing::ValuesIn(AllMoves()),
                         [](const auto& test) {
                             const MoveCase& move = test.param;
                             return Letters(std::string(move.scope.list->list) +
                                            move.scope.place->scope +
                                            (move.enabled ? "Off" : "On"));
                         });

// ---- Check All

class DomainChecks : public ItemListPage {
  protected:
    RowTexts Ticked() {
        RowTexts names;
        for (std::size_t i = 0; i < ListOf(Domains).RowCount(); ++i) {
            if (ListOf(Domains).Row(i).Checked()) names.push_back(ListOf(Domains).Row(i).Key());
        }
        return names;
    }
};

TEST_F(DomainChecks, AreSetAndClearedOnEveryRow) {
    Put(Domains, Domains.places[0], true, "AB");
    Put(Domains, Domains.places[0], false, "C");
    Open();
    TickItem(Domains, Domains.places[0], true, 'B');
    Click("cmdDomainCheckAll");
    EXPECT_EQ(Ticked(), (RowTexts{"A.example.com", "B.example.com", "C.example.com"}));
    Click("cmdDomainUncheckAll");
    EXPECT_EQ(Ticked(), RowTexts());
}

TEST_F(DomainChecks, ServeTheCommands) {
    Put(Domains, Domains.places[0], true, "AB");
    Put(Domains, Domains.places[0], false, "C");
    Open();
    Click("cmdDomainCheckAll");
    Click("cmdDomainEnable");
    EXPECT_EQ(ColumnOf("lstvDomains", 1), (RowTexts{"True", "True", "True"}));
}

}  // namespace
}  // namespace velkarix
