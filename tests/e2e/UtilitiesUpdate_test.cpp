// The utilities page as it comes: the date of the last update, the automatic check, what the update
// program is told, and the words where the mouse rests.
#include "Input.h"
#include "LastUpdate.h"
#include "UtilitiesTest.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class UtilitiesUpdate : public UtilitiesTest {
  protected:
    std::string ShownDate() { return Running().Control("lblLastUpdated").Text(); }
    std::string SavedDate() { return install_.Ini("database.ini", "Update", "Last"); }
    Window Check() { return Running().Control("chkAutoDBCheck"); }
    std::string SavedCheck() { return install_.Ini("Settings.ini", "Update", "CheckUpdate"); }
    void TurnCheck() {
        const bool before = Check().Checked();
        ClickOn("chkAutoDBCheck");
        ASSERT_TRUE(WaitUntil([&] { return Check().Checked() != before; }));
    }
};

TEST_F(UtilitiesUpdate, TheFirstVisitDatesTheDefinitionsOfANewInstallation) {
    SetLastUpdate(install_, "***");
    const std::string before = Today();
    OpenUtilities();
    const std::string date = SavedDate();
    EXPECT_TRUE(date == before || date == Today()) << date;
    EXPECT_EQ(ShownDate(), "Last Updated On: " + date);
    EXPECT_EQ(install_.Ini("database.ini", "Database", "Version"), "7.5");
    const std::string file = install_.Read("database.ini");
    ASSERT_TRUE(Running().Press("cmdOptions"));
    ASSERT_TRUE(Running().Press("cmdUtilities"));
    EXPECT_EQ(ShownDate(), "Last Updated On: " + date);
    EXPECT_EQ(install_.Read("database.ini"), file);
}

TEST_F(UtilitiesUpdate, ADateIsShownAndStaysAsItIs) {
    SetLastUpdate(install_, "10/5/2004");
    const std::string file = install_.Read("database.ini");
    OpenUtilities();
    EXPECT_EQ(ShownDate(), "Last Updated On: 10/5/2004");
    EXPECT_EQ(install_.Read("database.ini"), file);
}

TEST_F(UtilitiesUpdate, WithoutADateNothingFollowsTheWords) {
    install_.Remove("database.ini");
    OpenUtilities();
    EXPECT_EQ(ShownDate(), "Last Updated On: ");
    EXPECT_FALSE(install_.Exists("database.ini"));
}

TEST_F(UtilitiesUpdate, TheCheckIsRememberedWhenThePageIsLeft) {
    OpenUtilities();
    ASSERT_FALSE(Check().Checked());
    TurnCheck();
    EXPECT_EQ(SavedCheck(), "0");
    ASSERT_TRUE(Running().Press("cmdProcess"));
    EXPECT_EQ(SavedCheck(), "1");
    ASSERT_TRUE(Running().Press("cmdUtilities"));
    EXPECT_TRUE(Check().Checked());
}

TEST_F(UtilitiesUpdate, TheCheckIsRememberedWhenTheProgramIsClosed) {
    install_.Write("Settings.ini", "[Main]\r\nFirstRun=1\r\n");
    OpenUtilities();
    ASSERT_TRUE(Check().Checked()) << "it is on where nothing is said";
    TurnCheck();
    EXPECT_EQ(Running().Close(), 0u);
    EXPECT_EQ(SavedCheck(), "0");
}

TEST_F(UtilitiesUpdate, TheUpdateProgramIsToldWhatToUpdate) {
    SetLastUpdate(install_, "10/5/2004");
    OpenUtilities();
    const std::string start = RecordOf("\"" + install_.Path("Morvane.exe") + "\"");
    std::string starts;
    for (const char* button : {"cmdUpdateDefinition", "cmdUpdateSoftware"}) {
        install_.Remove("version.ini");
        ClickOn(button);
        starts += start;
        EXPECT_EQ(Recorded("MorVane", starts), starts);
        EXPECT_EQ(install_.Ini("version.ini", "Application", "Name"), "Velkarix");
        EXPECT_EQ(install_.Ini("version.ini", "Application", "Version"), "7.5");
    }
}

TEST_F(UtilitiesUpdate, WithoutAnUpdateProgramNobodyIsTold) {
    constexpr const char* Older = "[Application]\r\nName=Velkarix\r\nVersion=7.4\r\n";
    install_.Remove("MorVane.exe");
    install_.Write("version.ini", Older);
    OpenUtilities();
    for (const char* button : {"cmdUpdateDefinition", "cmdUpdateSoftware"}) {
        ClickOn(button);
        ExpectMessage("Update utlity not found.", Icon::Critical);
        EXPECT_EQ(install_.Read("version.ini"), Older);
    }
}

TEST_F(UtilitiesUpdate, ItsButtonsSayWhatTheyAreForWhereTheMouseRests) {
    OpenUtilities();
    for (const auto& [button, words] :
         {std::pair("cmdUpdateDefinition", "Click to update the current database "),
          std::pair("cmdUpdateSoftware", "Click to update the current software ")}) {
        MoveTo(Inside(Running().Control(button).Area()));
        const Window tip = WaitFor([&] {
            for (const Window& window : TopWindows(Running().Id())) {
                if (window.Class() == "tooltips_class32" && window.Text() == words) return window;
            }
            return Window();
        });
        EXPECT_TRUE(tip) << words;
        MoveTo(Inside(Running().Control("fmHosts").Area()));
        EXPECT_TRUE(WaitUntil([&] { return !tip.Visible(); })) << words;
    }
}

}  // namespace
}  // namespace velkarix::e2e
