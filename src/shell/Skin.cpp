#include "shell/Skin.h"

namespace velkarix {

void SkinWindow(Form& form, const std::string& element) {
    form.SetSkinElement(element);
}

void SkinControl(Control& control, const std::string& element) {
    control.SetSkinElement(element);
}

}  // namespace velkarix
