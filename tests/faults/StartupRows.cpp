// Switching startup items off and on, and deleting them.
#include <cstddef>

#include "tests/faults/FaultTable.h"
#include "tests/faults/StartupFaults.h"

namespace velkarix {
namespace {

using Action = StartupAction;
using Item = StartupFaultItem;

std::string ContentOfShortcut(const char* arguments) {
    const Bytes bytes = MemoryEntry("", 0).Shortcut({"C:\\a.exe", arguments, ""}).content;
    return {bytes.begin(), bytes.end()};
}

Item Value(const char* location, const char* name, bool enabled, std::uint32_t type,
           const std::string& content, bool takesPart = true) {
    return {location, name, enabled, takesPart, false, type, content};
}

Item File(const char* location, const char* name, bool enabled, const char* arguments,
          bool takesPart = true) {
    return {
        location, name, enabled, takesPart, false, registryType::Sz, ContentOfShortcut(arguments)};
}

std::string Text(const std::string& text) {
    return text + '\0';
}

std::vector<Item> Values(bool enabled) {
    return {Value("HKLM\\Run", "text", enabled, registryType::Sz, Text("C:\\a.exe /x")),
            Value("HKCU\\RunOnce", "expand", enabled, registryType::ExpandSz, Text("%a%\\b.exe")),
            Value("HKCU\\Run", "bytes", enabled, registryType::Binary, {1, 2, 3, 0}),
            Value("HKLM\\RunOnceEx", "", enabled, registryType::Sz, Text("")),
            Value("HKLM\\Run", "stays", enabled, registryType::Sz, Text("a"), false),
            Value("HKLM\\Run", "other", !enabled, registryType::Sz, Text("b"), false)};
}

std::vector<Item> Files(bool enabled) {
    return {File("Startup LM", "a.lnk", enabled, "/a"), File("Startup CU", "b.lnk", enabled, "/b"),
            File("Startup CU", "stays.lnk", enabled, "/s", false),
            File("Startup CU", "other.lnk", !enabled, "/o", false)};
}

// Two of one name, which aren't the same.
std::vector<Item> TwoFiles(bool enabled) {
    std::vector<Item> items = {File("Startup CU", "a.lnk", enabled, "/new"),
                               File("Startup CU", "a.lnk", !enabled, "/old", false)};
    items[1].mayGiveWay = true;
    return items;
}

std::vector<Item> TwoValues(bool enabled) {
    std::vector<Item> items = {
        Value("HKCU\\Run", "a", enabled, registryType::Sz, Text("new")),
        Value("HKCU\\Run", "a", !enabled, registryType::ExpandSz, Text("old"), false)};
    items[1].mayGiveWay = true;
    return items;
}

// What a move that was cut short has left.
std::vector<Item> SameFiles(bool enabled) {
    return {File("Startup LM", "a.lnk", enabled, "/same"),
            File("Startup LM", "a.lnk", !enabled, "/same", false)};
}

// One of the items takes part.
std::vector<Item> OneOf(std::vector<Item> items, std::size_t number) {
    for (std::size_t i = 0; i < items.size(); ++i) items[i].takesPart = i == number;
    return items;
}

using Scenes = std::vector<FaultScene>;

constexpr std::uint64_t FillingDisks[] = {0, 60, 250};  // bytes that are free at first

Scenes MoveScenes(Action action) {
    const bool enabled = action == Action::Disable;
    Scenes scenes;
    for (const NamedSystem system : {NamedSystem::WindowsXp, NamedSystem::Windows95}) {
        scenes.push_back(SceneOf({"values", action, Values(enabled), system}));
        scenes.push_back(SceneOf({"shortcuts", action, Files(enabled), system}));
    }
    scenes.push_back(SceneOf({"values of one name", action, TwoValues(enabled)}));
    scenes.push_back(SceneOf({"shortcuts of one name", action, TwoFiles(enabled)}));
    scenes.push_back(SceneOf({"the same shortcut twice", action, SameFiles(enabled)}));
    for (const std::uint64_t freeBytes : FillingDisks) {
        for (const auto& items : {Values(enabled), Files(enabled), TwoFiles(enabled)}) {
            scenes.push_back(SceneOf(
                {"a disk that fills up", action, items, NamedSystem::WindowsXp, freeBytes}));
        }
    }
    return scenes;
}

Scenes DeletionScenes() {
    Scenes scenes;
    for (const bool enabled : {true, false}) {
        for (std::size_t i = 0; i < Values(enabled).size(); ++i) {
            scenes.push_back(SceneOf({"values", Action::Delete, OneOf(Values(enabled), i)}));
        }
        for (std::size_t i = 0; i < Files(enabled).size(); ++i) {
            scenes.push_back(SceneOf({"shortcuts", Action::Delete, OneOf(Files(enabled), i)}));
        }
        for (const std::uint64_t freeBytes : FillingDisks) {
            for (const auto& items : {OneOf(Values(enabled), 1), OneOf(Files(enabled), 0)}) {
                scenes.push_back(SceneOf({"a disk that fills up", Action::Delete, items,
                                          NamedSystem::WindowsXp, freeBytes}));
            }
        }
    }
    return scenes;
}

}  // namespace

std::vector<FaultRow> StartupRows() {
    return {{"frmStartup.cmdDisable_Click", [] { return MoveScenes(Action::Disable); }},
            {"frmStartup.cmdEnable_Click", [] { return MoveScenes(Action::Enable); }},
            {"frmStartup.cmdDelete_Click", DeletionScenes}};
}

}  // namespace velkarix
