// The reports of the browser's lists, compared whole.
#include <algorithm>

#include "BrowserReports.h"
#include "BrowserRows.h"
#include "BrowserTest.h"
#include "Input.h"
#include "Reports.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class BrowserReportOf : public BrowserTest, public testing::WithParamInterface<BrowserReport> {
  protected:
    const BrowserReport& Each() const { return GetParam(); }
    std::string Save() {
        EXPECT_TRUE(SaveReport(Running(), Each().list.report, install_.Path("Mine.txt")));
        EXPECT_NE(Opened().find("\"" + install_.Path("Mine.txt") + "\""), std::string::npos);
        return install_.Read("Mine.txt");
    }
};

TEST_P(BrowserReportOf, TellsEveryRowInTheOrderOfTheList) {
    OpenBrowser();
    Show(Each().list);
    const std::vector<RowTexts> rows = Running().List(Each().list.list).Rows();
    for (const BrowserRow& row : RowsOf(Each().list))
        EXPECT_EQ(std::ranges::count(rows, row.texts), 1);
    const std::string report = Save();
    std::string rest;
    const std::vector<std::string> header = HeaderOf(report, rest);
    ASSERT_EQ(header.size(), 10u) << report;
    EXPECT_EQ(header[0], Each().title + std::string(" Velkarix"));
    const std::vector<std::string> blocks = BlocksOf(report);
    EXPECT_EQ(blocks, BrowserBlocks(Each(), rows));
    EXPECT_TRUE(rest.ends_with(blocks.back())) << "something follows the last row";
}

TEST_P(BrowserReportOf, FollowsTheOrderOnTheScreen) {
    OpenBrowser();
    const ListWindow list = Show(Each().list);
    BringToFront(Running().Main());
    const std::vector<RowTexts> before = list.Rows();
    ClickAt(list.Header(0));
    ASSERT_TRUE(WaitUntil([&] { return list.Rows() != before; }));
    const std::vector<std::string> rows = list.Column(0);
    const std::vector<std::string> blocks = BlocksOf(Save());
    ASSERT_EQ(blocks.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::string first = blocks[i].substr(0, blocks[i].find("\r\n"));
        EXPECT_NE(first.find(" : " + rows[i]), std::string::npos) << first;
    }
}

TEST_P(BrowserReportOf, HasItsNameProposed) {
    OpenBrowser();
    Show(Each().list);
    const Window dialog = OpenReportDialog(Running(), Each().list.report);
    ASSERT_TRUE(dialog);
    EXPECT_EQ(FileNameBox(dialog).Text(), Each().fileName);
    EXPECT_TRUE(PressIn(dialog, IDCANCEL));
}

TEST_P(BrowserReportOf, IsNotMadeOfAnEmptyList) {
    for (const BrowserPlace& each : PlacesBefore()) DeleteTree(each.place.hive, each.place.path);
    OpenBrowser();
    ASSERT_EQ(Show(Each().list).RowCount(), 0);
    ASSERT_TRUE(Running().Control(Each().list.report).Click());
    const Window message = Running().Message();
    ASSERT_TRUE(message);
    EXPECT_EQ(message.Text(), "Velkarix");
    EXPECT_EQ(MessageText(message), Each().emptyMessage);
    EXPECT_TRUE(Answer(message, IDOK));
}

INSTANTIATE_TEST_SUITE_P(Each, BrowserReportOf, testing::ValuesIn(BrowserReports),
                         [](const auto& each) { return each.param.list.backup; });

}  // namespace
}  // namespace velkarix::e2e
