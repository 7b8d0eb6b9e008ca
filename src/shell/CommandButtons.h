// The buttons of a page's commands, made of a table.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "forms/Controls.h"
#include "forms/Form.h"
#include "shell/Skin.h"

namespace velkarix {

template <typename Page>
struct CommandButton {
    const char* name;
    const char* caption;
    void (Page::*command)();
};

class CommandButtons {
  public:
    // A button for each entry, in the table's order, behind what is in `controls` and `layout`.
    // The page outlives them.
    template <typename Page>
    void Make(Page& page, std::span<const CommandButton<Page>> table,
              std::vector<Control*>& controls, Layout& layout) {
        for (const CommandButton<Page>& entry : table) {
            buttons_.push_back(
                std::make_unique<Button>(entry.name, entry.caption,
                                         [&page, command = entry.command] { (page.*command)(); }));
            controls.push_back(buttons_.back().get());
            layout.children.push_back(Item(*buttons_.back()));
        }
    }

    void ApplySkin() {
        for (const auto& button : buttons_) SkinControl(*button, "button");
    }

  private:
    std::vector<std::unique_ptr<Button>> buttons_;
};

}  // namespace velkarix
