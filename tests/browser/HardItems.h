// Items of the browser page that are as hard to move and to bring back as the registry allows:
// trees with values of all types and sizes, and values that aren't what the browser writes.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "registry/RawValue.h"
#include "tests/browser/ItemLists.h"
#include "tests/machine/MachineText.h"
#include "tests/machine/RegistryFileMerge.h"

namespace velkarix {

// Values of all types, also of those that have no name; with empty data, one byte, and more than
// a first buffer takes.
inline std::vector<RawValue> HardValues() {
    using namespace registryType;
    const auto text = [](std::string_view bytes) { return Bytes(bytes.begin(), bytes.end()); };
    using namespace std::string_view_literals;
    return {
        {"", Sz, text("C:\\Some Tools\\item.dll\0"sv)},
        {"Empty", Sz, text("\0"sv)},
        {"\"Quoted\" \\ name", Sz, text("a \"quoted\" \\ text\0"sv)},
        {"Lines", Sz, text("one\r\ntwo\0"sv)},
        {"Expand", ExpandSz, text("%SystemRoot%\\item.dll\0"sv)},
        {"Multi", MultiSz, text("one\0two\0\0"sv)},
        {"Binary", Binary, {0, 1, 2, 0xFE, 0xFF}},
        {"One byte", Binary, {7}},
        {"No binary", Binary, {}},
        {"Dword", Dword, {2, 0, 0, 0}},
        {"Short dword", Dword, {2, 0}},
        {"Qword", Qword, {1, 2, 3, 4, 5, 6, 7, 8}},
        {"None", None, {1, 2, 3}},
        {"Unknown", 0x1234, {9, 8, 7, 6}},
        {"Large", Binary, Bytes(5000, 'x')},
        {"Full buffer", Binary, Bytes(4096, 'y')},
        {"Large text", Sz, text(std::string(4200, 'z') + '\0')},
    };
}

// With texts that the 95 family or both write otherwise than they stood there.
inline std::vector<RawValue> AllHardValues() {
    std::vector<RawValue> values = HardValues();
    values.push_back({"No bytes", registryType::Sz, {}});
    values.push_back({"Behind", registryType::Sz, {'a', 0, 'b', 0}});
    values.push_back({"Unended", registryType::Sz, {'a', 'b'}});
    return values;
}

// Three levels deep. What makes a row of the item stands in its first level.
inline void PutHardTree(MemoryHives& hives, Hive hive, const std::string& key) {
    const auto put = [&](const std::string& below, const RawValue& value) {
        hives.SetRaw(hive, key + below, value.name, value.type, value.data);
    };
    hives.SetDword(hive, key, "*", 2);
    for (const char* name : {"", "Script", "CLSID"}) {
        hives.SetValue(hive, key, name, name == std::string("CLSID") ? ProtocolClass : ItemFile);
    }
    for (const RawValue& value : HardValues()) put("\\www\\Deepest", value);
    hives.SetDword(hive, key + "\\www", "http", 4);
    hives.AddKey(hive, key + "\\Empty");
}

// What a value is after a move.
inline RawValue Arrived(const PlaceCase& place, RawValue value) {
    if (place.bytes) {
        return {value.name, registryType::Binary, value.data.size() > 1 ? value.data : Bytes{0}};
    }
    value.data.erase(std::find(value.data.begin(), value.data.end(), 0), value.data.end());
    value.data.push_back(0);
    return {value.name, registryType::Sz, value.data};
}

// One value, or a key with all that is in it, as text without regard to any order; empty when it
// isn't there.
inline std::string TextOf(const RawValue& value) {
    return value.name + "=" + std::to_string(value.type) + ":" +
           std::string(value.data.begin(), value.data.end());
}
inline std::string TextOfValue(const MemoryHives& hives, Hive hive, const std::string& key,
                               const std::string& name) {
    const auto value = hives.ValueAt(hive, key, name);
    return value ? TextOf({value->name, value->type, value->data}) : std::string();
}
inline std::string TextOfKey(const MemoryHives& hives, Hive hive, const std::string& key) {
    if (!hives.HasKey(hive, key)) return {};
    std::vector<std::string> values;
    for (const std::string& name : hives.ValueNamesOf(hive, key)) {
        values.push_back(TextOfValue(hives, hive, key, name));
    }
    std::sort(values.begin(), values.end());
    std::string text = "{";
    for (const std::string& value : values) text += value + "\n";
    for (const std::string& name : hives.SubKeysOf(hive, key)) {
        text += name + TextOfKey(hives, hive, key + "\\" + name);
    }
    return text + "}";
}

// Merges all kept registry files, as their user would after double clicks on them.
inline void MergeBackups(const MemoryMachine& machine, MemoryHives& into) {
    for (const std::string& file : KeptFiles(machine)) MergeRegistryFile(into, file);
}

}  // namespace velkarix
