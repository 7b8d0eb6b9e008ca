#include "shell/Skin.h"

namespace velkarix {

void SkinWindow(Form& form) {
    form.SetSkinElement("window");
}

void SkinControl(Control& control, const std::string& element) {
    control.SetSkinElement(element);
}

}  // namespace velkarix
