// Files with version resources of any make, on each page that shows the facts of files.
#include "process/ProcessColumns.h"
#include "startup/StartupColumns.h"
#include "tests/field/FieldPages.h"
#include "tests/field/VersionCases.h"

namespace velkarix {
namespace {

constexpr const char* File = "C:\\Odd\\odd.exe";
constexpr const char* Class = "{0DD0C1A5-0001}";

class FieldVersions : public FieldPages, public testing::WithParamInterface<VersionCase> {
  protected:
    FieldVersions() {
        Machine().AddFile(File).Content("code").Created(2003, 5, 7).VersionBlock(GetParam().block);
    }
    // One row, of which the facts stand from that column on: size, date, company, product,
    // description.
    void ExpectFacts(const FieldList& list, std::size_t size) {
        const VersionCase& version = GetParam();
        Enter(list);
        ASSERT_EQ(Rows(list).size(), 1u);
        const RowTexts row = Rows(list)[0];
        EXPECT_EQ(
            RowTexts(row.begin() + static_cast<std::ptrdiff_t>(size),
                     row.begin() + static_cast<std::ptrdiff_t>(size) + 5),
            (RowTexts{"0.0", "05/07/2003", version.company, version.product, version.description}));
        const std::string report = ReportOf(list);
        for (const std::string& line :
             {"Company Name      : " + version.company, "Product Name      : " + version.product,
              "Description       : " + version.description}) {
            EXPECT_NE(report.find(line + "\r\n"), std::string::npos) << line << "\n" << report;
        }
        EXPECT_EQ(Messages(), RowTexts());
    }
};

TEST_P(FieldVersions, OfAStartupItem) {
    Machine().SetValue(Hive::LocalMachine, LiveRun, "Odd", File);
    ExpectFacts(StartupRows, startupColumn::Facts.size);
}

TEST_P(FieldVersions, OfABrowserItem) {
    Machine().SetValue(Hive::ClassesRoot, std::string("CLSID\\") + Class + "\\InprocServer32", "",
                       File);
    Machine().AddKey(Hive::LocalMachine, std::string(live::BHOs) + "\\" + Class);
    ExpectFacts(BrowserRows(BHOs), 4);
}

TEST_P(FieldVersions, OfAProcess) {
    Machine().AddProcess(8, File);
    ExpectFacts(ProcessRows, processColumn::Size);
}

INSTANTIATE_TEST_SUITE_P(Each, FieldVersions, testing::ValuesIn(AllVersionCases()),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace
}  // namespace velkarix
