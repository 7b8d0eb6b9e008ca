// The part of the full report about proxy, protocol defaults and security zones.
#include "options/FullReportBrowserSettings.h"

#include "tests/options/FullReportPage.h"

namespace velkarix {
namespace {

class FullReportBrowserSettings : public FullReportPage {
  protected:
    FullReportBrowserSettings() { PutReportMachine(Machine()); }
    frmIE& OpenBrowser() {
        program.Start();
        PressMain("cmdIE");
        return static_cast<frmIE&>(*Loaded("frmIE"));
    }
    std::string Printed(frmIE& page) {
        PrintBrowserSettings(program.application, page, ReportFile);
        return Report();
    }
    // Two ends of lines come before the part: one belongs to what precedes it.
    static std::string Expected(const std::string& firstZone) {
        return BrowserSettings(firstZone).substr(2);
    }
};

TEST_F(FullReportBrowserSettings, TellOfAllZonesOnAPageThatWasJustLoaded) {
    EXPECT_EQ(Printed(OpenBrowser()), Expected(FirstZone()));
}

TEST_F(FullReportBrowserSettings, TellTheZoneOnViewInPlaceOfTheFirst) {
    frmIE& page = OpenBrowser();
    page.loadSecurityZone(1);
    EXPECT_EQ(Printed(page), Expected("Property          : Download signed ActiveX controls\r\n"
                                      "Status            : Prompt\r\n"));
}

TEST_F(FullReportBrowserSettings, TellNothingOfAZoneWhoseFirstSettingIsMissing) {
    frmIE& page = OpenBrowser();
    page.loadSecurityZone(2);
    EXPECT_EQ(Printed(page), Expected(""));
}

TEST_F(FullReportBrowserSettings, TellWhatTheBoxesOfTheProxyShow) {
    frmIE& page = OpenBrowser();
    program.Get<CheckBox>("frmIE", "chkProxyEnabled").Raise("Click");
    program.Get<TextBox>("frmIE", "txtAddress").TakeInput("typed");
    program.Get<TextBox>("frmIE", "txtPort").TakeInput("");
    const std::string text = Printed(page);
    EXPECT_EQ(text.substr(0, text.find("\r\n\r\n****** Protocol")),
              "\r\n****** Proxy Server Report ******\r\n"
              "Proxy Enabled     : False\r\n"
              "Proxy Server      : typed\r\n"
              "Proxy Port        : ");
}

TEST_F(FullReportBrowserSettings, AreWrittenBehindWhatIsThere) {
    Machine().AddFile(ReportFile).Content("before\r\n");
    EXPECT_EQ(Printed(OpenBrowser()), "before\r\n" + Expected(FirstZone()));
}

// The zones' rows are taken before the page can be seen with them.
TEST_F(FullReportBrowserSettings, ServeNoEventsBetweenTheZones) {
    frmIE& page = OpenBrowser();
    Printed(page);
    EXPECT_EQ(program.desktop.yields, 0);
}

// Each piece that can't be written ends it: what was written before stays, and nothing is said.
TEST_F(FullReportBrowserSettings, EndWithoutAWordWhereTheyCanNotBeWritten) {
    frmIE& page = OpenBrowser();
    CallJournal& journal = Machine().Journal();
    journal.Clear();
    const std::string whole = Printed(page);
    std::vector<std::size_t> openings;
    for (std::size_t i = 0; i < journal.Calls().size(); ++i) {
        if (journal.Calls()[i].name == "CreateFileA") openings.push_back(i);
    }
    ASSERT_EQ(openings.size(), 8u);  // proxy, defaults, the heading of the zones, and five zones
    std::string last;
    for (const std::size_t opening : openings) {
        page.loadSecurityZone(0);
        Machine().disk.Remove(ReportFile);
        Machine().AddFile(ReportFile);
        journal.Clear();
        journal.FailCall(opening, error::AccessDenied);
        const std::string text = Printed(page);
        EXPECT_TRUE(whole.starts_with(text)) << text;
        EXPECT_TRUE(opening == openings[0] ? text.empty() : text.size() > last.size()) << text;
        EXPECT_LT(text.size(), whole.size());
        last = text;
    }
    EXPECT_TRUE(Messages().empty());
}

TEST_F(FullReportBrowserSettings, KeepWhatADiskTakesThatFillsUp) {
    frmIE& page = OpenBrowser();
    const std::string whole = Expected(FirstZone());
    Machine().disk.SetFreeBytes(200);
    EXPECT_EQ(Printed(page), whole.substr(0, 200));
    EXPECT_TRUE(Messages().empty());
}

}  // namespace
}  // namespace velkarix
