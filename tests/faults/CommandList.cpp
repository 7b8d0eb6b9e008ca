#include "tests/faults/CommandList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string_view>

#include "tests/machine/ControlGestures.h"

namespace velkarix {
namespace {

constexpr const char* MainForm = "frmMain";
constexpr const char* LoadEvent = "Form_Load";
constexpr const char* UnloadEvent = "Form_Unload";

std::vector<ControlGesture> GesturesWith(Control& control) {
    return GesturesOf(control, [](const std::string& value) { return value + "x"; });
}

// The button of the main window that shows each page, found out by pressing them.
const std::map<std::string, std::string>& PageButtons() {
    static const std::map<std::string, std::string> found = [] {
        std::map<std::string, std::string> buttons;
        TestProgram program;
        program.Start();
        const FormSet& forms = program.application.forms;
        for (Control* control : forms.Loaded(MainForm)->Controls()) {
            const auto* const button = dynamic_cast<Button*>(control);
            if (button == nullptr) continue;
            control->Raise("Click");
            for (const std::string& name : forms.Names()) {
                if (name != MainForm && forms.Loaded(name) != nullptr) {
                    buttons.emplace(name, control->Name());
                }
            }
        }
        return buttons;
    }();
    return found;
}

// Works on each form of the program in turn, loaded.
template <typename Work>
void ForEachForm(MemoryMachine& machine, Work work) {
    RunningProgram program(machine);
    for (const std::string& name : program.application.forms.Names()) {
        OpenForm(program, name);
        Form* const form = program.application.forms.Loaded(name);
        if (form == nullptr) {
            ADD_FAILURE() << "how is " << name << " opened?";
            continue;
        }
        work(program, *form);
    }
}

// "Key3_Press": the keys that no control stands for, by their places among the keys of the form.
constexpr std::string_view KeyName = "Key";

std::vector<std::string> KeysOf(const Form& form) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < form.Accelerators().size(); ++i) {
        if (!form.Accelerators()[i].handler.empty()) continue;
        names.push_back(std::string(KeyName).append(std::to_string(i)).append("_Press"));
    }
    return names;
}

// The menu that pops up over the list, if there is one.
const Menu* MenuOf(RunningProgram& program, ListView& list) {
    if (list.RowCount() == 0) ADD_FAILURE() << list.Name() << " has no row";
    if (list.RowCount() > 0) list.UserSelect(&list.Row(0));
    const std::size_t before = program.desktop.menus.size();
    list.UserMouseUp(MouseButton::Right);
    return program.desktop.menus.size() == before ? nullptr : &program.desktop.menus.back().menu;
}

}  // namespace

std::vector<std::string> AllCommands(MemoryMachine& machine) {
    std::vector<std::string> commands;
    ForEachForm(machine, [&commands](RunningProgram&, Form& form) {
        const std::string prefix = form.Name() + ".";
        for (Control* control : form.Controls()) {
            for (const ControlGesture& gesture : GesturesWith(*control)) {
                commands.push_back(prefix + control->Name() + "_" + gesture.event);
                EXPECT_FALSE(gesture.ways.empty()) << "no way to give " << commands.back();
            }
        }
        for (const Timer* timer : form.Timers()) {
            commands.push_back(prefix + timer->Name() + "_Timer");
        }
        for (const std::string& key : KeysOf(form)) commands.push_back(prefix + key);
        for (const char* event : {LoadEvent, UnloadEvent}) commands.push_back(prefix + event);
    });
    return commands;
}

std::vector<CommandRoad> AllRoads(MemoryMachine& machine) {
    std::vector<CommandRoad> roads;
    std::vector<std::string> menus;  // that popped up
    ForEachForm(machine, [&](RunningProgram& program, Form& form) {
        for (const Accelerator& key : form.Accelerators()) {
            if (key.handler.empty()) continue;  // a command by itself
            roads.push_back({form.Name() + "'s key", form.Name() + "." + key.handler});
        }
        for (Control* control : form.Controls()) {
            auto* const list = dynamic_cast<ListView*>(control);
            const Menu* const menu = list == nullptr ? nullptr : MenuOf(program, *list);
            if (menu == nullptr) continue;
            menus.push_back(menu->name);
            for (const MenuEntry& entry : menu->entries) {
                if (entry.IsSeparator() || entry.handler.empty()) continue;
                roads.push_back({entry.name, form.Name() + "." + entry.handler});
            }
        }
    });
    RunningProgram program(machine);
    for (const Menu& menu : program.application.menus.Menus()) {
        EXPECT_EQ(std::count(menus.begin(), menus.end(), menu.name), 1)
            << "which list does " << menu.name << " belong to?";
    }
    return roads;
}

std::pair<std::string, std::string> SplitCommand(const std::string& command) {
    const std::size_t dot = command.find('.');
    return {command.substr(0, dot), command.substr(dot + 1)};
}

void OpenForm(RunningProgram& program, const std::string& form) {
    FormSet& forms = program.application.forms;
    if (forms.Loaded(MainForm) == nullptr) program.Start();
    if (forms.Loaded(form) != nullptr) return;
    const auto button = PageButtons().find(form);
    if (button == PageButtons().end()) {
        forms.Load(form);  // a dialog
    } else {
        program.Get<Button>(MainForm, button->second).Raise("Click");
    }
}

void GiveCommand(RunningProgram& program, const std::string& command) {
    const auto [name, handler] = SplitCommand(command);
    if (handler == LoadEvent) return OpenForm(program, name);
    Form* const form = program.application.forms.Loaded(name);
    ASSERT_NE(form, nullptr) << command;
    if (handler == UnloadEvent) {
        program.application.forms.Unload(name);
        return;
    }
    const std::size_t mark = handler.rfind('_');
    const std::string control = handler.substr(0, mark);
    for (Timer* timer : form->Timers()) {
        if (timer->Name() == control) return timer->Tick();
    }
    if (control.starts_with(KeyName)) {
        return form->Accelerators().at(std::stoul(control.substr(KeyName.size()))).command();
    }
    Control* const found = form->Find(control);
    ASSERT_NE(found, nullptr) << command;
    ASSERT_TRUE(found->Enabled()) << command;
    for (const ControlGesture& gesture : GesturesWith(*found)) {
        if (gesture.event != handler.substr(mark + 1)) continue;
        for (const auto& way : gesture.ways) EXPECT_TRUE(way(*found)) << command;
    }
}

}  // namespace velkarix
