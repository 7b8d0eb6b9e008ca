// Memory in another process, for messages whose structures the system doesn't carry over.
#pragma once

#include <windows.h>

#include <cstddef>

namespace velkarix::e2e {

class RemoteMemory {
  public:
    // In the process that `window` belongs to.
    RemoteMemory(HWND window, std::size_t size);
    ~RemoteMemory();
    RemoteMemory(const RemoteMemory&) = delete;
    RemoteMemory& operator=(const RemoteMemory&) = delete;

    // The address there; null when it couldn't be had.
    void* Address(std::size_t offset = 0) const { return static_cast<char*>(address_) + offset; }
    bool Write(std::size_t offset, const void* bytes, std::size_t size) const;
    bool Read(std::size_t offset, void* bytes, std::size_t size) const;

  private:
    HANDLE process_ = nullptr;
    void* address_ = nullptr;
};

}  // namespace velkarix::e2e
