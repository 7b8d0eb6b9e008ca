#include <gtest/gtest.h>

#include <algorithm>
#include <span>
#include <string>

#include "tests/conformance/Home.h"

namespace velkarix {

class CryptographyConformance : public Conformance {
  protected:
    // The digest in hexadecimal digits of a text that is given in pieces of `piece` bytes.
    std::string Md5(const std::string& text, std::size_t piece) {
        const auto hash = machine_.cryptography.CryptCreateHash();
        if (!hash) {
            return "(no hash)";
        }
        const Bytes data(text.begin(), text.end());
        for (std::size_t at = 0; at < data.size(); at += piece) {
            const std::size_t count = std::min(piece, data.size() - at);
            EXPECT_TRUE(hash->CryptHashData(std::span(data).subspan(at, count)));
        }
        const auto digest = hash->CryptGetHashParam();
        return digest ? Hex(*digest) : "(no digest)";
    }

  private:
    static std::string Hex(const Bytes& data) {
        constexpr char digits[] = "0123456789abcdef";
        std::string text;
        for (const std::uint8_t byte : data) {
            text += {digits[byte >> 4], digits[byte & 15]};
        }
        return text;
    }
};

INSTANTIATE_TEST_SUITE_P(Home, CryptographyConformance, testing::ValuesIn(FamiliesOfHome()),
                         NameOfFamily);

TEST_P(CryptographyConformance, DigestsAreThoseOfTheAlgorithmsOwnTestSuite) {
    // RFC 1321, appendix A.5.
    EXPECT_EQ(Md5("", 16), "d41d8cd98f00b204e9800998ecf8427e");
    EXPECT_EQ(Md5("a", 16), "0cc175b9c0f1b6a831c399e269772661");
    EXPECT_EQ(Md5("message digest", 16), "f96b697d7cb7938d525a2f31aaf161d0");
}

TEST_P(CryptographyConformance, PiecesMakeTheSameDigestAsTheWhole) {
    const std::string digits =
        "12345678901234567890123456789012345678901234567890123456789012345678901234567890";
    for (const std::size_t piece : {1, 7, 63, 64, 65, 80}) {
        EXPECT_EQ(Md5(digits, piece), "57edf4a22be3c955ac49da2e2107b67a") << piece;
    }
}

TEST_P(CryptographyConformance, EmptyPiecesChangeNothing) {
    const auto hash = machine_.cryptography.CryptCreateHash();
    ASSERT_NE(hash, nullptr);
    EXPECT_TRUE(hash->CryptHashData({}));
    const auto digest = hash->CryptGetHashParam();
    ASSERT_TRUE(digest.has_value());
    EXPECT_EQ(digest->front(), 0xD4);
}

TEST_P(CryptographyConformance, TakingTheDigestEndsTheHash) {
    const auto hash = machine_.cryptography.CryptCreateHash();
    ASSERT_NE(hash, nullptr);
    ASSERT_TRUE(hash->CryptGetHashParam().has_value());
    EXPECT_FALSE(hash->CryptHashData(Bytes{1}));
}

TEST_P(CryptographyConformance, TwoHashesDoNotMix) {
    const auto first = machine_.cryptography.CryptCreateHash();
    ASSERT_NE(first, nullptr);
    EXPECT_TRUE(first->CryptHashData(Bytes{'x'}));
    EXPECT_EQ(Md5("a", 1), "0cc175b9c0f1b6a831c399e269772661");
}

}  // namespace velkarix
