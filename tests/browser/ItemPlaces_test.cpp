#include "browser/ItemPlaces.h"

#include <functional>

#include "tests/browser/ItemLists.h"

namespace velkarix {
namespace {

struct PlacesCase {
    const ListCase* list;
    const ItemPlaces* places;
};

void PrintTo(const PlacesCase& each, std::ostream* stream) {
    PrintTo(*each.list, stream);
}

const PlacesCase AllPlaces[] = {{&BHOs, &BHOPlaces},           {&Toolbars, &ToolbarPlaces},
                                {&Buttons, &ButtonPlaces},     {&Menus, &MenuPlaces},
                                {&Protocols, &ProtocolPlaces}, {&Domains, &DomainPlaces},
                                {&Hooks, &HookPlaces}};

class PlacesOfAList : public testing::TestWithParam<PlacesCase> {
  protected:
    PlacesOfAList() { program.application.DisabledRoot = "Software\\Velkarix\\Disabled\\"; }
    TestProgram program;
    const ListCase& list = *GetParam().list;
    const ItemPlaces& places = *GetParam().places;
};

TEST_P(PlacesOfAList, LieWhereTheBrowserLooksAndInTheHoldingAreaOfTheSameHive) {
    EXPECT_EQ(places.list, std::string(list.backup));
    ASSERT_EQ(places.places.size(), list.places.size());
    for (std::size_t i = 0; i < list.places.size(); ++i) {
        const ItemPlace& place = places.places[i];
        EXPECT_EQ(place.scope, std::string(list.places[i].scope));
        EXPECT_EQ(place.hive, list.places[i].hive);
        EXPECT_EQ(HoldingKey(program.application, place, true), list.places[i].live);
        EXPECT_EQ(HoldingKey(program.application, place, false), list.places[i].held);
    }
}

TEST_P(PlacesOfAList, AreFoundByTheirScope) {
    for (const ItemPlace& place : places.places) {
        EXPECT_EQ(&PlaceOfScope(places, place.scope), &place);
    }
}

// What isn't the current user's is everybody's.
TEST_P(PlacesOfAList, FallBackToTheFirst) {
    EXPECT_EQ(&PlaceOfScope(places, "current user"), &places.places.front());
}

INSTANTIATE_TEST_SUITE_P(EveryList, PlacesOfAList, testing::ValuesIn(AllPlaces),
                         [](const auto& test) { return std::string(test.param.list->list); });

TEST(ItemPlacesTest, ListHeldToolbarsAndMenusInReverse) {
    EXPECT_TRUE(ToolbarPlaces.heldInReverse);
    EXPECT_TRUE(MenuPlaces.heldInReverse);
    EXPECT_FALSE(ButtonPlaces.heldInReverse);
    EXPECT_FALSE(ProtocolPlaces.heldInReverse);
}

// ---- Each call that changes something fails in turn

struct ItemCase {
    PlacesCase list;
    std::size_t place;
    bool enabled;
};

void PrintTo(const ItemCase& item, std::ostream* stream) {
    PrintTo(item.list, stream);
    *stream << item.place << (item.enabled ? " live" : " held");
}

std::vector<ItemCase> AllItems() {
    std::vector<ItemCase> items;
    for (const PlacesCase& list : AllPlaces) {
        for (std::size_t place = 0; place < list.list->places.size(); ++place) {
            for (const bool enabled : {true, false}) items.push_back({list, place, enabled});
        }
    }
    return items;
}

class ItemOfAPlace : public testing::TestWithParam<ItemCase> {
  protected:
    const ListCase& list = *GetParam().list.list;
    const ItemPlaces& places = *GetParam().list.places;
    const PlaceCase& place = list.places[GetParam().place];
    const bool enabled = GetParam().enabled;

    struct Run {
        TestProgram program;
        std::string Text(const std::string& path) {
            return program.machine.disk.ContentOf(path).value_or("");
        }
    };
    std::unique_ptr<Run> Make() {
        auto run = std::make_unique<Run>();
        run->program.application.DisabledRoot = "Software\\Velkarix\\Disabled\\";
        PutItem(run->program.machine, list, place, enabled, 'A');
        return run;
    }
    BrowserItem Item() { return {&places.places[GetParam().place], ItemName(list, 'A'), enabled}; }
    // The item as it lies there; empty where it doesn't.
    std::string Standing(const MemoryMachine& machine, bool live) {
        const std::string holder = live ? place.live : place.held;
        const std::string name = ItemName(list, 'A');
        if (!list.values) return machine.registry.TreeText(place.hive, holder + "\\" + name);
        const auto value = machine.registry.ValueAt(place.hive, holder, name);
        if (!value) return {};
        return std::to_string(value->type) + std::string(value->data.begin(), value->data.end());
    }
};

TEST_P(ItemOfAPlace, IsMovedAndNoMore) {
    const std::unique_ptr<Run> run = Make();
    const std::string whole = Standing(run->program.machine, enabled);
    MoveItem(run->program.application, places, Item());
    EXPECT_EQ(Standing(run->program.machine, enabled), "");
    EXPECT_EQ(Standing(run->program.machine, !enabled), whole);
    EXPECT_TRUE(run->program.desktop.messages.empty());
}

TEST_P(ItemOfAPlace, IsDeletedWhereItLies) {
    const std::unique_ptr<Run> run = Make();
    DeleteItem(run->program.application, places, Item());
    EXPECT_EQ(Standing(run->program.machine, true) + Standing(run->program.machine, false), "");
    EXPECT_TRUE(run->program.desktop.messages.empty());
}

INSTANTIATE_TEST_SUITE_P(EveryPlace, ItemOfAPlace, testing::ValuesIn(AllItems()),
                         [](const auto& test) {
                             const ItemCase& item = test.param;
                             return std::string(item.list.list->list) + std::to_string(item.place) +
                                    (item.enabled ? "Live" : "Held");
                         });

}  // namespace
}  // namespace velkarix
