#include <gtest/gtest.h>

#include "tests/conformance/Home.h"

namespace velkarix {
namespace {

constexpr std::uint32_t adjustAndQuery = 40;
constexpr std::uint32_t query = 8;
constexpr const char* debugPrivilege = "SeDebugPrivilege";

}  // namespace

// Tokens are the NT family's. Wine has them under every name, so that the 95 family has none isn't
// asserted here.
class TokenConformance : public Conformance {
  protected:
    Token& token_ = machine_.token;
};

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(TokenConformance);
INSTANTIATE_TEST_SUITE_P(Home, TokenConformance, testing::ValuesIn(Only(Family::WindowsNt)),
                         NameOfFamily);

TEST_P(TokenConformance, APrivilegeIsSwitchedOnAndOff) {
    const TokenHandle token = token_.OpenProcessToken(token_.GetCurrentProcess(), adjustAndQuery);
    ASSERT_NE(token, 0u);
    const auto privilege = token_.LookupPrivilegeValueA("", debugPrivilege);
    ASSERT_TRUE(privilege.has_value());
    EXPECT_TRUE(token_.AdjustTokenPrivileges(token, *privilege, 2));
    EXPECT_TRUE(token_.AdjustTokenPrivileges(token, *privilege, 0));
    EXPECT_TRUE(token_.CloseToken(token));
    EXPECT_FALSE(token_.CloseToken(token));
}

TEST_P(TokenConformance, AdjustingSucceedsForAPrivilegeThatTheTokenLacks) {
    const TokenHandle token = token_.OpenProcessToken(token_.GetCurrentProcess(), adjustAndQuery);
    ASSERT_NE(token, 0u);
    EXPECT_TRUE(token_.AdjustTokenPrivileges(token, 0x1234, 2));
    EXPECT_TRUE(token_.CloseToken(token));
}

TEST_P(TokenConformance, AdjustingNeedsItsRight) {
    const TokenHandle token = token_.OpenProcessToken(token_.GetCurrentProcess(), query);
    ASSERT_NE(token, 0u);
    const auto privilege = token_.LookupPrivilegeValueA("", debugPrivilege);
    ASSERT_TRUE(privilege.has_value());
    EXPECT_FALSE(token_.AdjustTokenPrivileges(token, *privilege, 2));
    token_.CloseToken(token);
}

TEST_P(TokenConformance, PrivilegesAreKnownByNameWithoutCase) {
    EXPECT_EQ(token_.LookupPrivilegeValueA("", "sedebugprivilege"),
              token_.LookupPrivilegeValueA("", debugPrivilege));
    EXPECT_EQ(token_.LookupPrivilegeValueA("", "SeNoSuchPrivilege"), std::nullopt);
}

TEST_P(TokenConformance, NoProcessHasNoToken) {
    EXPECT_EQ(token_.OpenProcessToken(0, adjustAndQuery), 0u);
    EXPECT_FALSE(token_.AdjustTokenPrivileges(0, 20, 2));
    EXPECT_FALSE(token_.CloseToken(0));
}

}  // namespace velkarix
