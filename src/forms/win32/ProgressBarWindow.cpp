#include "forms/win32/ProgressBarWindow.h"

namespace velkarix {

namespace {

constexpr int Whole = 100;

}  // namespace

ProgressBarWindow::ProgressBarWindow(DesktopContext& context, ProgressBar& bar,
                                     const ControlPlace& place)
    : ControlWindow(context, bar, place, {PROGRESS_CLASSA, 0}), bar_(bar) {
    ShowPercent();
}

void ProgressBarWindow::Changed(Aspect aspect) {
    switch (aspect) {
        case Aspect::Value:
            ShowPercent();
            return;
        case Aspect::Visible:
            // At once: it comes while the handler runs that it tells of. It never has the focus.
            ShowWindow(Handle(), bar_.Shown() ? SW_SHOWNA : SW_HIDE);
            return;
        default:
            ControlWindow::Changed(aspect);
    }
}

void ProgressBarWindow::ShowPercent() const {
    const int percent = bar_.Percent();
    // Windows Vista and later let the bar grow by a timer, which stands still while a handler runs;
    // what shrinks is drawn at once. So it goes one too far and back, at its end beyond the range.
    Send(PBM_SETRANGE, 0, MAKELPARAM(0, Whole + 1));
    Send(PBM_SETPOS, static_cast<WPARAM>(percent + 1));
    Send(PBM_SETPOS, static_cast<WPARAM>(percent));
    Send(PBM_SETRANGE, 0, MAKELPARAM(0, Whole));
}

}  // namespace velkarix
