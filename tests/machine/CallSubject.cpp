#include "tests/machine/CallSubject.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace velkarix {
namespace {

constexpr std::string_view Separator = ", ";

// The parts before and behind the first separator; of paths, which may hold one, the tests have
// none that does.
std::pair<std::string, std::string> Split(const std::string& arguments) {
    const std::size_t at = arguments.find(Separator);
    if (at == std::string::npos) return {arguments, {}};
    return {arguments.substr(0, at), arguments.substr(at + Separator.size())};
}

struct KeyPlace {
    Hive hive;
    std::string key;
};

// Nothing for a hive itself.
std::optional<KeyPlace> PlaceOf(const std::string& path) {
    constexpr std::pair<std::string_view, Hive> Hives[] = {{"HKLM\\", Hive::LocalMachine},
                                                           {"HKCU\\", Hive::CurrentUser},
                                                           {"HKCR\\", Hive::ClassesRoot}};
    for (const auto& [prefix, hive] : Hives) {
        if (path.starts_with(prefix)) return KeyPlace{hive, path.substr(prefix.size())};
    }
    return std::nullopt;
}

bool IsOneOf(std::string_view name, std::initializer_list<std::string_view> names) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

// The one that a listing is about to give; no name past the last.
std::string NameAt(const std::vector<std::string>& names, const std::string& index) {
    const std::size_t number = std::stoul(index);
    return number < names.size() ? names[number] : std::string();
}

}  // namespace

void TakeAway(MemoryMachine& machine, const Call& call) {
    const auto [first, second] = Split(call.arguments);
    MemoryHives& hives = machine.registry;
    if (const auto place = PlaceOf(first)) {
        const auto& [hive, key] = *place;
        if (IsOneOf(call.name, {"RegQueryValueExA", "RegDeleteValueA"})) {
            hives.RemoveValue(hive, key, second);
        } else if (call.name == "RegEnumValueA") {
            hives.RemoveValue(hive, key, NameAt(hives.ValueNamesOf(hive, key), second));
        } else if (call.name.starts_with("RegEnumKey")) {
            hives.RemoveKey(hive, key + "\\" + NameAt(hives.SubKeysOf(hive, key), second));
        } else {
            hives.RemoveKey(hive, key);
        }
    } else if (const auto file = machine.disk.Find(first);
               file && !file->IsFolder() && !file->inUse) {
        machine.disk.Remove(first);
    }
}

std::uint64_t BytesToWrite(const MemoryMachine& machine, const Call& call) {
    if (call.name == "WriteFile") return std::stoul(call.arguments);
    return machine.disk.ContentOf(Split(call.arguments).first).value_or("").size();
}

void CutTarget(MemoryMachine& machine, const Call& call) {
    const auto target = machine.disk.Find(Split(call.arguments).second);
    if (target && !target->content.empty()) target->content.pop_back();
}

}  // namespace velkarix
