#include "forms/win32/ProgressBarWindow.h"

namespace velkarix {

// The native bar goes from 0 to 100 unless it is told otherwise.
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
    Send(PBM_SETPOS, static_cast<WPARAM>(bar_.Percent()));
}

}  // namespace velkarix
