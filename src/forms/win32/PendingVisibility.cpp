#include "forms/win32/PendingVisibility.h"

#include <algorithm>
#include <utility>

#include "forms/win32/FormMessages.h"
#include "forms/win32/WindowTree.h"

namespace velkarix {

void PendingVisibility::Set(HWND window, bool shown) {
    Forget(window);
    changes_.push_back({window, shown});
    pending_.Add(*this);
}

void PendingVisibility::Forget(HWND window) {
    std::erase_if(changes_, [window](const Change& each) { return each.window == window; });
}

void PendingVisibility::Refresh() {
    const HWND focus = GetFocus();
    while (!changes_.empty()) {
        // The system takes windows of one parent at a time.
        const HWND parent = GetParent(changes_.front().window);
        const auto others = std::stable_partition(
            changes_.begin(), changes_.end(),
            [parent](const Change& each) { return GetParent(each.window) == parent; });
        std::vector<Change> siblings(changes_.begin(), others);
        changes_.erase(changes_.begin(), others);
        Apply(siblings);
        SendMessageA(parent, RearrangeMessage, 0, 0);
        const bool lost = std::any_of(siblings.begin(), siblings.end(), [&](const Change& each) {
            return each.window == focus && !each.shown;
        });
        if (lost) SetFocus(GetNextDlgTabItem(TopLevelOf(focus), focus, FALSE));
    }
}

void PendingVisibility::Apply(const std::vector<Change>& siblings) {
    constexpr UINT kept = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE;
    const auto flags = [](const Change& each) {
        return kept | (each.shown ? SWP_SHOWWINDOW : SWP_HIDEWINDOW);
    };
    HDWP together = BeginDeferWindowPos(static_cast<int>(siblings.size()));
    for (const Change& each : siblings) {
        if (together == nullptr) break;
        together = DeferWindowPos(together, each.window, nullptr, 0, 0, 0, 0, flags(each));
    }
    if (together != nullptr && EndDeferWindowPos(together) != FALSE) return;
    for (const Change& each : siblings) {
        SetWindowPos(each.window, nullptr, 0, 0, 0, 0, flags(each));
    }
}

}  // namespace velkarix
