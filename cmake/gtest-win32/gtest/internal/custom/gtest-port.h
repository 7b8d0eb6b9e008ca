// GoogleTest's own customisation point, filled for the win32-thread compiler, whose library has
// no std::mutex: a Notification without it. Mutex and ThreadLocal of GoogleTest are Win32's there.
#pragma once

#include <atomic>

#define GTEST_HAS_PTHREAD 0
#define GTEST_HAS_NOTIFICATION_ 1

namespace testing::internal {

// Waiting is a busy loop: only GoogleTest's tests of itself ever wait.
class Notification {
  public:
    Notification() = default;
    Notification(const Notification&) = delete;
    Notification& operator=(const Notification&) = delete;

    void Notify() { notified_ = true; }
    void WaitForNotification() {
        while (!notified_) {
        }
    }

  private:
    std::atomic<bool> notified_{false};
};

}  // namespace testing::internal
