// The programs that the utilities page starts: by mouse and by keys, and when they are missing.
#include "Input.h"
#include "UtilitiesTest.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

struct Launcher {
    const char* title;  // of the test that is run for it
    const char* button;
    const char* program;  // in the installation, without ".exe"
    const char* started;  // the same as the command line spells it
    const char* missing;  // what is said when it isn't there
};
std::ostream& operator<<(std::ostream& stream, const Launcher& launcher) {
    return stream << launcher.title;
}

const Launcher Launchers[] = {
    {"HostsEditor", "cmdHosts", "Tesselin", "\\Tesselin.exe",
     "Hosts File Editor utlity not found."},
    {"RepairLSP", "cmdRepairLSP", "Quillate", "\\Quillate.exe", "Repair LSP utlity not found."},
    {"UpdateOfTheDefinitions", "cmdUpdateDefinition", "MorVane", "\\Morvane.exe",
     "Update utlity not found."},
    {"UpdateOfTheProgram", "cmdUpdateSoftware", "MorVane", "\\Morvane.exe",
     "Update utlity not found."},
};

class UtilitiesLaunch : public UtilitiesTest, public testing::WithParamInterface<Launcher> {
  protected:
    explicit UtilitiesLaunch(const std::string& title = {}) : UtilitiesTest(title) {}
    const Launcher& Each() const { return GetParam(); }
    // The record of one start: the quoted path, and no argument.
    std::string Start() const { return RecordOf("\"" + install_.Folder() + Each().started + "\""); }
    std::string RecordedAs(const std::string& expected) const {
        return Recorded(Each().program, expected);
    }
};

TEST_P(UtilitiesLaunch, ItsButtonStartsItOnceForEachClick) {
    OpenUtilities();
    ClickOn(Each().button);
    EXPECT_EQ(RecordedAs(Start()), Start());
    ClickOn(Each().button);
    EXPECT_EQ(RecordedAs(Start() + Start()), Start() + Start());
    EXPECT_TRUE(Running().Main().Enabled()) << "a message is there";
}

TEST_P(UtilitiesLaunch, KeysStartItAsWell) {
    OpenUtilities();
    ASSERT_TRUE(TabTo(Each().button));
    PressKey(VK_SPACE);
    EXPECT_EQ(RecordedAs(Start()), Start());
    PressKey(VK_RETURN);
    EXPECT_EQ(RecordedAs(Start() + Start()), Start() + Start());
}

TEST_P(UtilitiesLaunch, IsToldOfWhenItIsMissing) {
    install_.Remove(std::string(Each().program) + ".exe");
    OpenUtilities();
    for (int time = 0; time < 2; ++time) {
        ClickOn(Each().button);
        ExpectMessage(Each().missing, Icon::Critical);
    }
    EXPECT_FALSE(install_.Exists(std::string(Each().program) + ".log"));
    EXPECT_EQ(Running().Close(), 0u);
}

class UtilitiesLaunchAmongBlanks : public UtilitiesLaunch {
  protected:
    UtilitiesLaunchAmongBlanks() : UtilitiesLaunch(" of my own programs") {}
};

TEST_P(UtilitiesLaunchAmongBlanks, ItIsStartedByItsQuotedPath) {
    OpenUtilities();
    ClickOn(Each().button);
    EXPECT_EQ(RecordedAs(Start()), Start());
}

const auto TitleOfLauncher = [](const testing::TestParamInfo<Launcher>& each) {
    return each.param.title;
};
INSTANTIATE_TEST_SUITE_P(Each, UtilitiesLaunch, testing::ValuesIn(Launchers), TitleOfLauncher);
INSTANTIATE_TEST_SUITE_P(Each, UtilitiesLaunchAmongBlanks, testing::ValuesIn(Launchers),
                         TitleOfLauncher);

}  // namespace
}  // namespace velkarix::e2e
