// Windows that are to be shown or hidden. They wait for each other, so that a view that takes the
// place of another comes and goes in one act and not control by control.
#pragma once

#include <vector>

#include "forms/win32/PendingRefreshes.h"
#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

class PendingVisibility : public Refreshable {
  public:
    explicit PendingVisibility(PendingRefreshes& pending) : pending_(pending) {}
    void Set(HWND window, bool shown);
    // The window no longer belongs to a control.
    void Forget(HWND window);
    // Shows and hides all that wait. The keyboard focus leaves what is hidden.
    void Refresh() override;

  private:
    struct Change {
        HWND window;
        bool shown;
    };
    static void Apply(const std::vector<Change>& siblings);

    PendingRefreshes& pending_;
    std::vector<Change> changes_;
};

}  // namespace velkarix
