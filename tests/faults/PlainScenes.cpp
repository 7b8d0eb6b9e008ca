#include "tests/faults/PlainScenes.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <set>

#include "tests/faults/CommandList.h"
#include "tests/faults/FlatMachine.h"
#include "tests/machine/ControlGestures.h"

namespace velkarix {
namespace {

std::optional<std::string> At(const FlatMachine& flat, const std::string& place) {
    const auto found = flat.find(place);
    return found == flat.end() ? std::nullopt : std::optional(found->second);
}

class Scene {
  public:
    explicit Scene(PlainScene plain) : plain_(std::move(plain)) {
        if (!plain_.prepare) plain_.prepare = PutFullMachine;
        if (!plain_.open) {
            plain_.open = [command = plain_.command](RunningProgram& program) {
                SelectForCommand(program, command);
            };
        }
        MemoryMachine machine;
        plain_.prepare(machine);
        before_ = Flatten(machine);
        {
            RunningProgram program(machine);
            Open(program);
            GiveCommand(program, plain_.command);
        }
        after_ = Flatten(machine);
    }

    void Prepare(MemoryMachine& machine) const { plain_.prepare(machine); }

    void Open(RunningProgram& program) const {
        const auto [form, handler] = SplitCommand(plain_.command);
        if (handler != "Form_Load") OpenForm(program, form);
        plain_.open(program);
    }

    std::string Examine(MemoryMachine& machine) const {
        machine.clock.SetLocalTime(MakeTime(2004, 6, 1, 23));
        // The next start finishes what was begun.
        if (!StartsAgain(machine)) return "the program doesn't start";
        const FlatMachine now = Flatten(machine);
        std::set<std::string> places;
        for (const FlatMachine* flat : {&before_, &after_, &now}) {
            for (const auto& [place, content] : *flat) places.insert(place);
        }
        for (const std::string& place : places) {
            const auto there = At(now, place);
            if (there == At(before_, place) || there == At(after_, place)) continue;
            if (!BeginsWithAny(place, plain_.loose)) {
                return "neither as before nor as after: " + place + "\n" + there.value_or("(gone)");
            }
        }
        const std::string wrong = plain_.check ? plain_.check(machine) : "";
        return wrong.empty() && plain_.undo ? FindUndone(machine) : wrong;
    }

  private:
    static bool StartsAgain(MemoryMachine& machine) {
        RunningProgram program(machine);
        program.Start();
        return program.application.forms.Loaded("frmProcess") != nullptr;
    }

    std::string FindUndone(MemoryMachine& machine) const {
        plain_.undo(machine);
        std::vector<std::string> apart = plain_.loose;
        apart.insert(apart.end(), plain_.overwritten.begin(), plain_.overwritten.end());
        const std::string difference = FindDifference(before_, Flatten(machine), apart);
        return difference.empty() ? "" : "not undone: " + difference;
    }

    PlainScene plain_;
    FlatMachine before_;
    FlatMachine after_;
};

}  // namespace

FaultScene SceneOf(const PlainScene& plain) {
    const auto scene = std::make_shared<const Scene>(plain);
    return {plain.name, [scene](MemoryMachine& machine) { scene->Prepare(machine); },
            [scene](RunningProgram& program) { scene->Open(program); },
            [command = plain.command](RunningProgram& program) { GiveCommand(program, command); },
            [scene](MemoryMachine& machine) { return scene->Examine(machine); }};
}

void SelectForCommand(RunningProgram& program, const std::string& command) {
    program.desktop.answers.assign(20, MessageAnswer::Yes);
    program.desktop.nextSaveFile = SavedFile;
    program.desktop.nextColor = 0x123456;
    const auto [name, handler] = SplitCommand(command);
    const Form* const form = program.application.forms.Loaded(name);
    if (form == nullptr) return;  // it is yet to be loaded
    const Control* const control = form->Find(handler.substr(0, handler.rfind('_')));
    for (Control* each : form->Controls()) {
        auto* const list = dynamic_cast<ListView*>(each);
        if (list == nullptr) continue;
        TickAllRows(*list);
        for (std::size_t i = 0; i < list->RowCount(); ++i) {
            list->UserSelect(&list->Row(i));
            if (control == nullptr || control->Enabled()) break;
        }
    }
}

}  // namespace velkarix
