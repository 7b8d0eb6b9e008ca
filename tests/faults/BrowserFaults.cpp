#include "tests/faults/BrowserFaults.h"

#include <memory>
#include <utility>

#include "base/Text.h"
#include "tests/faults/FlatMachine.h"

namespace velkarix {
namespace {

class FaultTest {
  public:
    explicit FaultTest(const BrowserFault& fault) : fault_(fault), list_(fault.list) {
        MemoryMachine machine;
        items_ = Put(machine);
        before_ = Flatten(machine);
        for (FaultItem& item : items_) {
            item.original = Standing(machine.registry, item, item.enabled);
            item.arrived = TextOnArrival(machine.registry, item);
            const std::string holder = PlaceOf(item.place->hive, item.place->live);
            apart_.push_back(list_.values ? holder + ", " + ToLower(item.name)
                                          : holder + ToLower(item.name) + "\\");
        }
    }

    void Prepare(MemoryMachine& machine) const { Put(machine); }

    void Open(RunningProgram& program) const {
        ShowPage(program);
        ListView& view = program.Get<ListView>("frmIE", list_.list);
        for (const FaultItem& item : items_) {
            ListRow* row = item.takesPart ? RowOf(view, item, item.enabled) : nullptr;
            if (row == nullptr) continue;
            view.UserCheck(*row, true);
            view.UserSelect(row);
        }
        program.desktop.answers = {MessageAnswer::Yes};
    }

    std::string Examine(MemoryMachine& machine) const {
        machine.registry.afterCopy = nullptr;
        machine.disk.SetFreeBytes(std::nullopt);
        machine.clock.SetLocalTime(MakeTime(2004, 6, 1, 13));
        MemoryHives kept;
        MergeBackups(machine, kept);
        for (const FaultItem& item : items_) {
            if (IsLost(machine, kept, item)) return "lost: " + Describe(item);
        }
        std::string wrong = FindDifference(before_, Flatten(machine), apart_);
        if (wrong.empty()) wrong = FindWrongRow(machine);
        if (wrong.empty()) wrong = FindUndone(machine);
        return wrong.empty() ? FindDifference(before_, Flatten(machine), apart_) : wrong;
    }

  private:
    // A key that comes into being for an item stays when the item goes: so that everything is as
    // before afterwards, all of them are there.
    std::vector<FaultItem> Put(MemoryMachine& machine) const {
        for (const PlaceCase& place : list_.places) machine.AddKey(place.hive, place.live);
        return fault_.prepare(machine);
    }
    // As text; empty when nothing of it is there.
    std::string Standing(const MemoryHives& hives, const FaultItem& item, bool enabled) const {
        const PlaceCase& place = *item.place;
        const std::string holder = enabled ? place.live : place.held;
        return list_.values ? TextOfValue(hives, place.hive, holder, item.name)
                            : TextOfKey(hives, place.hive, holder + "\\" + item.name);
    }

    std::string TextOnArrival(const MemoryHives& hives, const FaultItem& item) const {
        if (!list_.values) return item.original;
        const PlaceCase& place = *item.place;
        const auto value =
            hives.ValueAt(place.hive, item.enabled ? place.live : place.held, item.name);
        return TextOf(Arrived(place, {value->name, value->type, value->data}));
    }

    bool IsLost(const MemoryMachine& machine, const MemoryHives& kept,
                const FaultItem& item) const {
        const std::string there = Standing(machine.registry, item, !item.enabled);
        if (Standing(machine.registry, item, item.enabled) == item.original ||
            there == item.original) {
            return false;
        }
        const bool isKept = Standing(kept, item, item.enabled) == item.original;
        const bool fileSuffices = item.mayGiveWay || fault_.action == ItemAction::Delete;
        return !isKept || (!fileSuffices && there != item.arrived);
    }

    // ---- The page

