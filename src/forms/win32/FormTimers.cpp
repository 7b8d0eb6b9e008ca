#include "forms/win32/FormTimers.h"

namespace velkarix {

class FormTimers::NativeTimer : public TimerView {
  public:
    NativeTimer(HWND window, UINT_PTR id, Timer& timer) : window_(window), id_(id), timer_(timer) {
        timer_.AttachView(this);
        EnabledChanged();
    }
    ~NativeTimer() override {
        timer_.AttachView(nullptr);
        KillTimer(window_, id_);
    }
    void EnabledChanged() override {
        if (timer_.Enabled()) {
            SetTimer(window_, id_, static_cast<UINT>(timer_.Interval()), nullptr);
        } else {
            KillTimer(window_, id_);
        }
    }
    void Tick() { timer_.Tick(); }

  private:
    HWND window_;
    UINT_PTR id_;
    Timer& timer_;
};

FormTimers::FormTimers(HWND window, const std::vector<Timer*>& timers) {
    for (Timer* timer : timers) {
        const UINT_PTR id = timers_.size() + 1;
        timers_.push_back(std::make_unique<NativeTimer>(window, id, *timer));
    }
}

FormTimers::~FormTimers() = default;

void FormTimers::Detach() {
    timers_.clear();
}

void FormTimers::OnTimer(WPARAM id) {
    if (id >= 1 && id <= timers_.size()) timers_[id - 1]->Tick();
}

}  // namespace velkarix
