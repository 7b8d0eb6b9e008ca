// What the windows of the forms tell each other.
#pragma once

#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

// Posted to the application window: destroyed forms may be able to go now.
inline constexpr UINT EndFormsMessage = WM_APP;
// Sent to a form's window: a control, the second argument, got the focus and wants to be seen. A
// page passes it on to the form that it stands in.
inline constexpr UINT RevealMessage = WM_APP + 1;
// Sent to a form's window: what its controls are placed by has changed, or which are on view.
inline constexpr UINT RearrangeMessage = WM_APP + 2;

}  // namespace velkarix
