// Windows that are out of step with their models. A model may change thousands of times in one
// handler; its window catches up once, when the handler is through.
#pragma once

#include <algorithm>
#include <vector>

namespace velkarix {

class Refreshable {
  public:
    virtual ~Refreshable() = default;
    virtual void Refresh() = 0;
};

class PendingRefreshes {
  public:
    void Add(Refreshable& window) {
        if (std::find(pending_.begin(), pending_.end(), &window) == pending_.end()) {
            pending_.push_back(&window);
        }
    }
    void Remove(Refreshable& window) { std::erase(pending_, &window); }
    // A refresh that makes others wait leads to them, not to itself.
    void Run() {
        if (running_) return;
        running_ = true;
        while (!pending_.empty()) {
            Refreshable* const next = pending_.back();
            pending_.pop_back();
            next->Refresh();
        }
        running_ = false;
    }

  private:
    std::vector<Refreshable*> pending_;
    bool running_ = false;
};

}  // namespace velkarix
