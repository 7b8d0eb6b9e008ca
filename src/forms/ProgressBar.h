// A bar that shows how much of a piece of work is done.
#pragma once

#include <string>

#include "forms/Control.h"

namespace velkarix {

class ProgressBar : public Control {
  public:
    // `text` is the bar's spoken name.
    using Control::Control;
    int Percent() const { return percent_; }
    void SetPercent(int percent);  // 0 to 100
    void Accept(ControlVisitor& visitor) override;

  private:
    int percent_ = 0;
};

}  // namespace velkarix
