#include "tests/safety/Gestures.h"

#include <algorithm>
#include <set>
#include <utility>

#include "forms/ComboBox.h"
#include "forms/ListView.h"
#include "forms/TabStrip.h"
#include "forms/TreeView.h"

namespace velkarix {
namespace {

// Knows each kind of control, and does nothing with it.
class NoVisit : public ControlVisitor {
  public:
    void Visit(Button&) override {}
    void Visit(CheckBox&) override {}
    void Visit(ColorBox&) override {}
    void Visit(ComboBox&) override {}
    void Visit(Frame&) override {}
    void Visit(Label&) override {}
    void Visit(LinkLabel&) override {}
    void Visit(ListView&) override {}
    void Visit(OptionButton&) override {}
    void Visit(PageHost&) override {}
    void Visit(Panel&) override {}
    void Visit(PictureBox&) override {}
    void Visit(ProgressBar&) override {}
    void Visit(TabStrip&) override {}
    void Visit(TextBox&) override {}
    void Visit(TreeView&) override {}
};

template <typename ControlClass>
ControlClass& Same(Form& form, const std::string& name) {
    return dynamic_cast<ControlClass&>(*form.Find(name));
}

class GestureFinder : public NoVisit {
  public:
    // Without a program there are no menus.
    explicit GestureFinder(const Form& form, RunningProgram* program = nullptr)
        : form_(form.Name()), program_(program) {}

    std::vector<Gesture> found;

    void Visit(Button& button) override { AddFire(button, "Click"); }
    void Visit(LinkLabel& label) override { AddFire(label, "Click"); }
    void Visit(CheckBox& box) override { AddFire(box, "Click"); }
    void Visit(OptionButton& option) override { AddFire(option, "Click"); }
    void Visit(ColorBox& box) override { AddFire(box, "DblClick"); }
    void Visit(ComboBox& box) override {
        for (int i = 0; i < static_cast<int>(box.Entries().size()); ++i) {
            Add<ComboBox>(box, "Click", [i](ComboBox& same) { same.UserSelect(i); });
        }
    }
    void Visit(TabStrip& strip) override {
        for (int i = 1; i <= static_cast<int>(strip.Captions().size()); ++i) {
            Add<TabStrip>(strip, "Click", [i](TabStrip& same) { same.UserSelect(i); });
        }
    }
    void Visit(TextBox& box) override {
        if (box.BoxShape().readOnly) return;
        Add<TextBox>(box, "Change", [](TextBox& same) { same.TakeInput("typed"); });
    }
    void Visit(TreeView& tree) override {
        for (const auto& node : tree.Nodes()) {
            const std::string key = node->key;
            Add<TreeView>(tree, "NodeClick",
                          [key](TreeView& same) { same.UserSelect(*same.Find(key)); });
        }
    }
    void Visit(ListView& list) override {
        AddFire(list, "DblClick");
        Add<ListView>(list, "ColumnClick", [](ListView& same) { same.UserColumnClick(1); });
        Add<ListView>(list, "ItemClick", [](ListView& same) {
            if (same.RowCount() > 0) same.UserSelect(&same.Row(0));
        });
        if (program_ != nullptr) AddMenu(list);
    }

  private:
    template <typename ControlClass>
    void Add(Control& control, const std::string& event,
             const std::function<void(ControlClass&)>& make) {
        const std::string name = control.Name();
        found.push_back({form_, name, event, [name, make](RunningProgram&, Form& form) {
                             make(Same<ControlClass>(form, name));
                         }});
    }
    void AddFire(Control& control, const std::string& event) {
        Add<Control>(control, event, [event](Control& same) { same.Fire(event); });
    }
    void AddMenu(ListView& list) {
        auto& shown = program_->desktop.menus;
        shown.clear();
        list.UserMouseUp(MouseButton::Right);
        if (shown.empty()) return;
        const std::string name = list.Name();
        for (const MenuEntry& entry : shown.back().menu.entries) {
            if (entry.IsSeparator()) continue;
            found.push_back({form_, name, entry.name,
                             [name, choice = entry.name](RunningProgram& program, Form& form) {
                                 program.desktop.nextMenuChoice = choice;
                                 Same<ListView>(form, name).UserMouseUp(MouseButton::Right);
                             }});
        }
    }

    std::string form_;
    RunningProgram* program_;
};

class OpenerFinder : public GestureFinder {
  public:
    using GestureFinder::GestureFinder;
    void Visit(Button& button) override {
        if (button.ButtonLook() != Button::Look::Command) GestureFinder::Visit(button);
    }
    void Visit(LinkLabel&) override {}
    void Visit(CheckBox&) override {}
    void Visit(OptionButton&) override {}
    void Visit(ColorBox&) override {}
    void Visit(ComboBox&) override {}
    void Visit(TextBox&) override {}
    void Visit(TreeView&) override {}
    void Visit(ListView&) override {}
};

class RowSelector : public NoVisit {
  public:
    explicit RowSelector(std::size_t row) : row_(row) {}
    std::size_t mostRows = 0;

    void Visit(ListView& list) override {
        mostRows = std::max(mostRows, list.RowCount());
        for (std::size_t i = 0; i < list.RowCount() && list.CheckBoxes(); ++i) {
            list.UserCheck(list.Row(i), true);
        }
        if (list.RowCount() > 0) list.UserSelect(&list.Row(std::min(row_, list.RowCount() - 1)));
    }

  private:
    std::size_t row_;
};

class BoxFiller : public NoVisit {
  public:
    explicit BoxFiller(bool ticked) : ticked_(ticked) {}

    void Visit(CheckBox& box) override {
        if (box.Checked() != ticked_) box.Fire("Click");
    }
    void Visit(TextBox& box) override {
        if (!box.BoxShape().readOnly) box.TakeInput("8080");
    }
    void Visit(ComboBox& box) override { box.UserSelect(0); }

  private:
    bool ticked_;
};

void VisitShown(Form& form, ControlVisitor& visitor) {
    // A copy: a gesture may hide some of them.
    std::vector<Control*> shown;
    for (Control* control : form.Controls()) {
        if (control->Shown()) shown.push_back(control);
    }
    for (Control* control : shown) control->Accept(visitor);
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
    GestureFinder finder(form, &program);
    VisitShown(form, finder);
    for (const Accelerator& key : form.Accelerators()) finder.found.push_back(KeyOn(form, key));
    for (std::size_t i = 0; i < form.Timers().size(); ++i) {
        finder.found.push_back({form.Name(), form.Timers()[i]->Name(), "Timer",
                                [i](RunningProgram&, Form& same) { same.Timers()[i]->Tick(); }});
    }
    return finder.found;
}

std::vector<Gesture> OpenersOn(Form& form) {
    OpenerFinder finder(form);
    VisitShown(form, finder);
    for (const Accelerator& key : form.Accelerators()) {
        if (key.handler.empty()) finder.found.push_back(KeyOn(form, key));
    }
    return finder.found;
}

std::vector<std::string> WorkingControls(Form& form) {
    GestureFinder finder(form);
    for (Control* control : form.Controls()) control->Accept(finder);
    std::set<std::string> names;
    for (const Gesture& gesture : finder.found) names.insert(gesture.control);
    for (const Timer* timer : form.Timers()) names.insert(timer->Name());
    return {names.begin(), names.end()};
}

std::size_t PrepareForm(Form& form, std::size_t row, bool ticked) {
    RowSelector rows(row);
    VisitShown(form, rows);
    BoxFiller boxes(ticked);
    VisitShown(form, boxes);
    return rows.mostRows;
}

}  // namespace velkarix
