#include "forms/win32/FormControls.h"

#include <algorithm>
#include <typeinfo>

#include "forms/Controls.h"
#include "forms/win32/ControlWindows.h"
#include "forms/win32/FormArrangement.h"

namespace velkarix {

namespace {

// Clear of the numbers that the system gives to OK and Cancel.
constexpr int FirstId = 100;

// The arrow keys move among neighbours of one kind; options only inside their own group.
bool StartsGroup(const Control& control, const Control* previous) {
    if (previous == nullptr || typeid(control) != typeid(*previous)) return true;
    const auto* option = dynamic_cast<const OptionButton*>(&control);
    return option != nullptr &&
           &option->Group() != &static_cast<const OptionButton*>(previous)->Group();
}

Rect AreaOf(const Control& control, const std::vector<Placement>& placements) {
    const auto found =
        std::find_if(placements.begin(), placements.end(),
                     [&](const Placement& each) { return each.control == &control; });
    return found == placements.end() ? Rect{} : found->area;
}

}  // namespace

FormControls::FormControls(DesktopContext& context, const Form& form, HWND parent)
    : context_(context), form_(form) {
    RECT client{};
    GetClientRect(parent, &client);
    const auto placements = ArrangeForm(form, {0, 0, client.right, client.bottom}, context.metrics);
    const auto grounds = GroundsOf(form.FormLayout());
    const Control* previous = nullptr;
    for (Control* control : form.Controls()) {
        const auto ground = grounds.find(control);
        const ControlPlace place{parent, AreaOf(*control, placements),
                                 FirstId + static_cast<int>(windows_.size()),
                                 StartsGroup(*control, previous),
                                 ground == grounds.end() ? Shade::Face : ground->second};
        windows_.push_back(MakeControlWindow(context, *control, place));
        previous = control;
    }
    // What others stand on goes behind them; the inner ones first, for the outer ones to follow.
    for (auto each = placements.rbegin(); each != placements.rend(); ++each) {
        const ControlWindow* window = WindowOf(*each->control);
        if (window != nullptr && window->IsGround()) window->SendToBack();
    }
    if (const HWND button = DefaultButton()) {
        SendMessageA(button, BM_SETSTYLE, BS_DEFPUSHBUTTON, FALSE);
    }
}

void FormControls::Arrange(const Rect& inside) const {
    for (const Placement& placement : ArrangeForm(form_, inside, context_.metrics)) {
        if (const ControlWindow* window = WindowOf(*placement.control)) {
            window->Move(placement.area);
        }
    }
}

ControlWindow* FormControls::WindowOf(const Control& control) const {
    const auto found = std::find_if(windows_.begin(), windows_.end(),
                                    [&](const auto& each) { return &each->Model() == &control; });
    return found == windows_.end() ? nullptr : found->get();
}

HWND FormControls::DefaultButton() const {
    const Button* button = form_.DefaultButton();
    const ControlWindow* window = button != nullptr ? WindowOf(*button) : nullptr;
    return window != nullptr ? window->Handle() : nullptr;
}

void FormControls::Detach() const {
    for (const auto& window : windows_) window->Detach();
}

void FormControls::AppearanceChanged(bool otherFonts) const {
    for (const auto& window : windows_) {
        if (otherFonts) window->FontsChanged();
        window->ColoursChanged();
    }
}

bool ServeControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    result = 0;
    if (message == WM_NOTIFY) {
        auto& header = *reinterpret_cast<NMHDR*>(lParam);
        ControlWindow* control = ControlWindow::From(header.hwndFrom);
        if (control != nullptr) result = control->OnNotify(header);
        return control != nullptr;
    }
    if (message == WM_DRAWITEM) {
        const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        ControlWindow* control = ControlWindow::From(item.hwndItem);
        if (control != nullptr) control->OnDrawItem(item);
        return control != nullptr;
    }
    const bool command = message == WM_COMMAND;
    if (!command && message != WM_CTLCOLORSTATIC && message != WM_CTLCOLORBTN) return false;
    ControlWindow* control = ControlWindow::From(reinterpret_cast<HWND>(lParam));
    if (control == nullptr) return false;
    if (command) {
        control->OnCommand(HIWORD(wParam));
        return true;
    }
    const HBRUSH ground = control->OnColour(reinterpret_cast<HDC>(wParam));
    result = reinterpret_cast<LRESULT>(ground);
    return ground != nullptr;
}

}  // namespace velkarix
