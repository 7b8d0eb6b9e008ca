// The simple controls of a form: labels, buttons, boxes, options, frames. Lists stand in
// forms/ListView.h.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Color.h"
#include "base/Picture.h"
#include "forms/Control.h"

namespace velkarix {

// Runs `handler` when `event` is the one that it is for. False when it isn't, or there is none.
bool FireEvent(std::string_view event, std::string_view wanted, const Handler& handler);

// Text as it stands: a label has no access key, and "&" is a letter in it as any other.
class Label : public Control {
  public:
    // A title stands in large type on the banner; a paragraph takes as many lines as it needs; a
    // status is one line of any length, which ends in dots where its place is too short.
    enum class Look { Plain, Title, Paragraph, Status };
    Label(std::string name, std::string text, Look look = Look::Plain);
    Look LabelLook() const { return look_; }
    void Accept(ControlVisitor& visitor) override;

  private:
    Look look_;
};

// A label that the user clicks, or reaches by Tab and presses Enter on.
class LinkLabel : public Control {
  public:
    LinkLabel(std::string name, std::string text, Handler onClick);
    bool Fire(std::string_view event) override;
    void Accept(ControlVisitor& visitor) override;

  private:
    Handler onClick_;
};

class Button : public Control {
  public:
    // A picture button shows its skin element, with text; a small one is one of a longer strip.
    enum class Look { Command, Picture, SmallPicture };
    Button(std::string name, std::string text, Handler onClick, Look look = Look::Command);
    Look ButtonLook() const { return look_; }
    // A picture button that stays down marks the page on view.
    bool Pressed() const { return pressed_; }
    void SetPressed(bool pressed);
    bool Fire(std::string_view event) override;
    void Accept(ControlVisitor& visitor) override;

  private:
    Look look_;
    Handler onClick_;
    bool pressed_ = false;
};

// Shows a picture of its own, or a stock picture that is told by name ("Software").
class PictureBox : public Control {
  public:
    // `text` says in words what the picture shows; `size` is its edge in pixels at 96 DPI.
    PictureBox(std::string name, std::string text, std::string stockPicture, int size);
    const std::string& StockPicture() const { return stockPicture_; }
    const std::optional<Picture>& OwnPicture() const { return picture_; }
    int PictureSize() const { return size_; }
    void SetPicture(Picture picture);
    void Accept(ControlVisitor& visitor) override;

  private:
    std::string stockPicture_;
    int size_;
    std::optional<Picture> picture_;
};

// A line of text, or several. Its content is Value(); Text() is its spoken name.
class TextBox : public Control {
  public:
    struct Shape {
        int widthInCharacters = 40;
        int lines = 1;
        bool readOnly = false;
    };
    // `onChange` hears of each change of the value, whoever makes it.
    TextBox(std::string name, std::string text, Shape shape, Handler onChange = {});
    const Shape& BoxShape() const { return shape_; }
    const std::string& Value() const { return value_; }
    // A value that it holds already is no change.
    void SetValue(std::string value);
    // The user typed: the value changes without a word to the view.
    void TakeInput(std::string value);
    // Copying and deleting what is selected in it.
    bool Uses(const KeyStroke& stroke) const override;
    void Accept(ControlVisitor& visitor) override;

  private:
    Shape shape_;
    std::string value_;
    Handler onChange_;
};

class CheckBox : public Control {
  public:
    // `onClick` hears of changes by the user.
    CheckBox(std::string name, std::string text, Handler onClick);
    bool Checked() const { return checked_; }
    void SetChecked(bool checked);
    // "Click": turns the mark round, then runs the handler.
    bool Fire(std::string_view event) override;
    void Accept(ControlVisitor& visitor) override;

  private:
    Handler onClick_;
    bool checked_ = false;
};

// A box filled with one colour. A double click, or Space or Enter on it, raises "DblClick".
class ColorBox : public Control {
  public:
    // `text` says in words what the colour is for.
    ColorBox(std::string name, std::string text, Handler onDoubleClick);
    Color BoxColor() const { return color_; }
    void SetBoxColor(Color color);
    bool Fire(std::string_view event) override;
    void Accept(ControlVisitor& visitor) override;

  private:
    Handler onDoubleClick_;
    Color color_ = 0;
};

class OptionGroup;

// One of a group of options.
class OptionButton : public Control {
  public:
    OptionButton(OptionGroup& group, int index, std::string name, std::string text);
    const OptionGroup& Group() const { return group_; }
    int Index() const { return index_; }
    bool Chosen() const;
    bool Fire(std::string_view event) override;
    void Accept(ControlVisitor& visitor) override;

  private:
    friend class OptionGroup;
    OptionGroup& group_;
    int index_;
};

// Options of which exactly one is chosen.
class OptionGroup {
  public:
    struct Entry {
        std::string name;
        std::string caption;
    };
    // `options` in the order of the indices from 0. `onClick` hears of choices by the user.
    OptionGroup(std::vector<Entry> options, int chosen, Handler onClick);
    // The options of an indexed group are named "group(0)" and so on.
    OptionGroup(const std::string& name, const std::vector<std::string>& captions, int chosen,
                Handler onClick);
    OptionButton& Option(int index) { return *options_.at(static_cast<std::size_t>(index)); }
    int Chosen() const { return chosen_; }
    void Choose(int index);  // by the program: no handler runs

  private:
    friend class OptionButton;
    int chosen_;
    Handler onClick_;
    std::vector<std::unique_ptr<OptionButton>> options_;
};

// A box with a caption around other controls.
class Frame : public Control {
  public:
    using Control::Control;
    void Accept(ControlVisitor& visitor) override;
};

// A plain area around other controls.
class Panel : public Control {
  public:
    // A drawer is as plain, but takes no room while it is hidden: what stands around it moves.
    enum class Look { Banner, Strip, Plain, Drawer };
    Panel(std::string name, std::string text, Look look);
    Look PanelLook() const { return look_; }
    bool TakesRoom() const override { return look_ != Look::Drawer || Visible(); }
    void Accept(ControlVisitor& visitor) override;

  private:
    Look look_;
};

// The place in the main window where the page on view stands.
class PageHost : public Control {
  public:
    using Control::Control;
    void Accept(ControlVisitor& visitor) override;
};

}  // namespace velkarix
