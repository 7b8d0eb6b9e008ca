// Tells the kinds of controls apart, for whoever realises or measures them.
#pragma once

namespace velkarix {

class Button;
class CheckBox;
class ColorBox;
class ComboBox;
class Frame;
class Label;
class LinkLabel;
class ListView;
class OptionButton;
class PageHost;
class Panel;
class PictureBox;
class ProgressBar;
class TabStrip;
class TextBox;
class TreeView;

class ControlVisitor {
  public:
    virtual ~ControlVisitor() = default;
    virtual void Visit(Button& control) = 0;
    virtual void Visit(CheckBox& control) = 0;
    virtual void Visit(ColorBox& control) = 0;
    virtual void Visit(ComboBox& control) = 0;
    virtual void Visit(Frame& control) = 0;
    virtual void Visit(Label& control) = 0;
    virtual void Visit(LinkLabel& control) = 0;
    virtual void Visit(ListView& control) = 0;
    virtual void Visit(OptionButton& control) = 0;
    virtual void Visit(PageHost& control) = 0;
    virtual void Visit(Panel& control) = 0;
    virtual void Visit(PictureBox& control) = 0;
    virtual void Visit(ProgressBar& control) = 0;
    virtual void Visit(TabStrip& control) = 0;
    virtual void Visit(TextBox& control) = 0;
    virtual void Visit(TreeView& control) = 0;
};

}  // namespace velkarix
