// The system's cryptographic service, of which the program uses the MD5 digest.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>

#include "base/Bytes.h"

namespace velkarix {

// One digest in the making.
class Hash {
  public:
    virtual ~Hash() = default;
    // False when the service fails; the digest is then void.
    virtual bool CryptHashData(std::span<const std::uint8_t> data) = 0;
    // The 16 bytes of the digest of all data so far; ends the hash.
    virtual std::optional<Bytes> CryptGetHashParam() = 0;
};

class Cryptography {
  public:
    virtual ~Cryptography() = default;
    // A new MD5 hash; null where the service or the algorithm is missing.
    virtual std::unique_ptr<Hash> CryptCreateHash() = 0;
};

}  // namespace velkarix
