#include "Input.h"

#include <algorithm>
#include <vector>

#include "Wait.h"

namespace velkarix::e2e {

namespace {

INPUT KeyInput(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    return input;
}

// A coordinate on a screen of `size` pixels in the parts that mouse input is measured in.
LONG Normalised(LONG coordinate, int size) {
    return (coordinate * 65536 + size - 1) / size;
}

// With its place: a movement of its own could be overtaken by the echo of an earlier one.
INPUT MouseInput(POINT place, DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dx = Normalised(place.x, GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = Normalised(place.y, GetSystemMetrics(SM_CYSCREEN));
    input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | flags;
    return input;
}

void Put(std::vector<INPUT>& inputs) {
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

}  // namespace

void PressKey(WORD key, std::initializer_list<WORD> held) {
    std::vector<INPUT> inputs;
    for (const WORD each : held) inputs.push_back(KeyInput(each, 0));
    inputs.push_back(KeyInput(key, 0));
    inputs.push_back(KeyInput(key, KEYEVENTF_KEYUP));
    for (const WORD each : held) inputs.push_back(KeyInput(each, KEYEVENTF_KEYUP));
    Put(inputs);
}

void MoveTo(POINT place) {
    std::vector<INPUT> inputs = {MouseInput(place, 0)};
    Put(inputs);
}

void ClickAt(POINT place, Mouse button) {
    const bool left = button == Mouse::Left;
    std::vector<INPUT> inputs = {
        MouseInput(place, left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN),
        MouseInput(place, left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP)};
    Put(inputs);
}

void DoubleClickAt(POINT place) {
    ClickAt(place);
    ClickAt(place);
}

POINT Inside(const RECT& area) {
    const LONG width = std::min<LONG>(area.right - area.left, 60);
    return {area.left + width / 2, (area.top + area.bottom) / 2};
}

bool BringToFront(const Window& window) {
    return WaitUntil([&] {
        SetForegroundWindow(window.Handle());
        return GetForegroundWindow() == window.Handle();
    });
}

}  // namespace velkarix::e2e
