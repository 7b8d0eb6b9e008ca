// The system's cryptographic service, looked up at run time.
#pragma once

#include <cstdint>

#include "platform/Cryptography.h"
#include "platform/win32/SystemLibrary.h"

namespace velkarix {

class Win32Cryptography : public Cryptography {
  public:
    Win32Cryptography() = default;
    ~Win32Cryptography() override;
    Win32Cryptography(const Win32Cryptography&) = delete;
    Win32Cryptography& operator=(const Win32Cryptography&) = delete;

    std::unique_ptr<Hash> CryptCreateHash() override;

  private:
    SystemLibrary advapi_{"advapi32.dll"};
    // Getting the provider takes longer than a small file's digest, so it is kept. 0 is none.
    std::uintptr_t provider_ = 0;
};

}  // namespace velkarix
