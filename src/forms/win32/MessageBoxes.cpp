#include "forms/win32/MessageBoxes.h"

namespace velkarix {

namespace {

UINT IconFlag(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::None:
            return 0;
        case MessageIcon::Critical:
            return MB_ICONHAND;
        case MessageIcon::Question:
            return MB_ICONQUESTION;
        case MessageIcon::Information:
            break;
    }
    return MB_ICONINFORMATION;
}

}  // namespace

MessageAnswer ShowMessageBox(HWND owner, const Message& message) {
    UINT flags = IconFlag(message.icon) | MB_SETFOREGROUND;
    flags |= message.buttons == MessageButtons::YesNo ? MB_YESNO : MB_OK;
    if (owner == nullptr) flags |= MB_TASKMODAL;
    const int pressed = MessageBoxA(owner, message.text.c_str(), message.title.c_str(), flags);
    if (message.buttons == MessageButtons::Ok) return MessageAnswer::Ok;
    return pressed == IDYES ? MessageAnswer::Yes : MessageAnswer::No;
}

}  // namespace velkarix
