#include "forms/win32/FormKeys.h"

#include <optional>

#include "forms/Controls.h"
#include "forms/TabStrip.h"
#include "forms/win32/WindowTree.h"

namespace velkarix {

namespace {

bool IsDown(int key) {
    return GetKeyState(key) < 0;
}

std::optional<Key> KeyOf(WPARAM code) {
    struct Pair {
        WPARAM code;
        Key key;
    };
    static constexpr Pair pairs[] = {
        {'C', Key::C},
        {'F', Key::F},
        {'P', Key::P},
        {'1', Key::Digit1},
        {'2', Key::Digit2},
        {'3', Key::Digit3},
        {'4', Key::Digit4},
        {'5', Key::Digit5},
        {'6', Key::Digit6},
        {VK_RETURN, Key::Enter},
        {VK_ESCAPE, Key::Escape},
        {VK_DELETE, Key::Delete},
        {VK_F3, Key::F3},
        {VK_F5, Key::F5},
    };
    for (const Pair& pair : pairs) {
        if (pair.code == code) return pair.key;
    }
    return std::nullopt;
}

// The page on view is asked first, then the form around it.
bool RaiseAccelerator(FormWindow& form, FormWindow* page, const MSG& message) {
    const std::optional<Key> key = KeyOf(message.wParam);
    if (!key || IsDown(VK_MENU)) return false;
    const KeyStroke stroke{*key, IsDown(VK_CONTROL), IsDown(VK_SHIFT)};
    const ControlWindow* window = ControlWindow::From(message.hwnd);
    const Control* focus = window != nullptr ? &window->Model() : nullptr;
    // A command that was given has used the key up; the page's may have ended the page.
    return (page != nullptr && page->Model().RaiseKey(stroke, focus)) ||
           form.Model().RaiseKey(stroke, focus);
}

bool PressDefaultButton(const FormWindow* form) {
    Button* button = form != nullptr ? form->Model().DefaultButton() : nullptr;
    return button != nullptr && button->Shown() && button->Raise("Click");
}

// The focused control comes first, then the default button of the page, then that of the form.
// Where there is none of these, Enter means nothing.
void OnEnter(const FormWindow& form, const FormWindow* page, HWND focus) {
    ControlWindow* control = focus != nullptr ? ControlWindow::From(focus) : nullptr;
    if (control != nullptr && control->OnEnter()) return;
    if (!PressDefaultButton(page)) PressDefaultButton(&form);
}

// The form's strip of tabs that is nearest around the control with the focus, or is that control
// itself; else the form's first on view. Null when there is none.
TabStrip* StripFor(const Form& form, HWND focus) {
    const ControlWindow* window = focus != nullptr ? ControlWindow::From(focus) : nullptr;
    Control* control = window != nullptr ? &window->Model() : nullptr;
    for (; control != nullptr; control = control->Around()) {
        if (auto* strip = dynamic_cast<TabStrip*>(control)) return strip;
    }
    for (Control* each : form.Controls()) {
        auto* strip = dynamic_cast<TabStrip*>(each);
        if (strip != nullptr && strip->Shown()) return strip;
    }
    return nullptr;
}

// Ctrl+Tab leads to the next tab, with Shift to the one before; the first follows the last.
bool TurnTabs(const Form& form, HWND focus) {
    TabStrip* strip = StripFor(form, focus);
    if (strip == nullptr || !strip->Enabled()) return false;
    const int count = static_cast<int>(strip->Captions().size());
    const int step = IsDown(VK_SHIFT) ? count - 1 : 1;
    const int next = (strip->Selected() - 1 + step) % count + 1;
    strip->Select(next);
    strip->UserSelect(next);
    return true;
}

// The focused control comes first here too. Else Esc is the dialog's cancel button, and closes a
// dialog that has none.
bool OnEscape(const FormWindow& form, HWND focus) {
    ControlWindow* control = focus != nullptr ? ControlWindow::From(focus) : nullptr;
    if (control != nullptr && control->OnEscape()) return true;
    if (form.Model().Kind() != FormKind::Dialog) return false;
    if (Button* button = form.Model().CancelButton()) {
        button->Raise("Click");
    } else {
        form.Model().Close();
    }
    return true;
}

}  // namespace

bool ServeFormKeys(const FormWindows& forms, MSG& message) {
    FormWindow* form = forms.WithHandle(TopLevelOf(message.hwnd));
    // A form below a modal dialog has no keys.
    if (form == nullptr || IsWindowEnabled(form->Handle()) == FALSE) return false;
    if (message.message == WM_KEYDOWN) {
        FormWindow* page = forms.PageIn(*form);
        if (RaiseAccelerator(*form, page, message)) return true;
        if (message.wParam == VK_RETURN) {
            OnEnter(*form, page, message.hwnd);
            return true;
        }
        const Form& innermost = page != nullptr ? page->Model() : form->Model();
        const bool turn = message.wParam == VK_TAB && IsDown(VK_CONTROL);
        if (turn && TurnTabs(innermost, message.hwnd)) return true;
        if (message.wParam == VK_ESCAPE && OnEscape(*form, message.hwnd)) return true;
    }
    return IsDialogMessageA(form->Handle(), &message) != FALSE;
}

}  // namespace velkarix
