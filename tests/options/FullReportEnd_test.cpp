// The program ends while the full report is made.
#include <tuple>

#include "tests/options/FullReportPage.h"

namespace velkarix {
namespace {

struct End {
    const char* name;
    std::function<void(TestProgram&)> happens;
};
const End Ends[] = {
    {"ClosesTheMainWindow",
     [](TestProgram& it) { it.application.forms.Loaded("frmMain")->Close(); }},
    {"UnloadsAll", [](TestProgram& it) { it.application.forms.UnloadAll("frmMain"); }},
    {"HasAFault", [](TestProgram& it) { it.application.EndWithFault(53, "File not found"); }},
};
using Ended = std::tuple<const End*, int>;

class FullReportAtTheEnd : public FullReportPage, public testing::WithParamInterface<Ended> {};

TEST_P(FullReportAtTheEnd, EndsWithTheProgram) {
    PutReportMachine(Machine());
    Open();
    TickAll();
    std::string before;
    InYield(std::get<1>(GetParam()), [&] {
        before = Report();
        std::get<0>(GetParam())->happens(program);
        Machine().Journal().Clear();
    });
    Generate();
    EXPECT_EQ(program.desktop.yields, std::get<1>(GetParam()));
    EXPECT_EQ(Report(), before);
    EXPECT_TRUE(WholeReport().starts_with(before));
    EXPECT_TRUE(Machine().Journal().Calls().empty());
    EXPECT_EQ(Opened(), "");
    EXPECT_TRUE(Loaded("frmOptions") == nullptr || ReportButton().Enabled());
    program.application.forms.UnloadAll("frmMain");
    EXPECT_EQ(Loaded("frmIE"), nullptr);
}

INSTANTIATE_TEST_SUITE_P(When, FullReportAtTheEnd,
                         testing::Combine(testing::Values(&Ends[0], &Ends[1], &Ends[2]),
                                          testing::Range(1, Blocks + 1)),
                         [](const testing::TestParamInfo<Ended>& test) {
                             return std::get<0>(test.param)->name +
                                    std::to_string(std::get<1>(test.param));
                         });

class FullReportAtItsEnd : public FullReportPage {};

// A writer's message serves events too, so that the window may be closed behind the last of them.
TEST_F(FullReportAtItsEnd, EndsWithAMainWindowThatIsClosedInTheLastBlock) {
    PutReportMachine(Machine());
    Open();
    Tick({"chkAddremove"});
    program.desktop.onYield = [this] {
        const std::size_t next = Machine().Journal().Calls().size();
        Machine().Journal().OnCall(next, [this] { Loaded("frmMain")->Close(); });
    };
    Generate();
    EXPECT_EQ(Report(), ReportHeader() + InstalledArea());
    EXPECT_EQ(Opened(), "");
    EXPECT_NE(Loaded("frmAddRemove"), nullptr);  // goes with all others
}

}  // namespace
}  // namespace velkarix
