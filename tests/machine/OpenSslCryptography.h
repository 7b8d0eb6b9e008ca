// MD5 by the OpenSSL library, in place of the system's cryptographic service.
#pragma once

#include "platform/Cryptography.h"
#include "tests/machine/CallJournal.h"

namespace velkarix {

class OpenSslCryptography : public Cryptography {
  public:
    explicit OpenSslCryptography(CallJournal& journal) : journal_(journal) {}

    // A hash must not outlive this object. "CryptHashData" and "CryptGetHashParam" are journalled
    // and can be made to fail like every other call.
    std::unique_ptr<Hash> CryptCreateHash() override;

  private:
    CallJournal& journal_;
};

}  // namespace velkarix
