#include "forms/ComboBox.h"

#include <algorithm>
#include <utility>

#include "forms/ControlVisitor.h"

namespace velkarix {

ComboBox::ComboBox(std::string name, std::string text, std::vector<std::string> entries,
                   Handler onClick)
    : Control(std::move(name), std::move(text)),
      entries_(std::move(entries)),
      onClick_(std::move(onClick)) {}

std::string ComboBox::SelectedText() const {
    return selected_ == NoSelection ? std::string()
                                    : entries_.at(static_cast<std::size_t>(selected_));
}

void ComboBox::Select(int position) {
    selected_ = position;
    Notify(Aspect::Value);
}

void ComboBox::SelectText(std::string_view entry) {
    const auto found = std::find(entries_.begin(), entries_.end(), entry);
    Select(found == entries_.end() ? NoSelection : static_cast<int>(found - entries_.begin()));
}

void ComboBox::UserSelect(int position) {
    selected_ = position;
    Fire("Click");
}

bool ComboBox::Fire(std::string_view event) {
    return FireEvent(event, "Click", onClick_);
}

void ComboBox::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

}  // namespace velkarix
