#include "forms/Control.h"

#include <utility>

namespace velkarix {

Control::Control(std::string name, std::string text)
    : name_(std::move(name)), text_(std::move(text)) {}

void Control::SetText(std::string text) {
    text_ = std::move(text);
    Notify(Aspect::Text);
}

void Control::SetEnabled(bool enabled) {
    enabled_ = enabled;
    Notify(Aspect::Enabled);
}

void Control::SetVisible(bool visible) {
    visible_ = visible;
    NotifyVisible();
}

void Control::StandIn(Control* around) {
    around_ = around;
    if (around != nullptr) around->inside_.push_back(this);
}

void Control::NotifyVisible() const {
    Notify(Aspect::Visible);
    for (const Control* each : inside_) each->NotifyVisible();
}

void Control::SetSkinElement(std::string element) {
    skinElement_ = std::move(element);
    Notify(Aspect::Look);
}

bool Control::Fire(std::string_view) {
    return false;
}

void Control::Notify(Aspect aspect) const {
    if (view_ != nullptr) view_->Changed(aspect);
}

}  // namespace velkarix
