#include "fuzzing/Gestures.h"

#include "forms/ComboBox.h"
#include "forms/ControlVisitor.h"
#include "forms/Controls.h"
#include "forms/ListView.h"
#include "forms/TabStrip.h"
#include "forms/TreeView.h"

namespace velkarix {

namespace {

class Hand : public ControlVisitor {
  public:
    explicit Hand(FuzzInput& input) : input_(input) {}

    void Visit(Button& control) override { control.Raise("Click"); }
    void Visit(CheckBox& control) override { control.Raise("Click"); }
    void Visit(ColorBox& control) override { control.Raise("DblClick"); }
    void Visit(LinkLabel& control) override { control.Raise("Click"); }
    void Visit(OptionButton& control) override { control.Raise("Click"); }
    void Visit(ComboBox& control) override {
        control.UserSelect(static_cast<int>(input_.Below(control.Entries().size())));
    }
    void Visit(TabStrip& control) override {
        control.UserSelect(1 + static_cast<int>(input_.Below(control.Captions().size())));
    }
    void Visit(TextBox& control) override {
        if (control.Enabled() && !control.BoxShape().readOnly) control.TakeInput(input_.Text());
    }
    void Visit(TreeView& control) override {
        control.UserSelect(*control.Nodes()[input_.Below(control.Nodes().size())]);
    }
    void Visit(ListView& control) override {
        const std::size_t gesture = input_.Below(6);
        if (gesture == 0) return control.UserColumnClick(TakeColumn(control));
        if (control.RowCount() == 0) return;
        ListRow& row = control.Row(input_.Byte() % control.RowCount());
        if (gesture == 1) return control.UserCheck(row, input_.Flag());
        if (gesture == 2) return TickAll(control);
        control.UserSelect(&row);
        if (gesture == 3) control.Raise("DblClick");
        if (gesture == 4) control.UserMouseUp(MouseButton::Right);
    }
    void Visit(Frame&) override {}
    void Visit(Label&) override {}
    void Visit(PageHost&) override {}
    void Visit(Panel&) override {}
    void Visit(PictureBox&) override {}
    void Visit(ProgressBar&) override {}

  private:
    int TakeColumn(ListView& list) {
        return 1 + static_cast<int>(input_.Below(list.Columns().size()));
    }
    static void TickAll(ListView& list) {
        for (std::size_t i = 0; i < list.RowCount(); ++i) list.UserCheck(list.Row(i), true);
    }

    FuzzInput& input_;
};

}  // namespace

void MakeGesture(FuzzInput& input, Form& form) {
    Hand hand(input);
    form.Controls()[input.Byte() % form.Controls().size()]->Accept(hand);
}

}  // namespace velkarix
