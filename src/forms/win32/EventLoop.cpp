#include "forms/win32/EventLoop.h"

#include "forms/win32/FormKeys.h"

namespace velkarix {

void EventLoop::Run(const std::function<bool()>& over) {
    context_.pending.Run();
    MSG message{};
    while (!quit_ && !over()) {
        if (GetMessageA(&message, nullptr, 0, 0) > 0) {
            Serve(message);
        } else {
            quit_ = true;  // WM_QUIT, posted by somebody else
        }
    }
}

void EventLoop::RunWaiting() {
    context_.pending.Run();
    MSG message{};
    while (!quit_ && PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        if (message.message == WM_QUIT) {
            quit_ = true;
        } else {
            Serve(message);
        }
    }
}

// What a key runs is under way as what a message runs is: what waits for its end waits.
bool EventLoop::ServeKeys(MSG& message) {
    const ProcedureScope scope(context_);
    return ServeFormKeys(forms_, message);
}

void EventLoop::Serve(MSG& message) {
    if (!ServeKeys(message)) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    context_.pending.Run();
}

void EventLoop::Quit() {
    quit_ = true;
    // A loop that waits for a message has to look up.
    PostMessageA(context_.applicationWindow, WM_NULL, 0, 0);
}

}  // namespace velkarix
