// One view of the browser page: the controls that its frame holds, and how they stand there.
#pragma once

#include <vector>

#include "forms/Control.h"
#include "forms/Layout.h"

namespace velkarix {

class BrowserView {
  public:
    BrowserView() = default;
    virtual ~BrowserView() = default;
    BrowserView(const BrowserView&) = delete;
    BrowserView& operator=(const BrowserView&) = delete;

    virtual std::vector<Control*> Controls() = 0;  // in tab order
    virtual Layout ViewLayout() = 0;
};

}  // namespace velkarix
