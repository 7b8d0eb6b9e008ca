#include "tests/faults/StartupFaults.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "base/Text.h"
#include "tests/faults/FlatMachine.h"
#include "tests/machine/RegistryFileMerge.h"

namespace velkarix {
namespace {

constexpr const char* KeptLater = "C:\\Velkarix\\Backup\\6_1_153_13_0_0_";

using Item = StartupFaultItem;

Bytes ToBytes(const std::string& text) {
    return {text.begin(), text.end()};
}

std::string KeyOf(const Item& item, bool enabled) {
    return std::string(enabled ? LiveRun : HeldRun) + FindRunKey(item.location)->suffix;
}

std::string PathOf(const Item& item, bool enabled) {
    const bool isMachine = item.location == "Startup LM";
    const char* folder = enabled ? (isMachine ? LiveLM : LiveCU) : (isMachine ? HeldLM : HeldCU);
    return std::string(folder) + "\\" + item.name;
}

// A file that was kept by the command, or by the one that brings the items back, an hour later.
std::string KeptPath(const std::string& name, bool later = false) {
    std::string path = later ? KeptLater : KeptStem;
    return path.append(name);
}

class Fault {
  public:
    explicit Fault(StartupFault scene) : scene_(std::move(scene)) {
        MemoryMachine machine;
        Prepare(machine);
        before_ = Flatten(machine);
        for (const Item& item : scene_.items) {
            apart_.push_back(item.IsValue()
                                 ? PlaceOf(FindRunKey(item.location)->hive, KeyOf(item, true)) +
                                       ", " + ToLower(item.name)
                                 : PathOf(item, true));
        }
    }

    void Prepare(MemoryMachine& machine) const {
        machine.SetSystem(scene_.system);
        PutStartupFolders(machine);
        machine.AddFile("C:\\a.exe").Content("abc");
        for (const char* folder : {HeldLM, HeldCU}) machine.AddFolder(folder);
        for (const Item& item : scene_.items) {
            if (item.IsValue()) {
                // One that comes into being for the value stays when the value goes.
                machine.AddKey(FindRunKey(item.location)->hive, KeyOf(item, true));
                machine.registry.SetRaw(FindRunKey(item.location)->hive, KeyOf(item, item.enabled),
                                        item.name, item.type, ToBytes(item.content));
            } else {
                machine.AddFile(PathOf(item, item.enabled)).Content(item.content);
            }
        }
        machine.disk.SetFreeBytes(scene_.freeBytes);
    }

    void Open(RunningProgram& program) const {
        ListView& list = ShowPage(program);
        for (const Item& item : scene_.items) {
            ListRow* row = item.takesPart ? RowOf(list, item, item.enabled) : nullptr;
            if (row == nullptr) continue;
            list.UserCheck(*row, true);
            list.UserSelect(row);
        }
        program.desktop.answers = {MessageAnswer::Yes};
    }

    std::string Examine(MemoryMachine& machine) const {
        machine.disk.SetFreeBytes(std::nullopt);
        machine.clock.SetLocalTime(MakeTime(2004, 6, 1, 13));
        MemoryHives kept;
        Merge(machine, kept);
        for (const Item& item : scene_.items) {
            if (IsLost(machine, kept, item)) return "lost: " + Describe(item);
        }
        std::string wrong = FindDifference(before_, Flatten(machine), apart_);
        if (wrong.empty()) wrong = FindWrongRow(machine);
        if (!wrong.empty() || scene_.action == StartupAction::Delete) return wrong;
        wrong = MoveBack(machine);
        return wrong.empty() ? FindDifference(before_, Flatten(machine), apart_) : wrong;
    }

  private:
    // What of the item stands there; nothing when nothing does.
    static std::optional<std::string> Standing(const MemoryMachine& machine,
                                               const MemoryHives& hives, const Item& item,
                                               bool enabled) {
        if (!item.IsValue()) return machine.disk.ContentOf(PathOf(item, enabled));
        const auto value =
            hives.ValueAt(FindRunKey(item.location)->hive, KeyOf(item, enabled), item.name);
        if (!value) return std::nullopt;
        return std::to_string(value->type) + std::string(value->data.begin(), value->data.end());
    }
    static std::string Original(const Item& item) {
        return item.IsValue() ? std::to_string(item.type) + item.content : item.content;
    }
    // After a move.
    static std::string Arrived(const Item& item) {
        if (!item.IsValue()) return item.content;
        return std::to_string(registryType::Sz) + item.content.c_str() + '\0';
    }

