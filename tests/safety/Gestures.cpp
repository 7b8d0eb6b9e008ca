#include "tests/safety/Gestures.h"

#include <algorithm>

#include "forms/ComboBox.h"
#include "forms/ListView.h"
#include "forms/TabStrip.h"
#include "tests/machine/ControlGestures.h"

namespace velkarix {
namespace {

std::vector<Control*> ShownOn(const Form& form) {
    std::vector<Control*> shown;
    for (Control* control : form.Controls()) {
        if (control->Shown()) shown.push_back(control);
    }
    return shown;
}

std::vector<ControlGesture> GesturesWith(Control& control) {
    return GesturesOf(control, [](const std::string&) { return "typed"; });
}

// Whether the control is enabled or not. Of a list, one row and one column stand for all: which row
// is selected and which are ticked is what PrepareForm says, and the mouse is there for the menu.
void AddControl(const Form& form, Control& control, std::vector<Gesture>& found) {
    const bool isList = dynamic_cast<ListView*>(&control) != nullptr;
    for (const auto& [event, ways] : GesturesWith(control)) {
        if (isList && (event == "ItemCheck" || event == "MouseUp")) continue;
        for (const auto& way : ways) {
            found.push_back({form.Name(), control.Name(), event,
                             [name = control.Name(), way](RunningProgram&, Form& same) {
                                 way(*same.Find(name));
                             }});
            if (isList) break;
        }
    }
}

void PressRight(Form& form, const std::string& list) {
    dynamic_cast<ListView&>(*form.Find(list)).UserMouseUp(MouseButton::Right);
}

void AddMenu(RunningProgram& program, Form& form, const Control& list,
             std::vector<Gesture>& found) {
    auto& shown = program.desktop.menus;
    shown.clear();
    PressRight(form, list.Name());
    if (shown.empty()) return;
    for (const MenuEntry& entry : shown.back().menu.entries) {
        if (entry.IsSeparator()) continue;
        found.push_back({form.Name(), list.Name(), entry.name,
                         [name = list.Name(), choice = entry.name](RunningProgram& same, Form& on) {
                             same.desktop.nextMenuChoice = choice;
                             PressRight(on, name);
                         }});
    }
}

bool IsOpener(const Control& control) {
    const auto* const button = dynamic_cast<const Button*>(&control);
    if (button != nullptr) return button->ButtonLook() != Button::Look::Command;
    return dynamic_cast<const TabStrip*>(&control) != nullptr;
}

// A box that is to be filled in: with text, a choice, or a tick that it hasn't, or has.
bool IsToFill(const Control& control, bool ticked) {
    const auto* const box = dynamic_cast<const CheckBox*>(&control);
    if (box != nullptr) return box->Checked() != ticked;
    return dynamic_cast<const TextBox*>(&control) != nullptr ||
           dynamic_cast<const ComboBox*>(&control) != nullptr;
}

// Told as the event whose handler the key runs, if it runs one.
Gesture KeyOn(const Form& form, const Accelerator& key) {
    const std::size_t mark = key.handler.rfind('_');
    const std::string event = mark == std::string::npos ? "Key" : key.handler.substr(mark + 1);
    const std::string within = key.within == nullptr ? std::string() : key.within->Name();
    return {form.Name(), key.handler.substr(0, mark), event,
            [stroke = key.stroke, within](RunningProgram&, Form& same) {
                same.RaiseKey(stroke, same.Find(within));
            }};
}

}  // namespace

std::vector<Gesture> GesturesOn(RunningProgram& program, Form& form) {
    std::vector<Gesture> found;
    for (Control* control : ShownOn(form)) {
        AddControl(form, *control, found);
        if (dynamic_cast<ListView*>(control) != nullptr) AddMenu(program, form, *control, found);
    }
    for (const Accelerator& key : form.Accelerators()) found.push_back(KeyOn(form, key));
    for (std::size_t i = 0; i < form.Timers().size(); ++i) {
        found.push_back({form.Name(), form.Timers()[i]->Name(), "Timer",
                         [i](RunningProgram&, Form& same) { same.Timers()[i]->Tick(); }});
    }
    return found;
}

std::vector<Gesture> OpenersOn(Form& form) {
    std::vector<Gesture> found;
    for (Control* control : ShownOn(form)) {
        if (IsOpener(*control)) AddControl(form, *control, found);
    }
    for (const Accelerator& key : form.Accelerators()) {
        if (key.handler.empty()) found.push_back(KeyOn(form, key));
    }
    return found;
}

std::vector<std::string> WorkingControls(Form& form) {
    std::vector<std::string> names;
    for (Control* control : form.Controls()) {
        if (!GesturesWith(*control).empty()) names.push_back(control->Name());
    }
    for (const Timer* timer : form.Timers()) names.push_back(timer->Name());
    return names;
}

std::size_t PrepareForm(Form& form, std::size_t row, bool ticked) {
    std::size_t mostRows = 0;
    for (Control* control : ShownOn(form)) {
        auto* const list = dynamic_cast<ListView*>(control);
        if (list == nullptr || list->RowCount() == 0) continue;
        mostRows = std::max(mostRows, list->RowCount());
        TickAllRows(*list);
        list->UserSelect(&list->Row(std::min(row, list->RowCount() - 1)));
    }
    for (Control* control : ShownOn(form)) {
        if (!IsToFill(*control, ticked)) continue;
        const auto type = [](const std::string&) { return "8080"; };
        for (const auto& [event, ways] : GesturesOf(*control, type)) {
            if (!ways.empty()) ways.front()(*control);
        }
    }
    return mostRows;
}

}  // namespace velkarix
