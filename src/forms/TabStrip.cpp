#include "forms/TabStrip.h"

#include <utility>

#include "forms/ControlVisitor.h"

namespace velkarix {

TabStrip::TabStrip(std::string name, std::string text, std::vector<std::string> captions,
                   Handler onClick)
    : Control(std::move(name), std::move(text)),
      captions_(std::move(captions)),
      onClick_(std::move(onClick)) {}

void TabStrip::Select(int tab) {
    selected_ = tab;
    Notify(Aspect::Value);
}

void TabStrip::UserSelect(int tab) {
    selected_ = tab;
    Fire("Click");
}

bool TabStrip::Fire(std::string_view event) {
    return FireEvent(event, "Click", onClick_);
}

void TabStrip::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

}  // namespace velkarix