    bool IsLost(const MemoryMachine& machine, const MemoryHives& kept, const Item& item) const {
        const auto there = Standing(machine, machine.registry, item, !item.enabled);
        if (Standing(machine, machine.registry, item, item.enabled) == Original(item) ||
            there == Original(item)) {
            return false;
        }
        const bool isKept = item.IsValue()
                                ? Standing(machine, kept, item, item.enabled) == Original(item)
                                : machine.disk.ContentOf(KeptPath(item.name)) == item.content;
        const bool copySuffices = item.mayGiveWay || scene_.action == StartupAction::Delete;
        return !isKept || (!copySuffices && there != Arrived(item));
    }

    static void Merge(const MemoryMachine& machine, MemoryHives& into, bool later = false) {
        const auto text = machine.disk.ContentOf(KeptPath("Startup.reg", later));
        if (text) MergeRegistryFile(into, *text);
    }

    // ---- The page

    static ListView& ShowPage(RunningProgram& program) {
        program.application.DisabledRoot = "Software\\Velkarix\\Disabled\\";
        program.application.forms.Show("frmStartup");
        return program.Get<ListView>("frmStartup", "lstvStartup");
    }
    static void Click(RunningProgram& program, const char* button) {
        program.application.forms.Loaded("frmStartup")->Find(button)->Raise("Click");
    }
    static ListRow* RowOf(ListView& list, const Item& item, bool enabled) {
        for (std::size_t i = 0; i < list.RowCount(); ++i) {
            ListRow& row = list.Row(i);
            if (row.Text(startupColumn::Name) == item.name &&
                row.Text(startupColumn::Location) == item.location &&
                row.Text(startupColumn::Enabled) == EnabledText(enabled)) {
                return &row;
            }
        }
        return nullptr;
    }

    // What stands whole has a row, and what isn't there has none.
    std::string FindWrongRow(MemoryMachine& machine) const {
        RunningProgram program(machine);
        ListView& list = ShowPage(program);
        for (const Item& item : scene_.items) {
            for (const bool enabled : {true, false}) {
                const auto there = Standing(machine, machine.registry, item, enabled);
                const bool isWhole = there == Original(item) || there == Arrived(item);
                const bool hasRow = RowOf(list, item, enabled) != nullptr;
                if ((isWhole && !hasRow) || (!there && hasRow)) {
                    return std::string("wrong row, ") + EnabledText(enabled) + ": " +
                           Describe(item);
                }
            }
        }
        return program.desktop.messages.empty() ? "" : program.desktop.messages[0].text;
    }

    // The program's own commands bring everything to where those were that took part.
    std::string MoveBack(MemoryMachine& machine) const {
        RunningProgram program(machine);
        ListView& list = ShowPage(program);
        for (std::size_t i = 0; i < list.RowCount(); ++i) list.Row(i).SetChecked(true);
        Click(program, scene_.action == StartupAction::Disable ? "cmdEnable" : "cmdDisable");
        for (const Item& item : scene_.items) {
            if (!item.takesPart) continue;
            const auto there = Standing(machine, machine.registry, item, item.enabled);
            if (there != Original(item) && there != Arrived(item) && !HasGivenWay(machine, item)) {
                return "not brought back: " + Describe(item);
            }
        }
        return {};
    }

    // Its namesake came in its place: where neither had moved, both are moved back.
    bool HasGivenWay(const MemoryMachine& machine, const Item& item) const {
        const bool hasNamesake = std::any_of(
            scene_.items.begin(), scene_.items.end(),
            [&](const Item& other) { return other.mayGiveWay && other.name == item.name; });
        if (!hasNamesake || !item.IsValue()) {
            return hasNamesake && machine.disk.ContentOf(KeptPath(item.name, true)) == item.content;
        }
        MemoryHives kept;
        Merge(machine, kept, true);
        return Standing(machine, kept, item, item.enabled) == Original(item);
    }

    static std::string Describe(const Item& item) {
        return item.location + " " + item.name + (item.enabled ? " live" : " held") +
               (item.takesPart ? "" : " (not meant)");
    }

    StartupFault scene_;
    // All but the items themselves and the program's own places is to be as it was before.
    FlatMachine before_;
    std::vector<std::string> apart_ = {"hklm\\software\\velkarix\\", "hkcu\\software\\velkarix\\",
                                       "C:\\Velkarix\\"};
};

}  // namespace

FaultScene SceneOf(const StartupFault& scene) {
    const auto fault = std::make_shared<const Fault>(scene);
    return {scene.circumstances,
            [fault](MemoryMachine& machine) { fault->Prepare(machine); },
            [fault](RunningProgram& program) { fault->Open(program); },
            {},  // by the table's command
            [fault](MemoryMachine& machine) { return fault->Examine(machine); }};
}

}  // namespace velkarix