    static void ShowPage(RunningProgram& program) {
        program.application.DisabledRoot = "Software\\Velkarix\\Disabled\\";
        program.application.forms.Show("frmIE");
    }
    static void Click(RunningProgram& program, const char* button) {
        program.application.forms.Loaded("frmIE")->Find(button)->Raise("Click");
    }
    bool IsRowOf(const ListRow& row, const FaultItem& item, bool enabled) const {
        return row.Key() == item.name && row.Text(list_.enabled) == (enabled ? "True" : "False") &&
               (list_.scope == 0 || row.Text(list_.scope) == item.place->scope);
    }
    ListRow* RowOf(ListView& view, const FaultItem& item, bool enabled) const {
        for (std::size_t i = 0; i < view.RowCount(); ++i) {
            if (IsRowOf(view.Row(i), item, enabled)) return &view.Row(i);
        }
        return nullptr;
    }

    // What stands whole has a row, and what isn't there has none; a part of an item may have one.
    std::string FindWrongRow(MemoryMachine& machine) const {
        RunningProgram program(machine);
        ShowPage(program);
        ListView& view = program.Get<ListView>("frmIE", list_.list);
        for (const FaultItem& item : items_) {
            for (const bool enabled : {true, false}) {
                const std::string there = Standing(machine.registry, item, enabled);
                const bool isWhole = there == item.original || there == item.arrived;
                const bool hasRow = RowOf(view, item, enabled) != nullptr;
                if ((isWhole && !hasRow) || (there.empty() && hasRow)) {
                    return "wrong row: " + Describe(item) + (enabled ? ", True" : ", False");
                }
            }
        }
        return {};
    }

    // ---- Undoing

    std::string FindUndone(MemoryMachine& machine) const {
        const bool deletes = fault_.action == ItemAction::Delete;
        std::string wrong = deletes ? std::string() : MoveBack(machine);
        MergeBackups(machine, machine.registry);
        for (const FaultItem& item : items_) {
            const bool isBack =
                Standing(machine.registry, item, item.enabled) == item.original || !item.takesPart;
            if (wrong.empty() && !isBack) wrong = "not brought back: " + Describe(item);
        }
        return wrong;
    }

    // Every item goes to where those were that took part, by the program's own command.
    std::string MoveBack(MemoryMachine& machine) const {
        RunningProgram program(machine);
        ShowPage(program);
        ListView& view = program.Get<ListView>("frmIE", list_.list);
        for (std::size_t i = 0; i < view.RowCount(); ++i) view.Row(i).SetChecked(true);
        Click(program, fault_.action == ItemAction::Disable ? list_.enable : list_.disable);
        for (const FaultItem& item : items_) {
            if (item.takesPart && RowOf(view, item, !item.enabled) != nullptr) {
                return "left behind: " + Describe(item);
            }
        }
        return {};
    }

    std::string Describe(const FaultItem& item) const {
        return item.name + " " + item.place->scope + (item.enabled ? " live" : " held") +
               (item.takesPart ? "" : " (not meant)") + "\n" + item.original;
    }

    BrowserFault fault_;
    const ListCase& list_;
    std::vector<FaultItem> items_;
    // All but the items themselves and the program's own places is to be as it was before.
    FlatMachine before_;
    std::vector<std::string> apart_ = {"hklm\\software\\velkarix\\", "hkcu\\software\\velkarix\\",
                                       PlaceOf(Hive::ClassesRoot, "Software\\Velkarix"),
                                       PlaceOf(Hive::ClassesRoot, "Software"), "C:\\Velkarix\\"};
};

}  // namespace

FaultScene SceneOf(const BrowserFault& fault, const std::string& circumstances) {
    const auto test = std::make_shared<const FaultTest>(fault);
    return {circumstances,
            [test](MemoryMachine& machine) { test->Prepare(machine); },
            [test](RunningProgram& program) { test->Open(program); },
            {},  // by the table's command
            [test](MemoryMachine& machine) { return test->Examine(machine); }};
}

}  // namespace velkarix
