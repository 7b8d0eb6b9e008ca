// A process that a test started. It is ended with its object, by the handle that its start gave.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace velkarix::e2e {

class Process {
  public:
    Process() = default;
    // Starts `program`, with `arguments` behind its quoted path, in `folder` (empty: this one).
    // False by operator bool when it doesn't start.
    explicit Process(const std::string& program, const std::string& folder = "",
                     const std::string& arguments = "");
    ~Process();
    Process(Process&& other) noexcept;
    Process& operator=(Process&& other) noexcept;

    explicit operator bool() const { return handle_ != nullptr; }
    DWORD Id() const { return id_; }
    HANDLE Handle() const { return handle_; }

    // Waits until it waits for input.
    bool WaitIdle() const;
    // Its exit code once it has ended by itself; nothing when it doesn't.
    std::optional<DWORD> WaitForExit() const;
    bool Running() const;
    void End();

  private:
    HANDLE handle_ = nullptr;
    DWORD id_ = 0;
};

}  // namespace velkarix::e2e
