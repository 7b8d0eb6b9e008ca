#include "tests/faults/CommandList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string_view>

#include "forms/ComboBox.h"
#include "forms/ControlVisitor.h"
#include "forms/TabStrip.h"
#include "forms/TreeView.h"

namespace velkarix {
namespace {

constexpr const char* MainForm = "frmMain";
constexpr const char* LoadEvent = "Form_Load";
constexpr const char* UnloadEvent = "Form_Unload";

// A new kind of control doesn't compile here before it is said what a user can do with it.
class EventNames : public ControlVisitor {
  public:
    std::vector<std::string> names;

    void Visit(Button&) override { names = {"Click"}; }
    void Visit(CheckBox&) override { names = {"Click"}; }
    void Visit(ColorBox&) override { names = {"DblClick"}; }
    void Visit(ComboBox&) override { names = {"Click"}; }
    void Visit(Frame&) override {}
    void Visit(Label&) override {}
    void Visit(LinkLabel&) override { names = {"Click"}; }
    void Visit(ListView&) override {
        names = {"ItemClick", "ItemCheck", "ColumnClick", "DblClick", "MouseUp"};
    }
    void Visit(OptionButton&) override { names = {"Click"}; }
    void Visit(PageHost&) override {}
    void Visit(Panel&) override {}
    void Visit(PictureBox&) override {}
    void Visit(ProgressBar&) override {}
    void Visit(TabStrip&) override { names = {"Click"}; }
    void Visit(TextBox&) override { names = {"Change"}; }
    void Visit(TreeView&) override { names = {"NodeClick"}; }
};

class Gesture : public ControlVisitor {
  public:
    explicit Gesture(std::string event) : event_(std::move(event)) {}

    void Visit(Button& control) override { Raise(control); }
    void Visit(CheckBox& control) override {
        // One without a handler tells nobody that it was clicked.
        const bool before = control.Checked();
        control.Raise(event_);
        EXPECT_NE(control.Checked(), before) << control.Name();
    }
    void Visit(ColorBox& control) override { Raise(control); }
    void Visit(ComboBox& control) override {
        const int count = static_cast<int>(control.Entries().size());
        for (int i = 0; i < count; ++i) control.UserSelect(i);
    }
    void Visit(Frame&) override {}
    void Visit(Label&) override {}
    void Visit(LinkLabel& control) override { Raise(control); }
    void Visit(ListView& control) override {
        if (event_ == "DblClick") {
            control.Raise(event_);
        } else if (event_ == "ColumnClick") {
            const int count = static_cast<int>(control.Columns().size());
            for (int column = 1; column <= count; ++column) control.UserColumnClick(column);
        } else if (event_ == "MouseUp") {
            for (const MouseButton each : {MouseButton::Left, MouseButton::Right}) {
                control.UserMouseUp(each);
            }
        } else {
            ForEachRow(control);
        }
    }
    void Visit(OptionButton& control) override { Raise(control); }
    void Visit(PageHost&) override {}
    void Visit(Panel&) override {}
    void Visit(PictureBox&) override {}
    void Visit(ProgressBar&) override {}
    void Visit(TabStrip& control) override {
        const int count = static_cast<int>(control.Captions().size());
        for (int tab = count; tab > 0; --tab) control.UserSelect(tab);
    }
    void Visit(TextBox& control) override { control.TakeInput(control.Value() + "x"); }
    void Visit(TreeView& control) override {
        for (const auto& node : control.Nodes()) control.UserSelect(*node);
    }

  private:
    void Raise(Control& control) {
        EXPECT_TRUE(control.Raise(event_)) << control.Name() << " takes no " << event_;
    }
    void ForEachRow(ListView& list) {
        for (std::size_t i = 0; i < list.RowCount(); ++i) {
            if (event_ == "ItemClick") list.UserSelect(&list.Row(i));
            if (event_ == "ItemCheck") list.UserCheck(list.Row(i), !list.Row(i).Checked());
        }
    }

    std::string event_;
};

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

std::vector<std::string> EventsOf(Control& control) {
    EventNames names;
    control.Accept(names);
    return names.names;
}

std::vector<std::string> AllCommands(MemoryMachine& machine) {
    std::vector<std::string> commands;
    ForEachForm(machine, [&commands](RunningProgram&, Form& form) {
        const std::string prefix = form.Name() + ".";
        for (Control* control : form.Controls()) {
            for (const std::string& event : EventsOf(*control)) {
                commands.push_back(prefix + control->Name() + "_" + event);
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
    Gesture gesture(handler.substr(mark + 1));
    found->Accept(gesture);
}

}  // namespace velkarix
