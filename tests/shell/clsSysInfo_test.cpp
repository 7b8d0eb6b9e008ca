#include "shell/clsSysInfo.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/machine/TestProgram.h"

namespace velkarix {
namespace {

SystemDescription FactsOf(TestProgram& program) {
    return clsSysInfo(program.machine.system, program.application.registry).sysInfo();
}

VersionInfo Version(std::uint32_t platform, std::uint32_t major, std::uint32_t minor,
                    std::uint32_t build) {
    return {platform, major, minor, build, std::string(128, '\0')};
}

std::string NameOf(const VersionInfo& version) {
    TestProgram program;
    program.machine.system.SetVersion(version);
    return FactsOf(program).windowsName;
}

struct NamedCase {
    VersionInfo version;
    const char* name;
};

class SystemNames : public testing::TestWithParam<NamedCase> {};

TEST_P(SystemNames, FollowPlatformThenVersion) {
    EXPECT_EQ(NameOf(GetParam().version), GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(
    AllRows, SystemNames,
    testing::Values(NamedCase{Version(1, 4, 0, 950), "Microsoft Windows 95"},
                    NamedCase{Version(1, 4, 10, 1998), "Microsoft Windows 98"},
                    NamedCase{Version(1, 4, 10, 2182), "Microsoft Windows 98"},
                    NamedCase{Version(1, 4, 10, 2183), "Microsoft Windows 98 Second Edition"},
                    NamedCase{Version(1, 4, 10, 2222), "Microsoft Windows 98 Second Edition"},
                    NamedCase{Version(1, 4, 90, 3000), "Microsoft Windows Millennium Edition"},
                    NamedCase{Version(2, 3, 51, 1057), "Microsoft Windows NT 3.51"},
                    NamedCase{Version(2, 4, 0, 1381), "Microsoft Windows NT 4.0"},
                    NamedCase{Version(2, 5, 0, 2195), "Microsoft Windows 2000"},
                    NamedCase{Version(2, 5, 1, 2600), "Microsoft Windows XP"},
                    NamedCase{Version(2, 5, 2, 3790), "Microsoft Windows Sever 2003"},
                    NamedCase{Version(2, 5, 9, 1), "Microsoft Windows Sever 2003"},
                    NamedCase{Version(2, 6, 1, 7601), ""}, NamedCase{Version(1, 4, 20, 1), ""},
                    NamedCase{Version(0, 3, 10, 1), ""}, NamedCase{Version(3, 5, 1, 1), ""}));

// The 95 family keeps its version in the upper half of the number, which counts as it comes.
TEST(SystemInfo, ComparesTheWholeBuildField) {
    EXPECT_EQ(NameOf(Version(1, 4, 10, 0x040A07CE)), "Microsoft Windows 98 Second Edition");
}

TEST(SystemInfo, GivesBuildAndServicePackAsTheSystemHasThem) {
    TestProgram program;
    std::string pack = "Service Pack 2";
    pack.resize(128, '\0');
    pack[127] = 'x';
    program.machine.system.SetVersion({2, 5, 1, 2600, pack});
    const SystemDescription facts = FactsOf(program);
    EXPECT_EQ(facts.windowsBuild, "5.1.2600");
    EXPECT_EQ(facts.servicePack, pack);
}

TEST(SystemInfo, GivesComputerAndUserAndExplorer) {
    TestProgram program;
    program.machine.system.SetComputerName("LATHE-4");
    program.machine.system.SetUserName("Operator");
    program.machine.SetValue(Hive::LocalMachine, "SOFTWARE\\Microsoft\\Internet Explorer",
                             "Version", "6.0.2900.2180");
    const SystemDescription facts = FactsOf(program);
    EXPECT_EQ(facts.computerName, "LATHE-4");
    EXPECT_EQ(facts.userName, std::string("Operator") + '\0');
    EXPECT_EQ(facts.explorerVersion, "6.0.2900.2180");
}

TEST(SystemInfo, LeavesAFactThatCanNotBeHadEmpty) {
    TestProgram program;
    for (const char* call : {"GetVersionExA", "GetComputerNameA", "GetUserNameA"}) {
        program.machine.FailNext(call);
    }
    const SystemDescription facts = FactsOf(program);
    EXPECT_EQ(facts.windowsName + facts.windowsBuild + facts.servicePack + facts.computerName +
                  facts.userName + facts.explorerVersion,
              "");
}

}  // namespace
}  // namespace velkarix
