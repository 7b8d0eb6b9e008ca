#include "FolderWindow.h"

#include <algorithm>

#include "Wait.h"
#include "Window.h"

namespace velkarix::e2e {

bool FolderIsShown(const std::string& name) {
    const Window explorer = WaitFor([] {
        const std::vector<Window> windows = AllTopWindows();
        const auto found = std::ranges::find_if(windows, [](const Window& window) {
            return window.Visible() && window.Class() == "ExplorerWClass";
        });
        return found == windows.end() ? Window() : *found;
    });
    // Its title is the folder's name once it has got there.
    const bool shown = WaitUntil([&] { return explorer.Text() == name; });
    explorer.Post(WM_CLOSE);
    return WaitUntil([&] { return !explorer; }) && shown;
}

}  // namespace velkarix::e2e
