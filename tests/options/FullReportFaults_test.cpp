// The full report when the machine fails: what can't be written is told by its writer, the rest
// goes on, and the command can be given again.
#include "tests/options/FullReportPage.h"

namespace velkarix {
namespace {

constexpr const char* Denied = "Access is denied.\r\n";

class FullReportFailure : public FullReportPage {
  protected:
    FullReportFailure() { PutReportMachine(Machine()); }
    // What the writers say of it, in their order.
    static Texts AllWriters(const std::string& error) {
        Texts texts;
        for (const char* writer :
             {"Process printReport: ", "BHO printReport: ", "Toolbar printReport: ",
              "Button printReport: ", "Menu printReport: ", "Protocol printReport: ",
              "Domain printReport: ", "URLs printReport: ", "Hook printReport: ",
              "Startup printReport: ", "AddRemove prinReport: "}) {
            texts.push_back(std::string("Error Occurred ") + writer + "\r\n" + error);
        }
        return texts;
    }
};

TEST_F(FullReportFailure, IsToldByEachWriterWhereTheFileCanNotBeWritten) {
    Machine().AddFile(ReportFile).Content("old").ReadOnly();
    Open();
    TickAll();
    Generate();
    EXPECT_EQ(Messages(), AllWriters(Denied));
    EXPECT_EQ(Report(), "old");
    EXPECT_EQ(Opened(), ReportFile);
    EXPECT_TRUE(ReportButton().Enabled());
}

TEST_F(FullReportFailure, IsToldByEachWriterWhereThereIsNoSuchFolder) {
    Open();
    TickAll();
    program.desktop.nextSaveFile = "C:\\Nowhere\\Full.txt";
    ReportButton().Raise("Click");
    EXPECT_EQ(Messages(), AllWriters("The system cannot find the path specified.\r\n"));
    EXPECT_TRUE(ReportButton().Enabled());
}

TEST_F(FullReportFailure, CanBeGivenAgainAfterIt) {
    Machine().AddFile(ReportFile).Content("old").ReadOnly();
    Open();
    TickAll();
    Generate();
    Machine().disk.Remove(ReportFile);
    Generate();
    EXPECT_EQ(Report(), WholeReport());
}

// The settings that are kept meanwhile need the disk as well: areas without any are chosen.
TEST_F(FullReportFailure, KeepsWhatADiskTakesThatFillsUp) {
    Open();
    Tick({"chkIE", "chkStartup"});
    const std::string whole = ReportHeader() + BrowserArea() + StartupArea();
    for (std::size_t room = 0; room < whole.size() + 100; room += 97) {
        Machine().disk.Remove(ReportFile);
        Machine().disk.SetFreeBytes(room);
        Generate();
        EXPECT_EQ(Report(), whole.substr(0, room));
        EXPECT_TRUE(ReportButton().Enabled());
    }
    EXPECT_EQ(Messages().back(), "Error Occurred Startup printReport: \r\nThe disk is full.\r\n");
}

TEST_F(FullReportFailure, GoesOnBehindAWriterThatFailed) {
    Open();
    TickAll();
    program.desktop.onYield = [this] {
        auto file = Machine().disk.Find(ReportFile);
        if (program.desktop.yields == 4) file->attributes |= fileAttribute::ReadOnly;
        if (program.desktop.yields == 5) file->attributes &= ~fileAttribute::ReadOnly;
    };
    Generate();
    EXPECT_EQ(Messages(), Texts{AllWriters(Denied)[3]});
    std::string expected = WholeReport();
    const std::size_t from = expected.find("\r\n****** Toolbar Button Report ******");
    expected.erase(from, expected.find("\r\n****** Menu Report ******") - from);
    EXPECT_EQ(Report(), expected);
}

// A heading that can't be written is left out without a word: its writer speaks for both.
TEST_F(FullReportFailure, LeavesAHeadingOutThatCanNotBeWritten) {
    Open();
    Tick({"chkAddremove"});
    Machine().Journal().Clear();
    std::size_t opened = 0;  // behind the header
    program.desktop.onYield = [&] {
        Machine().FailNext("CreateFileA");
        opened = Machine().Journal().CountOf("CreateFileA");
    };
    Generate();
    EXPECT_EQ(opened, 1u);
    EXPECT_EQ(Report(), ReportHeader() + InstalledArea().substr(2));
    EXPECT_TRUE(Messages().empty());
}

}  // namespace
}  // namespace velkarix
