// Stands in the place of a view that isn't built yet, and says so.
#pragma once

#include <string>
#include <vector>

#include "browser/BrowserView.h"
#include "forms/Controls.h"

namespace velkarix {

class ViewToCome : public BrowserView {
  public:
    explicit ViewToCome(const std::string& name)
        : label_(name,
                 "This view is not built yet. It comes with a later version of the program.") {}
    std::vector<Control*> Controls() override { return {&label_}; }
    Layout ViewLayout() override { return Column({Item(label_), Space()}); }

  private:
    Label label_;
};

}  // namespace velkarix
