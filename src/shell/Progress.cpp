#include "shell/Progress.h"

#include <algorithm>
#include <utility>

namespace velkarix {

namespace {

constexpr std::uint32_t Interval = 100;  // milliseconds; what comes faster can't be read

}  // namespace

Progress::Work::Work(Progress& progress, std::string what, std::size_t total)
    : progress_(progress), around_(progress.innermost_), what_(std::move(what)), total_(total) {
    progress_.innermost_ = this;
    // What is done at once would only flicker.
    if (around_ == nullptr) progress_.lastShown_ = progress_.clock_.GetTickCount();
}

Progress::Work::~Work() {
    progress_.innermost_ = around_;
    if (around_ == nullptr && progress_.view_ != nullptr) progress_.view_->EndProgress();
}

void Progress::Work::Step(std::string_view item) {
    ++begun_;
    if (progress_.view_ == nullptr) return;
    const std::uint32_t now = progress_.clock_.GetTickCount();
    if (now - progress_.lastShown_ < Interval) return;
    progress_.view_->ShowProgress(what_ + ": " + std::string(item), progress_.Share());
    // The showing itself isn't the work's time.
    progress_.lastShown_ = progress_.clock_.GetTickCount();
}

// From the innermost piece outwards. A piece may hold several others, one after the other, so that
// the share of what stands in one step would begin anew: it never goes back.
std::optional<double> Progress::Share() const {
    std::optional<double> share;
    for (Work* work = innermost_; work != nullptr; work = work->around_) {
        if (work->total_ == 0) continue;
        const double done = static_cast<double>(std::max<std::size_t>(work->begun_, 1) - 1);
        const double now = (done + share.value_or(0)) / static_cast<double>(work->total_);
        work->most_ = std::max(work->most_, std::min(now, 1.0));
        share = work->most_;
    }
    return share;
}

}  // namespace velkarix
