// Nothing is ever lost where many items are moved by one command, either.
#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "tests/faults/BrowserScenes.h"

namespace velkarix {
namespace {

constexpr int Many = 200;

std::string ManyName(const ListCase& list, int number) {
    return (list.values ? "{" : "") + std::to_string(1000 + number) + ".example";
}

BrowserFault MovingMany(const ListCase& list, ItemAction action, const Circumstances& on) {
    return {list, action, [&list, action, on](MemoryMachine& machine) {
                const bool enabled = action == ItemAction::Disable;
                const PlaceCase& place = list.places.back();
                const std::string holder = enabled ? place.live : place.held;
                std::vector<FaultItem> items;
                Become(machine, on);
                for (int i = 0; i < Many; ++i) {
                    const std::string name = ManyName(list, i);
                    if (list.values) {
                        machine.registry.SetRaw(place.hive, holder, name, registryType::Binary,
                                                {static_cast<std::uint8_t>(i)});
                    } else {
                        machine.SetDword(place.hive, holder + "\\" + name, "*", 2);
                        machine.SetDword(place.hive, holder + "\\" + name + "\\www", "http", 4);
                    }
                    items.push_back({&place, enabled, name});
                }
                return items;
            }};
}

// The calls that move the item of that number; each item takes as many.
void PickCallsOf(const ListCase& list, int number, const std::vector<Call>& calls,
                 std::vector<std::size_t>& picked) {
    const auto first = [&](int item) {
        const std::string name = ManyName(list, item);
        const auto found = std::find_if(calls.begin(), calls.end(), [&](const Call& call) {
            return call.arguments.find(name) != std::string::npos;
        });
        return static_cast<std::size_t>(found - calls.begin());
    };
    const std::size_t begin = first(number);
    const std::size_t length = first(1) - first(0);
    for (std::size_t i = begin; i < begin + length; ++i) picked.push_back(i);
}

}  // namespace

// A call in trouble costs a move of all rows, so that only the calls of the first, the hundredth
// and the last row are put in trouble, and not those of all.
FaultScene ManyScene(const ListCase& list, ItemAction action) {
    FaultScene scene = SceneOf(MovingMany(list, action, AllCircumstances[0]), "200 rows");
    scene.pick = [&list](const std::vector<Call>& calls) {
        std::vector<std::size_t> picked;
        for (const int number : {0, Many / 2 - 1, Many - 1}) {
            PickCallsOf(list, number, calls, picked);
        }
        return picked;
    };
    return scene;
}

}  // namespace velkarix
