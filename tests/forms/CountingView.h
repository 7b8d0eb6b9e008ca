// A view that only counts what it is told.
#pragma once

#include <map>

#include "forms/Control.h"

namespace velkarix {

class CountingView : public ControlView {
  public:
    void Changed(Aspect aspect) override { ++times_[aspect]; }
    int Times(Aspect aspect) { return times_[aspect]; }

  private:
    std::map<Aspect, int> times_;
};

}  // namespace velkarix
