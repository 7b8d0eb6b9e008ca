// The message boxes that the program asks its user with.
#pragma once

#include "forms/Desktop.h"
#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

// `owner` is disabled meanwhile; with a null owner, all windows of the program are.
MessageAnswer ShowMessageBox(HWND owner, const Message& message);

}  // namespace velkarix
