#include "fuzzing/ExpectedRows.h"

#include <algorithm>
#include <span>
#include <vector>

#include "startup/StartupColumns.h"
#include "startup/StartupPlaces.h"

namespace velkarix {

namespace {

// The buffers that names are listed with: one that doesn't fit ends the list.
constexpr std::size_t KeyCapacity = 255;
constexpr std::size_t ValueCapacity = 260;

constexpr const char* Uninstall = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";

std::span<const std::string> Listed(const std::vector<std::string>& names, std::size_t capacity) {
    const auto end = std::find_if(names.begin(), names.end(),
                                  [&](const std::string& name) { return name.size() >= capacity; });
    return {names.begin(), end};
}

std::string RowText(const std::string& a, const std::string& b, const std::string& c = {}) {
    return a + "\n" + b + "\n" + c;
}

std::string StateText(bool enabled) {
    return enabled ? "True" : "False";
}

bool HasNul(const std::string& name) {
    return name.find('\0') != std::string::npos;
}

bool HasText(const MemoryHives& hives, Hive hive, const std::string& key, const char* name) {
    return !hives.TextAt(hive, key, name).value_or("").empty();
}

// The value's bytes as a number; 0 when there are none, or too many.
std::uint32_t NumberAt(const MemoryHives& hives, Hive hive, const std::string& key,
                       const char* name) {
    const auto value = hives.ValueAt(hive, key, name);
    if (!value || value->data.size() > 4) return 0;
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < value->data.size(); ++i) {
        number += std::uint32_t{value->data[i]} << (8 * i);
    }
    return number;
}

bool HasZone(const MemoryHives& hives, Hive hive, const std::string& key) {
    for (const char* below : {"", "\\www"}) {
        for (const char* scheme : {"*", "http", "https", "ftp"}) {
            if (NumberAt(hives, hive, key + below, scheme) != 0) return true;
        }
    }
    return false;
}

// No call reaches what a name with a NUL in it stands for: its row is all that there is of it.
bool IsShown(const MemoryHives& hives, const PageList& list, Hive hive, const std::string& holder,
             const std::string& name) {
    const bool isReached = !HasNul(name);
    const std::string key = holder + "\\" + name;
    switch (list.shows) {
        case Shows::Each:
            return true;
        case Shows::WithClass:
            return isReached && HasText(hives, hive, key, "CLSID");
        case Shows::WithZone:
            return isReached && HasZone(hives, hive, key);
        case Shows::WithFile:
            break;
    }
    return false;
}

// The text of the column of that caption; empty when there is none.
std::string TextUnder(const ListView& list, const ListRow& row, const char* caption) {
    const auto& columns = list.Columns();
    const auto found = std::find(columns.begin(), columns.end(), caption);
    return found == columns.end() ? ""
                                  : row.Text(static_cast<std::size_t>(found - columns.begin()));
}

template <typename Text>
RowTexts RowsOf(ListView& list, Text text) {
    RowTexts rows;
    for (std::size_t i = 0; i < list.RowCount(); ++i) {
        const std::string row = text(list.Row(i));
        if (!row.empty()) rows.insert(row);
    }
    return rows;
}

}  // namespace

std::string ExpectedRows::FindDifference(const RowTexts& rows) const {
    for (const std::string& row : shown) {
        if (rows.count(row) < shown.count(row)) return "missing: " + row;
    }
    for (const std::string& row : rows) {
        if (rows.count(row) > shown.count(row) + possible.count(row)) return "invented: " + row;
    }
    return {};
}

ExpectedRows ExpectItems(const Application& application, const MemoryHives& hives,
                         const PageList& list) {
    ExpectedRows rows;
    for (const ItemPlace& place : list.places.places) {
        for (const bool enabled : {true, false}) {
            const std::string holder = HoldingKey(application, place, enabled);
            const bool isKey = list.places.kind == ItemKind::Key;
            const auto names = isKey ? hives.SubKeysOf(place.hive, holder)
                                     : hives.ValueNamesOf(place.hive, holder);
            for (const std::string& name : Listed(names, isKey ? KeyCapacity : ValueCapacity)) {
                if (isKey ? name.empty() || name.front() == '\0' : !name.starts_with('{')) continue;
                const std::string row = RowText(name, StateText(enabled), place.scope);
                if (IsShown(hives, list, place.hive, holder, name)) {
                    rows.shown.insert(row);
                } else if (list.shows == Shows::WithFile) {
                    rows.possible.insert(row);
                }
            }
        }
    }
    return rows;
}

RowTexts ItemsShown(ListView& list) {
    return RowsOf(list, [&](const ListRow& row) {
        return RowText(row.Key(), TextUnder(list, row, "Enabled"), TextUnder(list, row, "Scope"));
    });
}

ExpectedRows ExpectRuns(const Application& application, const MemoryHives& hives) {
    ExpectedRows rows;
    for (const RunKey& run : RunKeys) {
        for (const bool enabled : {true, false}) {
            const std::string key = RunKeyPath(application, run, enabled);
            const auto names = hives.ValueNamesOf(run.hive, key);
            for (const std::string& name : Listed(names, ValueCapacity)) {
                rows.shown.insert(RowText(name, StateText(enabled), run.location));
            }
        }
    }
    return rows;
}

RowTexts RunsShown(ListView& list) {
    return RowsOf(list, [](const ListRow& row) {
        const std::string& location = row.Text(startupColumn::Location);
        if (FindRunKey(location) == nullptr) return std::string();
        return RowText(row.Text(startupColumn::Name), row.Text(startupColumn::Enabled), location);
    });
}

ExpectedRows ExpectInstalled(const MemoryHives& hives) {
    constexpr Hive Machines = Hive::LocalMachine;
    ExpectedRows rows;
    const auto names = hives.SubKeysOf(Machines, Uninstall);
    for (const std::string& name : Listed(names, KeyCapacity)) {
        if (name.empty() || HasNul(name)) continue;
        const std::string key = Uninstall + name;
        const bool isApplication = NumberAt(hives, Machines, key, "NoRemove") != 1 &&
                                   HasText(hives, Machines, key, "UninstallString") &&
                                   HasText(hives, Machines, key, "DisplayName");
        if (!isApplication) continue;
        rows.shown.insert(RowText(name, hives.TextAt(Machines, key, "DisplayName").value_or("")));
    }
    return rows;
}

RowTexts InstalledShown(ListView& list) {
    return RowsOf(list, [](const ListRow& row) { return RowText(row.Key(), row.Text(0)); });
}

}  // namespace velkarix
