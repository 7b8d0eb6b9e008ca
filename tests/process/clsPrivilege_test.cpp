#include "process/clsPrivilege.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

class PrivilegeTest : public testing::Test {
  protected:
    bool Held() { return machine.token.IsPrivilegeEnabled("SeDebugPrivilege"); }

    MemoryMachine machine;
    std::optional<clsPrivilege> privilege{std::in_place, machine.system, machine.token};
};

TEST_F(PrivilegeTest, HoldsThePrivilegeForItsLife) {
    EXPECT_TRUE(privilege->getPrivilege());
    EXPECT_TRUE(Held());
    privilege.reset();
    EXPECT_FALSE(Held());
    EXPECT_EQ(machine.token.OpenTokenCount(), 0u);
}

TEST_F(PrivilegeTest, AsksWithTheseCallsInThisOrder) {
    privilege->getPrivilege();
    privilege.reset();
    EXPECT_EQ(machine.Journal().Names(),
              (std::vector<std::string>{"GetVersion", "GetCurrentProcess", "OpenProcessToken",
                                        "LookupPrivilegeValueA", "AdjustTokenPrivileges",
                                        "AdjustTokenPrivileges", "CloseToken"}));
}

TEST_F(PrivilegeTest, DoesNothingOnThe95Family) {
    machine.SetFamily(Family::Windows95);
    EXPECT_FALSE(privilege->getPrivilege());
    privilege.reset();
    EXPECT_EQ(machine.Journal().Names(), (std::vector<std::string>{"GetVersion"}));
}

TEST_F(PrivilegeTest, ClosesTheTokenWhenAStepFails) {
    for (const char* call : {"LookupPrivilegeValueA", "AdjustTokenPrivileges"}) {
        machine.FailNext(call);
        EXPECT_FALSE(privilege->getPrivilege()) << call;
        EXPECT_EQ(machine.token.OpenTokenCount(), 0u) << call;
    }
    privilege.reset();
    EXPECT_EQ(machine.Journal().CountOf("AdjustTokenPrivileges"), 1u);
}

TEST_F(PrivilegeTest, HasNoTokenToCloseWhenItCanNotBeOpened) {
    machine.FailNext("OpenProcessToken");
    EXPECT_FALSE(privilege->getPrivilege());
    privilege.reset();
    EXPECT_EQ(machine.Journal().CountOf("CloseToken"), 0u);
}

}  // namespace
}  // namespace velkarix
