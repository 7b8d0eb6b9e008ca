#include "platform/win32/Win32Cryptography.h"

#include "platform/win32/WindowsHeaders.h"

// The header of the service needs the system's before it.
#include <wincrypt.h>

namespace velkarix {
namespace {

constexpr DWORD DigestSize = 16;

struct HashCalls {
    decltype(&::CryptHashData) hashData;
    decltype(&::CryptGetHashParam) getHashParam;
    decltype(&::CryptDestroyHash) destroyHash;
};

class Win32Hash : public Hash {
  public:
    Win32Hash(const HashCalls& calls, HCRYPTHASH hash) : calls_(calls), hash_(hash) {}
    ~Win32Hash() override { calls_.destroyHash(hash_); }
    Win32Hash(const Win32Hash&) = delete;
    Win32Hash& operator=(const Win32Hash&) = delete;

    bool CryptHashData(std::span<const std::uint8_t> data) override {
        // The call takes no empty data for valid.
        if (data.empty()) return true;
        return calls_.hashData(hash_, data.data(), static_cast<DWORD>(data.size()), 0) != FALSE;
    }

    std::optional<Bytes> CryptGetHashParam() override {
        Bytes digest(DigestSize);
        DWORD size = DigestSize;
        if (!calls_.getHashParam(hash_, HP_HASHVAL, digest.data(), &size, 0)) return std::nullopt;
        return digest;
    }

  private:
    HashCalls calls_;
    HCRYPTHASH hash_;
};

}  // namespace

Win32Cryptography::~Win32Cryptography() {
    const auto release = advapi_.Find<decltype(&::CryptReleaseContext)>("CryptReleaseContext");
    if (provider_ != 0 && release != nullptr) release(provider_, 0);
}

std::unique_ptr<Hash> Win32Cryptography::CryptCreateHash() {
    const auto acquire = advapi_.Find<decltype(&::CryptAcquireContextA)>("CryptAcquireContextA");
    const auto create = advapi_.Find<decltype(&::CryptCreateHash)>("CryptCreateHash");
    const HashCalls calls{
        advapi_.Find<decltype(&::CryptHashData)>("CryptHashData"),
        advapi_.Find<decltype(&::CryptGetHashParam)>("CryptGetHashParam"),
        advapi_.Find<decltype(&::CryptDestroyHash)>("CryptDestroyHash"),
    };
    if (acquire == nullptr || create == nullptr || calls.hashData == nullptr ||
        calls.getHashParam == nullptr || calls.destroyHash == nullptr) {
        return nullptr;
    }

    HCRYPTPROV provider = provider_;
    if (provider == 0 &&
        !acquire(&provider, nullptr, nullptr, PROV_RSA_FULL, CRYPT_VERIFYCONTEXT)) {
        return nullptr;
    }
    provider_ = provider;

    HCRYPTHASH hash = 0;
    if (!create(provider, CALG_MD5, 0, 0, &hash)) return nullptr;
    return std::make_unique<Win32Hash>(calls, hash);
}

}  // namespace velkarix
