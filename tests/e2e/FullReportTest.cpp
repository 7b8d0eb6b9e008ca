#include "FullReportTest.h"

#include "Reports.h"
#include "Wait.h"

namespace velkarix::e2e {

void FullReportTest::OpenOptions(const std::vector<std::string>& boxes) {
    Start();
    ChooseAreas(boxes);
}

void FullReportTest::ChooseAreas(const std::vector<std::string>& boxes) {
    EXPECT_TRUE(Running().Press("cmdOptions"));
    for (const std::string& box : boxes) EXPECT_TRUE(Running().Press(box)) << box;
}

void FullReportTest::Begin(const std::string& name) {
    const Window button = Running().Control("cmdReport");
    EXPECT_TRUE(SaveReport(Running(), "cmdReport", install_.Path(name)));
    EXPECT_TRUE(WaitUntil([&] { return !button.Enabled(); })) << "the report isn't begun";
}

std::string FullReportTest::Make(const std::string& name) {
    EXPECT_TRUE(SaveReport(Running(), "cmdReport", install_.Path(name)));
    EXPECT_NE(Opened().find("\"" + install_.Path(name) + "\""), std::string::npos);
    return install_.Read(name);
}

}  // namespace velkarix::e2e
