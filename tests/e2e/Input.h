// The mouse and the keyboard, used as a user would: what is on screen and in front gets it.
#pragma once

#include <windows.h>

#include <initializer_list>

#include "Window.h"

namespace velkarix::e2e {

// Presses and releases a key; the others are held down meanwhile.
void PressKey(WORD key, std::initializer_list<WORD> held = {});

// Moves the mouse there and leaves it at rest.
void MoveTo(POINT place);
enum class Mouse { Left, Right };
void ClickAt(POINT place, Mouse button = Mouse::Left);
void DoubleClickAt(POINT place);

// The middle of an area, somewhat to the left where it is wide, so that it is on screen.
POINT Inside(const RECT& area);

// Brings a window of another program to the front. False when it doesn't get there.
bool BringToFront(const Window& window);

}  // namespace velkarix::e2e
