// A timer of a form: while it is enabled, its handler runs each time the interval has passed.
#pragma once

#include <functional>
#include <string>
#include <utility>

namespace velkarix {

class TimerView {
  public:
    virtual ~TimerView() = default;
    virtual void EnabledChanged() = 0;
};

class Timer {
  public:
    Timer(std::string name, int interval, std::function<void()> onTimer)
        : name_(std::move(name)), interval_(interval), onTimer_(std::move(onTimer)) {}
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    const std::string& Name() const { return name_; }
    int Interval() const { return interval_; }  // milliseconds
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled) {
        enabled_ = enabled;
        if (view_ != nullptr) view_->EnabledChanged();
    }
    // The interval has passed. A tick that was under way when the timer was disabled is void.
    void Tick() {
        if (enabled_) onTimer_();
    }
    void AttachView(TimerView* view) { view_ = view; }

  private:
    std::string name_;
    int interval_;
    std::function<void()> onTimer_;
    bool enabled_ = false;
    TimerView* view_ = nullptr;
};

}  // namespace velkarix
