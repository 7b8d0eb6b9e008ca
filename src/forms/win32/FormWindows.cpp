#include "forms/win32/FormWindows.h"

#include <algorithm>
#include <utility>

#include "forms/win32/WindowTree.h"

namespace velkarix {

namespace {

template <typename Windows, typename Wanted>
FormWindow* FirstOf(const Windows& windows, Wanted wanted) {
    const auto found = std::find_if(windows.begin(), windows.end(), wanted);
    return found == windows.end() ? nullptr : found->get();
}

}  // namespace

// The newest first: pages before the form that they stand in.
FormWindows::~FormWindows() {
    while (!windows_.empty()) windows_.pop_back();
}

FormWindow& FormWindows::Add(Form& form, HWND parent) {
    windows_.push_back(std::make_unique<FormWindow>(context_, form, parent));
    return *windows_.back();
}

void FormWindows::Remove(FormWindow& window) {
    // The system takes the pages in it along.
    for (const auto& each : windows_) {
        if (IsChild(window.Handle(), each->Handle()) != FALSE) each->Detach();
    }
    window.Detach();
    const auto found = std::find_if(windows_.begin(), windows_.end(),
                                    [&](const auto& each) { return each.get() == &window; });
    removed_.push_back(std::move(*found));
    windows_.erase(found);
    context_.formsWaitForEnd = true;
    EndRemoved();
}

void FormWindows::EndRemoved() {
    if (context_.proceduresUnderWay > 0) return;
    context_.formsWaitForEnd = false;
    removed_.clear();
}

FormWindow* FormWindows::Of(const Form& form) const {
    return FirstOf(windows_, [&](const auto& each) { return &each->Model() == &form; });
}

FormWindow* FormWindows::WithHandle(HWND handle) const {
    if (handle == nullptr) return nullptr;
    return FirstOf(windows_, [&](const auto& each) { return each->Handle() == handle; });
}

FormWindow* FormWindows::Main() const {
    return FirstOf(windows_,
                   [](const auto& each) { return each->Model().Kind() == FormKind::Main; });
}

FormWindow* FormWindows::PageIn(const FormWindow& form) const {
    return FirstOf(windows_, [&](const auto& each) {
        return each->Model().Kind() == FormKind::Page &&
               TopLevelOf(each->Handle()) == form.Handle() &&
               IsWindowVisible(each->Handle()) != FALSE;
    });
}

ControlWindow* FormWindows::WindowOf(const Control& control) const {
    for (const auto& each : windows_) {
        if (ControlWindow* window = each->Controls().WindowOf(control)) return window;
    }
    return nullptr;
}

void FormWindows::AppearanceChanged(bool otherFonts) const {
    for (const auto& each : windows_) each->AppearanceChanged(otherFonts);
}

}  // namespace velkarix
