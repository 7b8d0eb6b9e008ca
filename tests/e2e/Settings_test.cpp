// Settings and lists that are missing, read-only or garbage don't keep the program from starting.
#include <cstdint>
#include <vector>

#include "Input.h"
#include "ProgramTest.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class OddSettings : public ProgramTest {
  protected:
    static std::string Garbage(std::size_t size) {
        std::string bytes;
        std::uint32_t state = 12345;
        for (std::size_t i = 0; i < size; ++i) {
            state = state * 1664525 + 1013904223;
            bytes += static_cast<char>(state >> 24);
        }
        return bytes;
    }
    // Whether the program is up and its commands run.
    bool Works() {
        return Running().Press("cmdRefresh") && List().Find("SampleIdle.exe") &&
               Running().Close() == 0u;
    }
};

TEST_F(OddSettings, TheProgramStartsWithNothingBesideIt) {
    for (const char* file : {"Settings.ini", "database.ini", "SusCLSID.vkl", "SystemProcess.vkl",
                             "SusProcess.vkl", "SusInstall.vkl", "MorVane.exe"}) {
        install_.Remove(file);
    }
    Start();
    EXPECT_TRUE(List().Find("services.exe")) << "no list hides it";
    EXPECT_TRUE(install_.Exists("backup"));
    EXPECT_TRUE(Works());
}

TEST_F(OddSettings, TheProgramStartsWithGarbageInAllFiles) {
    for (const char* file : {"database.ini", "SusCLSID.vkl", "SystemProcess.vkl", "SusProcess.vkl",
                             "SusInstall.vkl", "SafeProcess.vkl"}) {
        install_.Write(file, Garbage(5000));
    }
    install_.Write("Settings.ini",
                   "[Main]\r\nFirstRun=1\r\nFilter=\x01\xFE\r\nSusColor=red\r\n" + Garbage(3000));
    Start();
    EXPECT_TRUE(Running().Control("optFilter(0)").Checked())
        << "text that is no number counts as 0";
    EXPECT_TRUE(Works());
}

// A folder in the place of the file refuses every write, whatever rights the user has.
TEST_F(OddSettings, SettingsThatCannotBeWrittenMakeEveryRunTheFirst) {
    install_.Remove("Settings.ini");
    CreateDirectoryA(install_.Path("Settings.ini").c_str(), nullptr);
    for (int run = 0; run < 2; ++run) {
        DeleteFileA(install_.Path("MorVane.log").c_str());
        Start();
        EXPECT_TRUE(Running().Control("optFilter(1)").Checked());
        ASSERT_TRUE(Running().Press("optFilter(0)"));
        EXPECT_TRUE(List().Find("services.exe"));
        EXPECT_TRUE(WaitUntil([this] { return install_.Exists("MorVane.log"); }));
        EXPECT_TRUE(Works());
    }
}

TEST_F(OddSettings, AFontBoldThatIsNoNumberIsAFaultThatEndsTheProgram) {
    install_.Write("Settings.ini", "[Main]\r\nFirstRun=1\r\nFontBold=yes\r\n");
    Program program(install_);
    const Window message = program.Message();
    ASSERT_TRUE(message);
    EXPECT_EQ(message.Text(), "Velkarix");
    const std::string text = MessageText(message);
    EXPECT_EQ(text.find("Run-time error '13':"), 0u) << text;
    EXPECT_NE(text.find("Type mismatch"), std::string::npos) << text;
    EXPECT_TRUE(Answer(message, IDOK));
    EXPECT_TRUE(program.OwnProcess().WaitForExit());
}

}  // namespace
}  // namespace velkarix::e2e
