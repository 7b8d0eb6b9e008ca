#include "fuzzing/StandingItems.h"

#include <algorithm>
#include <iterator>

#include "browser/ItemPlaces.h"
#include "browser/UrlTables.h"
#include "fuzzing/FuzzTarget.h"
#include "registry/RawValue.h"
#include "registry/RegistryFile.h"
#include "shell/BackupSet.h"
#include "startup/StartupPlaces.h"
#include "tests/machine/CaseFold.h"
#include "tests/machine/MachineText.h"
#include "tests/machine/RegistryFileMerge.h"

namespace velkarix {

namespace {

constexpr const char* DisabledRoot = "Software\\Velkarix\\Disabled\\";
const std::string KeyMark("\0\0key", 5);

std::string FoldedPathIn(Hive hive, const std::string& key) {
    return FoldCase(PathIn(hive, key));
}

// Each place where items are, and the one where they are held.
std::vector<std::pair<std::string, std::string>> MakeTwins() {
    std::vector<std::pair<std::string, std::string>> twins;
    for (const ItemPlaces* list : {&BHOPlaces, &ToolbarPlaces, &ButtonPlaces, &MenuPlaces,
                                   &ProtocolPlaces, &DomainPlaces, &HookPlaces}) {
        for (const ItemPlace& place : list->places) {
            twins.emplace_back(FoldedPathIn(place.hive, place.live),
                               FoldedPathIn(place.hive, std::string(DisabledRoot) + place.held));
        }
    }
    for (const RunKey& key : RunKeys) {
        const std::string name = std::string("Run") + key.suffix;
        twins.emplace_back(
            FoldedPathIn(key.hive, "Software\\Microsoft\\Windows\\CurrentVersion\\" + name),
            FoldedPathIn(key.hive, DisabledRoot + name));
    }
    return twins;
}

bool IsIn(const std::string& path, const std::string& tree) {
    return path.starts_with(tree) && (path.size() == tree.size() || path[tree.size()] == '\\');
}

// The paths that a path's twin may have.
std::vector<std::string> TwinsOf(const std::string& path) {
    static const auto Twins = MakeTwins();
    std::vector<std::string> found;
    for (const auto& [live, held] : Twins) {
        if (IsIn(path, live)) found.push_back(held + path.substr(live.size()));
        if (IsIn(path, held)) found.push_back(live + path.substr(held.size()));
    }
    return found;
}

// What the browser page's views of settings write, and what they take away.
bool IsSetting(const std::string& path) {
    static const std::string Exact[] = {
        FoldedPathIn(Hive::LocalMachine, urlKey::Main),
        FoldedPathIn(Hive::CurrentUser, urlKey::Main),
        FoldedPathIn(Hive::LocalMachine, urlKey::Search),
        FoldedPathIn(Hive::CurrentUser, urlKey::SearchURL),
        FoldedPathIn(Hive::LocalMachine, urlKey::DefaultPrefix),
        FoldedPathIn(Hive::LocalMachine, urlKey::Prefixes),
        FoldedPathIn(Hive::CurrentUser,
                     "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings"),
        FoldedPathIn(Hive::CurrentUser,
                     "Software\\Microsoft\\Windows\\CurrentVersion\\Internet "
                     "Settings\\ZoneMap\\ProtocolDefaults"),
    };
    static const std::string Trees[] = {
        FoldedPathIn(Hive::CurrentUser, urlKey::Search),
        FoldedPathIn(Hive::CurrentUser,
                     "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Zones"),
    };
    return std::find(std::begin(Exact), std::end(Exact), path) != std::end(Exact) ||
           std::any_of(std::begin(Trees), std::end(Trees),
                       [&](const std::string& tree) { return IsIn(path, tree); });
}

}  // namespace

StandingItems::StandingItems(const MemoryMachine& machine) : values_(Collect(machine.registry)) {
    ForEachEntry(machine, [this](const std::string&, const MemoryEntry& entry) { AddFile(entry); });
}

void StandingItems::Collect(const MemoryHives& hives, Hive hive, const std::string& key,
                            Values& values) {
    const std::string path = FoldedPathIn(hive, key);
    values[{path, KeyMark}] = {};
    for (const std::string& name : hives.ValueNamesOf(hive, key)) {
        const auto value = hives.ValueAt(hive, key, name);
        values[{path, FoldCase(name)}] = {name, value->type, value->data};
    }
    const std::string above = key.empty() ? "" : key + "\\";
    for (const std::string& name : hives.SubKeysOf(hive, key)) {
        Collect(hives, hive, above + name, values);
    }
}

StandingItems::Values StandingItems::Collect(const MemoryHives& hives) {
    Values values;
    Collect(hives, Hive::LocalMachine, "", values);
    Collect(hives, Hive::CurrentUser, "", values);
    return values;
}

void StandingItems::AddFile(const MemoryEntry& entry) {
    const std::string content(entry.content.begin(), entry.content.end());
    for (const char* ending : {".lnk", ".exe", BackupCopyExtension}) {
        if (entry.name.ends_with(ending)) files_.insert(content);
    }
    if (entry.name.ends_with(".reg")) AddKept(content);
}

// A file may hold a value several times, as it was at one time and another: each section counts.
void StandingItems::AddKept(const std::string& file) {
    constexpr std::string_view SectionEnd = "\r\n\r\n";
    for (std::size_t start = RegistryFileHeader.size(); start < file.size();) {
        const std::size_t end = file.find(SectionEnd, start) + SectionEnd.size();
        MemoryHives section;
        const bool merged = MergeRegistryFile(
            section, std::string(RegistryFileHeader) + file.substr(start, end - start));
        Expect(merged, "a kept file can be merged", file);
        kept_.push_back(Collect(section));
        start = end;
    }
}

bool StandingItems::Has(const Place& place, const RawValue& value) const {
    const auto found = values_.find(place);
    return found != values_.end() && StandsAs(found->second, value);
}

bool StandingItems::HasKept(const Place& place, const RawValue& value) const {
    return std::any_of(kept_.begin(), kept_.end(), [&](const Values& section) {
        const auto found = section.find(place);
        return found != section.end() && StandsAs(found->second, value);
    });
}

std::string StandingItems::FindLost(const StandingItems& now, bool wasDeletion) const {
    for (const auto& [place, value] : values_) {
        if (now.Has(place, value) || IsSetting(place.first)) continue;
        bool stands = false;
        bool hasName = wasDeletion || now.HasName(place);
        for (const std::string& twin : TwinsOf(place.first)) {
            stands = stands || now.Has({twin, place.second}, value);
            hasName = hasName || now.HasName({twin, place.second});
        }
        if (!stands && !(hasName && now.HasKept(place, value))) {
            return place.first + ", " + place.second;
        }
    }
    for (const std::string& file : files_) {
        if (!now.files_.contains(file)) return "a file: " + file;
    }
    return kept_.size() <= now.kept_.size() ? "" : "a kept file";
}

}  // namespace velkarix
