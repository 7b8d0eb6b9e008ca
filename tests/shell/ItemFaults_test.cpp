#include "tests/shell/ItemFaults.h"

#include <set>
#include <string>

#include "shell/DeleteItem.h"
#include "shell/Relocation.h"

namespace velkarix {
namespace {

constexpr Hive User = Hive::CurrentUser;
const std::string Live = "Software\\Live";
const std::string Held = "Software\\Velkarix\\Disabled\\List";
const std::string LiveItem = Live + "\\{0-1}";
const std::string HeldItem = Held + "\\{0-1}";

// Three levels, values of all types, without a name and without data.
void AddItem(MemoryHives& hives, const std::string& key) {
    hives.SetValue(User, key, "", "default");
    for (std::uint32_t type = 0; type < 13; ++type) {
        const std::string name = std::to_string(type);
        hives.SetRaw(User, key, name, type, {'a', 0});
        if (type != registryType::Sz) hives.SetRaw(User, key + "\\Sub", name, type, {});
    }
    hives.SetRaw(User, key + "\\Sub\\Deep", "Large", registryType::Binary, Bytes(4097, 7));
    hives.SetDword(User, key + "\\Sub\\Deep", "", 1);
    hives.AddKey(User, key + "\\Sub\\Bare");
}

// All that is below a key, a line for each key and value; their order isn't the item's.
std::set<std::string> FactsOf(const MemoryHives& hives, const std::string& key,
                              const std::string& below = {}) {
    std::set<std::string> facts = {below + "\\"};
    for (const std::string& name : hives.ValueNamesOf(User, key + below)) {
        const MemoryValue value = *hives.ValueAt(User, key + below, name);
        facts.insert(below + "\\" + name + "=" + std::to_string(value.type) + ":" +
                     std::string(value.data.begin(), value.data.end()));
    }
    for (const std::string& name : hives.SubKeysOf(User, key + below)) {
        facts.merge(FactsOf(hives, key, below + "\\" + name));
    }
    return facts;
}

std::set<std::string> ItemFacts(bool withMore) {
    MemoryHives hives;
    AddItem(hives, "{0-1}");
    if (withMore) hives.SetValue(User, "{0-1}\\Sub", "Own", "kept");
    return FactsOf(hives, "{0-1}");
}

bool HasItem(const MemoryHives& hives, const std::string& key) {
    static const std::set<std::string> item = ItemFacts(false);
    return FactsOf(hives, key) == item;
}

bool HasItemAndMore(const MemoryHives& hives, const std::string& key) {
    static const std::set<std::string> item = ItemFacts(true);
    return FactsOf(hives, key) == item;
}

TEST(ItemFaults, AKeyThatMovesIsNeverLost) {
    ExpectNeverLost({[](MemoryRegistry& registry) { AddItem(registry, LiveItem); },
                     [](Application& application) {
                         RelocateKey(application, "List", User, LiveItem, HeldItem);
                     },
                     [](const MemoryRegistry& now, const MemoryHives&) {
                         return HasItem(now, LiveItem) || HasItem(now, HeldItem);
                     },
                     [](const MemoryRegistry& now) {
                         return !now.HasKey(User, LiveItem) && HasItem(now, HeldItem);
                     }});
}

// The leftovers of a move that was cut short are merged into the other place.
TEST(ItemFaults, AKeyThatMovesToAPlaceThatIsTakenIsNeverLost) {
    ExpectNeverLost({[](MemoryRegistry& registry) {
                         AddItem(registry, LiveItem);
                         AddItem(registry, HeldItem);
                         registry.RemoveValue(User, HeldItem + "\\Sub\\Deep", "");
                         registry.SetValue(User, HeldItem, "", "old");
                         registry.SetValue(User, HeldItem + "\\Sub", "Own", "kept");
                     },
                     [](Application& application) {
                         RelocateKey(application, "List", User, LiveItem, HeldItem);
                     },
                     [](const MemoryRegistry& now, const MemoryHives&) {
                         return now.ValueAt(User, HeldItem + "\\Sub", "Own").has_value() &&
                                (HasItem(now, LiveItem) || HasItemAndMore(now, HeldItem));
                     },
                     [](const MemoryRegistry& now) {
                         return !now.HasKey(User, LiveItem) && HasItemAndMore(now, HeldItem);
                     }});
}

using MoveFunction = std::function<void(Application&)>;

// The value stands at its source, or it stands at its destination as `arrives` and, where that
// differs, in a kept file as it was.
void ExpectValueNeverLost(const MemoryValue& value, const MemoryValue& arrives,
                          const std::optional<MemoryValue>& before, const MoveFunction& move) {
    ExpectNeverLost({[&](MemoryRegistry& registry) {
                         registry.SetRaw(User, Live, value.name, value.type, value.data);
                         if (!before) return;
                         registry.SetRaw(User, Held, before->name, before->type, before->data);
                     },
                     move,
                     [&](const MemoryRegistry& now, const MemoryHives& kept) {
                         if (now.ValueAt(User, Live, value.name) == value) return true;
                         return now.ValueAt(User, Held, value.name) == arrives &&
                                (value == arrives || kept.ValueAt(User, Live, value.name) == value);
                     },
                     [&](const MemoryRegistry& now) {
                         return !now.ValueAt(User, Live, value.name) &&
                                now.ValueAt(User, Held, value.name) == arrives;
                     }});
}

TEST(ItemFaults, AValueThatMovesAsTextIsNeverLost) {
    for (const std::string name : {"{0-1}", ""}) {
        const MemoryValue text{name, registryType::Sz, {'a', 'b', 0}};
        const MemoryValue bytes{name, registryType::Binary, {'a', 'b'}};
        const MoveFunction move = [&](Application& application) {
            RelocateValue(application, "Hooks", User, Live, Held, name);
        };
        const MemoryValue old{name, 77, {1}};
        for (const MemoryValue& value : {text, bytes}) {
            ExpectValueNeverLost(value, text, std::nullopt, move);
            ExpectValueNeverLost(value, text, old, move);
        }
    }
}

TEST(ItemFaults, AToolbarOfTheUserThatMovesIsNeverLost) {
    const MoveFunction move = [](Application& application) {
        RelocateToolbarValue(application, "Toolbar", User, Live, Held, "{0-1}");
    };
    const MemoryValue old{"{0-1}", registryType::Sz, {'x', 0}};
    const auto bytes = [](const Bytes& data) {
        return MemoryValue{"{0-1}", registryType::Binary, data};
    };
    for (const Bytes& data : {Bytes{1, 2}, Bytes(5000, 7)}) {
        ExpectValueNeverLost(bytes(data), bytes(data), std::nullopt, move);
    }
    for (const Bytes& data : {Bytes{}, Bytes{0}, Bytes{1}}) {
        ExpectValueNeverLost(bytes(data), bytes({0}), std::nullopt, move);
        ExpectValueNeverLost(bytes(data), bytes({0}), old, move);
    }
    ExpectValueNeverLost({"{0-1}", registryType::Sz, {'a', 0}}, bytes({'a', 0}), old, move);
}

TEST(ItemFaults, AKeyThatIsDeletedIsNeverLost) {
    ExpectNeverLost(
        {[](MemoryRegistry& registry) { AddItem(registry, LiveItem); },
         [](Application& application) { DeleteItemKey(application, "List", User, LiveItem); },
         [](const MemoryRegistry& now, const MemoryHives& kept) {
             return HasItem(now, LiveItem) || HasItem(kept, LiveItem);
         },
         [](const MemoryRegistry& now) { return !now.HasKey(User, LiveItem); }});
}

TEST(ItemFaults, AValueThatIsDeletedIsNeverLost) {
    for (const std::string name : {"{0-1}", ""}) {
        const MemoryValue value{name, 77, {1, 2, 3}};
        ExpectNeverLost({[&](MemoryRegistry& registry) {
                             registry.SetRaw(User, Live, name, value.type, value.data);
                         },
                         [&](Application& application) {
                             DeleteItemValue(application, "List", User, Live, name);
                         },
                         [&](const MemoryRegistry& now, const MemoryHives& kept) {
                             return now.ValueAt(User, Live, name) == value ||
                                    kept.ValueAt(User, Live, name) == value;
                         },
                         [&](const MemoryRegistry& now) {
                             return !now.ValueAt(User, Live, name).has_value();
                         }});
    }
}

}  // namespace
}  // namespace velkarix
