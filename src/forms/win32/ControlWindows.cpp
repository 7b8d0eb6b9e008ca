#include "forms/win32/ControlWindows.h"

#include "forms/ControlVisitor.h"
#include "forms/win32/AreaWindows.h"
#include "forms/win32/ButtonWindows.h"
#include "forms/win32/CheckBoxWindow.h"
#include "forms/win32/ColorBoxWindow.h"
#include "forms/win32/ComboBoxWindow.h"
#include "forms/win32/LinkWindow.h"
#include "forms/win32/ListViewWindow.h"
#include "forms/win32/PictureButtonWindow.h"
#include "forms/win32/ProgressBarWindow.h"
#include "forms/win32/StaticWindows.h"
#include "forms/win32/StatusWindow.h"
#include "forms/win32/TabStripWindow.h"
#include "forms/win32/TextBoxWindow.h"
#include "forms/win32/TreeViewWindow.h"

namespace velkarix {

namespace {

class Maker : public ControlVisitor {
  public:
    Maker(DesktopContext& context, const ControlPlace& place) : context_(context), place_(place) {}
    std::unique_ptr<ControlWindow> Made() { return std::move(made_); }

    void Visit(Button& control) override {
        if (control.ButtonLook() == Button::Look::Command) {
            Make<CommandButtonWindow>(control);
        } else {
            Make<PictureButtonWindow>(control);
        }
    }
    void Visit(CheckBox& control) override { Make<CheckBoxWindow>(control); }
    void Visit(ColorBox& control) override { Make<ColorBoxWindow>(control); }
    void Visit(ComboBox& control) override { Make<ComboBoxWindow>(control); }
    void Visit(Frame& control) override { Make<FrameWindow>(control); }
    void Visit(Label& control) override {
        if (control.LabelLook() == Label::Look::Status) {
            Make<StatusWindow>(control);
        } else {
            Make<LabelWindow>(control);
        }
    }
    void Visit(LinkLabel& control) override { Make<LinkWindow>(control); }
    void Visit(ListView& control) override { Make<ListViewWindow>(control); }
    void Visit(OptionButton& control) override { Make<OptionWindow>(control); }
    void Visit(PageHost& control) override { Make<PageHostWindow>(control); }
    void Visit(Panel& control) override { Make<PanelWindow>(control); }
    void Visit(PictureBox& control) override { Make<PictureWindow>(control); }
    void Visit(ProgressBar& control) override { Make<ProgressBarWindow>(control); }
    void Visit(TabStrip& control) override { Make<TabStripWindow>(control); }
    void Visit(TextBox& control) override { Make<TextBoxWindow>(control); }
    void Visit(TreeView& control) override { Make<TreeViewWindow>(control); }

  private:
    template <typename Window, typename Model>
    void Make(Model& control) {
        made_ = std::make_unique<Window>(context_, control, place_);
    }

    DesktopContext& context_;
    const ControlPlace& place_;
    std::unique_ptr<ControlWindow> made_;
};

}  // namespace

std::unique_ptr<ControlWindow> MakeControlWindow(DesktopContext& context, Control& control,
                                                 const ControlPlace& place) {
    Maker maker(context, place);
    control.Accept(maker);
    return maker.Made();
}

}  // namespace velkarix
