// A row of tabs above an area that other controls stand in. Which of them is visible for which tab
// is the form's decision.
#pragma once

#include <string>
#include <vector>

#include "forms/Controls.h"

namespace velkarix {

class TabStrip : public Control {
  public:
    // `text` is the strip's spoken name; `captions` are those of the tabs, in order. The first is
    // selected. `onClick` hears of tabs that the user selects.
    TabStrip(std::string name, std::string text, std::vector<std::string> captions,
             Handler onClick);

    const std::vector<std::string>& Captions() const { return captions_; }
    int Selected() const { return selected_; }  // from 1
    void Select(int tab);                       // by the program: no handler runs
    // The user's gesture: "Click" follows, also on the tab that is selected already.
    void UserSelect(int tab);
    bool Fire(std::string_view event) override;
    void Accept(ControlVisitor& visitor) override;

  private:
    std::vector<std::string> captions_;
    Handler onClick_;
    int selected_ = 1;
};

}  // namespace velkarix
