// A drop-down list: shows one of its entries, or none, and takes no text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/Controls.h"

namespace velkarix {

class ComboBox : public Control {
  public:
    static constexpr int NoSelection = -1;

    // `text` is the box's spoken name; `entries` are in order, from position 0. `onClick` hears of
    // choices by the user.
    ComboBox(std::string name, std::string text, std::vector<std::string> entries, Handler onClick);

    const std::vector<std::string>& Entries() const { return entries_; }
    int Selected() const { return selected_; }
    // The entry that is selected; empty when none is.
    std::string SelectedText() const;
    void Select(int position);                // by the program: no handler runs
    void SelectText(std::string_view entry);  // the same; an unknown entry is no selection
    // The user's gesture: "Click" follows, also on the entry that is selected already.
    void UserSelect(int position);
    bool Fire(std::string_view event) override;
    void Accept(ControlVisitor& visitor) override;

  private:
    std::vector<std::string> entries_;
    Handler onClick_;
    int selected_ = NoSelection;
};

}  // namespace velkarix
