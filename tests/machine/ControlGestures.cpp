#include "tests/machine/ControlGestures.h"

#include <utility>

#include "forms/ComboBox.h"
#include "forms/ControlVisitor.h"
#include "forms/TabStrip.h"
#include "forms/TreeView.h"

namespace velkarix {
namespace {

// A new kind of control doesn't compile here before it is said what a user can do with it.
class GestureFinder : public ControlVisitor {
  public:
    explicit GestureFinder(Typing type) : type_(std::move(type)) {}

    std::vector<ControlGesture> found;

    void Visit(Button&) override { AddFire("Click"); }
    void Visit(CheckBox&) override {
        // One without a handler tells nobody that it was clicked. No handler takes its form away.
        Add<CheckBox>("Click", [](CheckBox& box) {
            const bool before = box.Checked();
            box.Fire("Click");
            return box.Checked() != before;
        });
    }
    void Visit(ColorBox&) override { AddFire("DblClick"); }
    void Visit(ComboBox& box) override {
        AddEach<ComboBox>("Click", box.Entries().size(), [](ComboBox& same, std::size_t entry) {
            same.UserSelect(static_cast<int>(entry));
        });
    }
    void Visit(Frame&) override {}
    void Visit(Label&) override {}
    void Visit(LinkLabel&) override { AddFire("Click"); }
    void Visit(ListView& list) override;
    void Visit(OptionButton&) override { AddFire("Click"); }
    void Visit(PageHost&) override {}
    void Visit(Panel&) override {}
    void Visit(PictureBox&) override {}
    void Visit(ProgressBar&) override {}
    void Visit(TabStrip& strip) override {
        AddEach<TabStrip>("Click", strip.Captions().size(), [](TabStrip& same, std::size_t tab) {
            same.UserSelect(static_cast<int>(tab) + 1);
        });
    }
    void Visit(TextBox& box) override {
        if (box.BoxShape().readOnly) return;
        Add<TextBox>("Change", [type = type_](TextBox& same) {
            same.TakeInput(type(same.Value()));
            return true;
        });
    }
    void Visit(TreeView& tree) override {
        AddEach<TreeView>("NodeClick", tree.Nodes().size(), [](TreeView& same, std::size_t node) {
            same.UserSelect(*same.Nodes().at(node));
        });
    }

  private:
    template <typename ControlClass>
    static ControlGesture::Way WayOn(std::function<bool(ControlClass&)> make) {
        return [make = std::move(make)](Control& same) {
            return make(dynamic_cast<ControlClass&>(same));
        };
    }
    template <typename ControlClass>
    void Add(const char* event, std::function<bool(ControlClass&)> make) {
        found.push_back({event, {WayOn(std::move(make))}});
    }
    void AddFire(const char* event) {
        Add<Control>(event, [event](Control& same) { return same.Fire(event); });
    }
    // A way for each number below `count`. What the kind does without a handler, too, is done.
    template <typename ControlClass>
    void AddEach(const char* event, std::size_t count, void (*make)(ControlClass&, std::size_t)) {
        found.push_back({event, {}});
        for (std::size_t i = 0; i < count; ++i) {
            found.back().ways.push_back(WayOn<ControlClass>([make, i](ControlClass& same) {
                make(same, i);
                return true;
            }));
        }
    }

    Typing type_;
};

// A row may be gone when its turn comes.
void GestureFinder::Visit(ListView& list) {
    // The last one is beside all rows.
    AddEach<ListView>("ItemClick", list.RowCount() + 1, [](ListView& same, std::size_t row) {
        same.UserSelect(row < same.RowCount() ? &same.Row(row) : nullptr);
    });
    if (list.CheckBoxes()) {
        AddEach<ListView>("ItemCheck", list.RowCount(), [](ListView& same, std::size_t row) {
            if (row >= same.RowCount()) return;
            same.UserCheck(same.Row(row), !same.Row(row).Checked());
        });
    }
    AddEach<ListView>("ColumnClick", list.Columns().size(), [](ListView& same, std::size_t column) {
        same.UserColumnClick(static_cast<int>(column) + 1);
    });
    AddEach<ListView>("DblClick", 1, [](ListView& same, std::size_t) { same.Fire("DblClick"); });
    AddEach<ListView>("MouseUp", 2, [](ListView& same, std::size_t which) {
        same.UserMouseUp(which == 0 ? MouseButton::Left : MouseButton::Right);
    });
}

}  // namespace

std::vector<ControlGesture> GesturesOf(Control& control, const Typing& type) {
    GestureFinder finder(type);
    control.Accept(finder);
    return std::move(finder.found);
}

void TickAllRows(ListView& list) {
    if (!list.CheckBoxes()) return;
    for (std::size_t i = 0; i < list.RowCount(); ++i) list.UserCheck(list.Row(i), true);
}

}  // namespace velkarix
