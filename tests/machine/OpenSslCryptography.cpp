#include "tests/machine/OpenSslCryptography.h"

#include <openssl/evp.h>

#include <string>
#include <utility>

namespace velkarix {
namespace {

struct FreeContext {
    void operator()(EVP_MD_CTX* context) const { EVP_MD_CTX_free(context); }
};

class OpenSslHash : public Hash {
  public:
    OpenSslHash(CallJournal& journal, std::unique_ptr<EVP_MD_CTX, FreeContext> context)
        : journal_(journal), context_(std::move(context)) {}

    bool CryptHashData(std::span<const std::uint8_t> data) override {
        const bool fails = journal_.Enter("CryptHashData", std::to_string(data.size())) != 0;
        return !fails && context_ &&
               EVP_DigestUpdate(context_.get(), data.data(), data.size()) == 1;
    }

    std::optional<Bytes> CryptGetHashParam() override {
        const bool fails = journal_.Enter("CryptGetHashParam") != 0;
        Bytes digest(16);
        const auto context = std::move(context_);
        if (fails || !context || EVP_DigestFinal_ex(context.get(), digest.data(), nullptr) != 1) {
            return std::nullopt;
        }
        return digest;
    }

  private:
    CallJournal& journal_;
    std::unique_ptr<EVP_MD_CTX, FreeContext> context_;  // null once the hash has ended
};

}  // namespace

std::unique_ptr<Hash> OpenSslCryptography::CryptCreateHash() {
    std::unique_ptr<EVP_MD_CTX, FreeContext> context(EVP_MD_CTX_new());
    if (journal_.Enter("CryptCreateHash") || !context ||
        EVP_DigestInit_ex(context.get(), EVP_md5(), nullptr) != 1) {
        return nullptr;
    }
    return std::make_unique<OpenSslHash>(journal_, std::move(context));
}

}  // namespace velkarix
