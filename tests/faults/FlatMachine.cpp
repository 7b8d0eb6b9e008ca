#include "tests/faults/FlatMachine.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "tests/machine/MachineText.h"

namespace velkarix {
namespace {

// Names of keys and values compare without case, and a key that was made anew may have another.
void AddKey(const MemoryHives& hives, Hive hive, const std::string& key, const std::string& name,
            FlatMachine& flat) {
    flat[name] = "key";
    for (const std::string& valueName : hives.ValueNamesOf(hive, key)) {
        const auto value = hives.ValueAt(hive, key, valueName);
        flat[name + ", " + ToLower(valueName)] =
            std::to_string(value->type) + ":" + std::string(value->data.begin(), value->data.end());
    }
    for (const std::string& subKey : hives.SubKeysOf(hive, key)) {
        AddKey(hives, hive, key.empty() ? subKey : key + "\\" + subKey,
               name + ToLower(subKey) + "\\", flat);
    }
}

}  // namespace

FlatMachine Flatten(const MemoryMachine& machine) {
    FlatMachine flat;
    AddKey(machine.registry, Hive::LocalMachine, "", "hklm\\", flat);
    AddKey(machine.registry, Hive::CurrentUser, "", "hkcu\\", flat);
    ForEachEntry(machine, [&flat](const std::string& path, const MemoryEntry& entry) {
        if (entry.IsFolder()) {
            flat[path + "\\"] = "folder";
        } else {
            flat[path] = std::string(entry.content.begin(), entry.content.end());
        }
    });
    for (const ProcessId id : machine.processes.Running()) {
        flat["process " + std::to_string(id)] = "runs";
    }
    for (const std::string& path : machine.files.DeletedAtNextStart())
        flat["later " + path] = "goes";
    return flat;
}

bool BeginsWithAny(const std::string& place, const std::vector<std::string>& beginnings) {
    return std::any_of(beginnings.begin(), beginnings.end(),
                       [&](const std::string& each) { return place.starts_with(each); });
}

std::string FindDifference(const FlatMachine& before, const FlatMachine& now,
                           const std::vector<std::string>& apart) {
    for (const auto& [one, other] : {std::pair(&before, &now), std::pair(&now, &before)}) {
        for (const auto& [place, content] : *one) {
            const auto found = other->find(place);
            const bool isSame = found != other->end() && found->second == content;
            if (isSame || BeginsWithAny(place, apart)) continue;
            return place + (one == &before ? "\nbefore: " : "\nnow: ") + content;
        }
    }
    return {};
}

std::string PlaceOf(Hive hive, const std::string& key) {
    return ToLower(PathIn(hive, key)) + "\\";
}

}  // namespace velkarix
