#include "forms/win32/ColorDialog.h"

#include <commdlg.h>

#include "forms/win32/CommonDialogs.h"

namespace velkarix {

ColorDialog::ColorDialog() {
    mixed_.fill(RGB(255, 255, 255));
}

std::optional<Color> ColorDialog::Ask(HWND owner, Color present) {
    const auto call = CommonDialogs.Find<decltype(&::ChooseColorA)>("ChooseColorA");
    CHOOSECOLORA dialog{};
    dialog.lStructSize = sizeof(dialog);
    dialog.hwndOwner = owner;
    dialog.rgbResult = present;
    dialog.lpCustColors = mixed_.data();
    dialog.Flags = CC_RGBINIT | CC_FULLOPEN;
    if (call == nullptr || call(&dialog) == FALSE) return std::nullopt;
    return dialog.rgbResult;
}

}  // namespace velkarix
