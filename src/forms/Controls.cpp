#include "forms/Controls.h"

#include <utility>

#include "forms/ControlVisitor.h"

namespace velkarix {

bool FireEvent(std::string_view event, std::string_view wanted, const Handler& handler) {
    if (event != wanted || !handler) return false;
    // A copy, since the handler may unload the form that the control stands on.
    const Handler running = handler;
    running();
    return true;
}

Label::Label(std::string name, std::string text, Look look)
    : Control(std::move(name), std::move(text)), look_(look) {}

void Label::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

LinkLabel::LinkLabel(std::string name, std::string text, Handler onClick)
    : Control(std::move(name), std::move(text)), onClick_(std::move(onClick)) {}

bool LinkLabel::Fire(std::string_view event) {
    return FireEvent(event, "Click", onClick_);
}

void LinkLabel::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

Button::Button(std::string name, std::string text, Handler onClick, Look look)
    : Control(std::move(name), std::move(text)), look_(look), onClick_(std::move(onClick)) {}

void Button::SetPressed(bool pressed) {
    pressed_ = pressed;
    Notify(Aspect::Look);
}

bool Button::Fire(std::string_view event) {
    return FireEvent(event, "Click", onClick_);
}

void Button::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

PictureBox::PictureBox(std::string name, std::string text, std::string stockPicture, int size)
    : Control(std::move(name), std::move(text)),
      stockPicture_(std::move(stockPicture)),
      size_(size) {}

void PictureBox::SetPicture(Picture picture) {
    picture_ = std::move(picture);
    Notify(Aspect::Look);
}

void PictureBox::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

TextBox::TextBox(std::string name, std::string text, Shape shape, Handler onChange)
    : Control(std::move(name), std::move(text)), shape_(shape), onChange_(std::move(onChange)) {}

void TextBox::SetValue(std::string value) {
    if (value == value_) return;
    value_ = std::move(value);
    Notify(Aspect::Value);
    if (onChange_) onChange_();
}

void TextBox::TakeInput(std::string value) {
    if (value == value_) return;
    value_ = std::move(value);
    if (onChange_) onChange_();
}

bool TextBox::Uses(const KeyStroke& stroke) const {
    return stroke == KeyStroke{Key::C, true} || stroke.key == Key::Delete;
}

void TextBox::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

CheckBox::CheckBox(std::string name, std::string text, Handler onClick)
    : Control(std::move(name), std::move(text)), onClick_(std::move(onClick)) {}

void CheckBox::SetChecked(bool checked) {
    checked_ = checked;
    Notify(Aspect::Value);
}

bool CheckBox::Fire(std::string_view event) {
    if (event != "Click") return false;
    SetChecked(!checked_);
    return FireEvent(event, "Click", onClick_);
}

void CheckBox::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

ColorBox::ColorBox(std::string name, std::string text, Handler onDoubleClick)
    : Control(std::move(name), std::move(text)), onDoubleClick_(std::move(onDoubleClick)) {}

void ColorBox::SetBoxColor(Color color) {
    color_ = color;
    Notify(Aspect::Look);
}

bool ColorBox::Fire(std::string_view event) {
    return FireEvent(event, "DblClick", onDoubleClick_);
}

void ColorBox::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

OptionButton::OptionButton(OptionGroup& group, int index, std::string name, std::string text)
    : Control(std::move(name), std::move(text)), group_(group), index_(index) {}

bool OptionButton::Chosen() const {
    return group_.Chosen() == index_;
}

bool OptionButton::Fire(std::string_view event) {
    if (event != "Click") return false;
    group_.Choose(index_);
    return FireEvent(event, "Click", group_.onClick_);
}

void OptionButton::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

namespace {

std::vector<OptionGroup::Entry> IndexedOptions(const std::string& group,
                                               const std::vector<std::string>& captions) {
    std::vector<OptionGroup::Entry> options;
    for (std::size_t i = 0; i < captions.size(); ++i) {
        options.push_back({group + "(" + std::to_string(i) + ")", captions[i]});
    }
    return options;
}

}  // namespace

OptionGroup::OptionGroup(const std::string& name, const std::vector<std::string>& captions,
                         int chosen, Handler onClick)
    : OptionGroup(IndexedOptions(name, captions), chosen, std::move(onClick)) {}

OptionGroup::OptionGroup(std::vector<Entry> options, int chosen, Handler onClick)
    : chosen_(chosen), onClick_(std::move(onClick)) {
    for (Entry& option : options) {
        const int index = static_cast<int>(options_.size());
        options_.push_back(std::make_unique<OptionButton>(*this, index, std::move(option.name),
                                                          std::move(option.caption)));
    }
}

void OptionGroup::Choose(int index) {
    chosen_ = index;
    for (const auto& option : options_) option->Notify(Aspect::Value);
}

void Frame::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

Panel::Panel(std::string name, std::string text, Look look)
    : Control(std::move(name), std::move(text)), look_(look) {}

void Panel::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

void PageHost::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

}  // namespace velkarix
