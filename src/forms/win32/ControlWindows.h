// Makes the native window of any control.
#pragma once

#include <memory>

#include "forms/win32/ControlWindow.h"

namespace velkarix {

std::unique_ptr<ControlWindow> MakeControlWindow(DesktopContext& context, Control& control,
                                                 const ControlPlace& place);

}  // namespace velkarix
