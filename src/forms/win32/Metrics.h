// The sizes of controls and distances, from the dialog font and the machine's DPI.
#pragma once

#include <optional>

#include "forms/ControlVisitor.h"
#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/Layout.h"
#include "forms/win32/Dpi.h"
#include "forms/win32/Fonts.h"
#include "forms/win32/NativeMeasures.h"
#include "forms/win32/Spacing.h"

namespace velkarix {

class Metrics : public LayoutMetrics, private ControlVisitor {
  public:
    Metrics(const Dpi& dpi, const Fonts& fonts) : dpi_(dpi), fonts_(fonts) { Reload(); }
    // Fonts, screen or the system's own controls may have changed: forgets what is known of them.
    void Reload();

    Size PreferredSize(Control& control) override;
    Insets GroupInsets(Control& group) override;
    int Gap() override { return dpi_.Pixels(spacing_->gap); }

    // A length that holds as much text as it does at 96 DPI in the system's usual font.
    int InLetters(int at96) const;
    // Between the edges of a form and its layout.
    Insets FormMargins(FormKind kind);
    int PictureSize(Button::Look look) const;                           // on a picture button
    int MarkWidth() const { return dpi_.Pixels(spacing_->markWidth); }  // of the current button
    int SmallImage() const { return dpi_.Pixels(16); }    // edge of an image beside a text
    Size IconSpacing() const;                             // of large icons with their names
    int TreeIndent() const { return dpi_.Pixels(19); }    // of a node, from the one it belongs to
    int BannerLine() const { return dpi_.Pixels(3); }     // along the lower edge of the banner
    int ButtonPadding() const { return dpi_.Pixels(2); }  // around icon and text of such a button

  private:
    Size PictureButton(const Button& control) const;
    Size MarkedCaption(const Control& control) const;
    const NativeMeasures& Natives();
    void Visit(Button& control) override;
    void Visit(CheckBox& control) override;
    void Visit(ColorBox& control) override;
    void Visit(ComboBox& control) override;
    void Visit(Frame& control) override;
    void Visit(Label& control) override;
    void Visit(LinkLabel& control) override;
    void Visit(ListView& control) override;
    void Visit(OptionButton& control) override;
    void Visit(PageHost& control) override;
    void Visit(Panel& control) override;
    void Visit(PictureBox& control) override;
    void Visit(ProgressBar& control) override;
    void Visit(TabStrip& control) override;
    void Visit(TextBox& control) override;
    void Visit(TreeView& control) override;

    const Dpi& dpi_;
    const Fonts& fonts_;
    int letter_ = 0;  // mean width of one in the dialog font
    const Spacing* spacing_ = nullptr;
    std::optional<NativeMeasures> natives_;  // once they were needed
    Size size_;                              // what the last visit found
    Insets insets_;                          // likewise, of a group
};

}  // namespace velkarix
