// What the program takes the system for, asked of the real system.
#include <windows.h>
#include <gtest/gtest.h>

#include <map>

#include "Setup.h"
#include "SystemFacts.h"

namespace velkarix::e2e {
namespace {

class SystemFactsOn : public testing::Test {
  protected:
    // The build that the system itself gives; the 95 family adds its version in the upper half.
    static DWORD Build() {
        OSVERSIONINFOA version{};
        version.dwOSVersionInfoSize = sizeof version;
        GetVersionExA(&version);
        return version.dwBuildNumber;
    }
};

TEST_F(SystemFactsOn, EverySystemHasItsName) {
    const std::map<std::string, std::string> names = {
        {"win95", "Microsoft Windows 95"},
        {"win98", Build() < 2183 ? "Microsoft Windows 98" : "Microsoft Windows 98 Second Edition"},
        {"winme", "Microsoft Windows Millennium Edition"},
        {"nt351", "Microsoft Windows NT 3.51"},
        {"nt40", "Microsoft Windows NT 4.0"},
        {"win2k", "Microsoft Windows 2000"},
        {"winxp", "Microsoft Windows XP"},
        {"win2003", "Microsoft Windows Sever 2003"},
    };
    EXPECT_EQ(AskSystemFacts().windowsName, names.at(SystemUnderTest()));
}

TEST_F(SystemFactsOn, EverySystemTellsBuildAndNames) {
    OSVERSIONINFOA version{};
    version.dwOSVersionInfoSize = sizeof version;
    GetVersionExA(&version);
    char computer[MAX_COMPUTERNAME_LENGTH + 1] = "";
    DWORD size = sizeof computer;
    GetComputerNameA(computer, &size);
    char user[255] = "";
    DWORD userSize = sizeof user;
    GetUserNameA(user, &userSize);

    const SystemDescription facts = AskSystemFacts();
    EXPECT_EQ(facts.windowsBuild, std::to_string(version.dwMajorVersion) + "." +
                                      std::to_string(version.dwMinorVersion) + "." +
                                      std::to_string(version.dwBuildNumber));
    EXPECT_EQ(facts.servicePack, std::string(version.szCSDVersion, sizeof version.szCSDVersion));
    EXPECT_EQ(facts.computerName, computer);
    EXPECT_EQ(facts.userName, std::string(user, userSize));
}

}  // namespace
}  // namespace velkarix::e2e
