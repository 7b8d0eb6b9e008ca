#include "forms/Form.h"

#include <algorithm>
#include <utility>

namespace velkarix {

namespace {

void StandInside(const Layout& layout, Control* around) {
    if (layout.control != nullptr) {
        layout.control->StandIn(around);
        around = layout.control;
    }
    for (const Layout& child : layout.children) StandInside(child, around);
}

// Whether `control` is `around` or stands in it; null holds everything.
bool IsWithin(const Control* control, const Control* around) {
    if (around == nullptr) return true;
    while (control != nullptr && control != around) control = control->Around();
    return control != nullptr;
}

}  // namespace

Form::Form(std::string name, std::string caption, FormKind kind)
    : name_(std::move(name)), caption_(std::move(caption)), kind_(kind) {}

void Form::SetCaption(std::string caption) {
    caption_ = std::move(caption);
    if (view_ != nullptr) view_->CaptionChanged();
}

Control* Form::Find(std::string_view name) const {
    const auto found =
        std::find_if(controls_.begin(), controls_.end(),
                     [&](const Control* control) { return control->Name() == name; });
    return found == controls_.end() ? nullptr : *found;
}

std::pair<Control*, std::string_view> Form::Target(std::string_view handler) const {
    const std::size_t mark = handler.rfind('_');
    if (mark == std::string_view::npos) return {nullptr, {}};
    return {Find(handler.substr(0, mark)), handler.substr(mark + 1)};
}

bool Form::Run(std::string_view handler) {
    const auto [control, event] = Target(handler);
    return control != nullptr && control->Fire(event);
}

bool Form::RaiseKey(const KeyStroke& stroke, const Control* focus) {
    if (focus != nullptr && focus->Uses(stroke)) return false;
    for (const Accelerator& accelerator : accelerators_) {
        if (accelerator.stroke != stroke || !IsWithin(focus, accelerator.within)) continue;
        // A copy, since the command may unload this form.
        const std::string handler = accelerator.handler;
        if (const Handler command = accelerator.command) {
            command();
            return true;
        }
        const auto [target, event] = Target(handler);
        if (target != nullptr && target->Shown()) return target->Raise(event);
    }
    return false;
}

void Form::SetLayout(Layout layout) {
    layout_ = std::move(layout);
    StandInside(layout_, nullptr);
}

void Form::Close() {
    closing_ = true;
    if (view_ != nullptr) view_->CloseAsked();
}

void Form::SetButtons(Button* defaultButton, Button* cancelButton) {
    defaultButton_ = defaultButton;
    cancelButton_ = cancelButton;
}

}  // namespace velkarix
