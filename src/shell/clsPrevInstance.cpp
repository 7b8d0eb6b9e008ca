#include "shell/clsPrevInstance.h"

#include <cstdint>

namespace velkarix {

void clsPrevInstance::ShowApp(const std::string& title) {
    constexpr std::uint32_t PreviousInOrder = 3;  // GW_HWNDPREV
    constexpr int Show = 5;                       // SW_SHOW

    // This instance's own hidden window must not be found.
    desktop_.SetApplicationTitle("Application is already runnning");
    const WindowHandle application = windows_.FindWindowA(ApplicationWindowClass, title);
    if (application == 0) return;
    // The hidden window owns the main window, which so stands just before it in the order.
    const WindowHandle main = windows_.GetWindow(application, PreviousInOrder);
    windows_.ShowWindow(main, Show);
    windows_.OpenIcon(main);
    windows_.SetForegroundWindow(main);
}

}  // namespace velkarix
