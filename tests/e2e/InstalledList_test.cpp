// What the list of installed applications shows: which entries, their icons, their marks.
#include <windows.h>
#include <commctrl.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <map>

#include "AskInside.h"
#include "Input.h"
#include "InstalledTest.h"
#include "Marks.h"
#include "Screen.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

// The colour that fills most of a sample's icon.
const std::map<std::string, COLORREF> IconColors = {
    {"SampleIdle", RGB(0x4A, 0x7A, 0xB5)},     {"SampleSafe", RGB(0x4F, 0x9A, 0x5B)},
    {"SampleSuspect", RGB(0xB5, 0x56, 0x4A)},  {"SampleTray", RGB(0x3D, 0x8F, 0x6A)},
    {"SampleRecorder", RGB(0x8A, 0x8A, 0x8A)}, {"SampleUninstaller", RGB(0x8A, 0x5A, 0x9A)},
};

bool IsNearly(COLORREF a, COLORREF b) {
    constexpr int Tolerance = 6;
    return std::abs(GetRValue(a) - GetRValue(b)) <= Tolerance &&
           std::abs(GetGValue(a) - GetGValue(b)) <= Tolerance &&
           std::abs(GetBValue(a) - GetBValue(b)) <= Tolerance;
}

std::vector<RowTexts> ExpectedRows() {
    std::vector<RowTexts> rows;
    for (const auto& each : InstalledApplications()) rows.push_back({each.name, each.command});
    return rows;
}

class InstalledList : public InstalledTest {
  protected:
    // The samples whose colour fills a good part of the row's icon.
    std::string IconOf(int row) {
        const RECT area = Applications().IconArea(row);
        const int size = GetSystemMetrics(InDetails() ? SM_CXSMICON : SM_CXICON);
        std::string names;
        for (const auto& [name, color] : IconColors) {
            const int count =
                CountPixels(area, [&](COLORREF each) { return IsNearly(each, color); });
            if (count > size * size / 4) names += name;
        }
        return names;
    }
    void ExpectIcons() {
        for (const InstalledApplication& each : InstalledApplications()) {
            const std::optional<int> row = Applications().Find(each.name);
            ASSERT_TRUE(row) << each.name;
            Applications().Show(*row);
            EXPECT_TRUE(WaitUntil([&] { return IconOf(*row) == each.icon; }, 2000))
                << each.name << " shows '" << IconOf(*row) << "' instead of '" << each.icon << "'";
        }
    }
};

class EverySystemInstalledList : public InstalledList {};

TEST_F(EverySystemInstalledList, ShowsByNameWhatCanBeRemoved) {
    OpenInstalled();
    EXPECT_EQ(Applications().Rows(), ExpectedRows());
}

TEST_F(EverySystemInstalledList, ShowsTheIconsOfFilesAndOfWhatTheSystemKeeps) {
    OpenInstalled();
    ExpectIcons();
    ChooseView(true);
    ExpectIcons();
}

TEST_F(InstalledList, HasItsColumnsWideEnoughToRead) {
    OpenInstalled();
    ChooseView(true);
    EXPECT_EQ(Applications().ColumnCaptions(),
              (std::vector<std::string>{"Display Name", "Uninstall Command"}));
    for (const int width : Applications().ColumnWidths()) EXPECT_GT(width, 100);
}

TEST_F(InstalledList, HasNothingToTickAndNothingSelectedAtFirst) {
    OpenInstalled();
    const LRESULT style = SendMessageA(Applications().Handle(), LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0);
    EXPECT_EQ(style & LVS_EX_CHECKBOXES, 0);
    EXPECT_FALSE(Applications().Selected());
}

TEST_F(InstalledList, ASuspiciousApplicationIsRedInBothViewsAndNoOtherIs) {
    OpenInstalled();
    for (const bool details : {false, true}) {
        ChooseView(details);
        for (const InstalledApplication& each : InstalledApplications()) {
            const int row = Applications().Find(each.name).value_or(0);
            Applications().Show(row);
            const COLORREF color = ColorOf(each.suspicious ? Mark::Suspicious : Mark::None);
            const RECT label = Applications().LabelArea(row);
            EXPECT_TRUE(WaitUntil([&] { return TextColor(label) == color; }, 2000))
                << each.name << std::hex << " has " << TextColor(label);
        }
    }
}

TEST_F(InstalledList, OnlyANoRemoveOfOneHidesAnEntry) {
    const std::string key = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\SampleSuite";
    OpenInstalled();
    for (const std::uint8_t number : {std::uint8_t{2}, std::uint8_t{1}, std::uint8_t{0}}) {
        WriteValue(HKEY_LOCAL_MACHINE, key, "NoRemove", {REG_DWORD, {number, 0, 0, 0}});
        ASSERT_TRUE(Running().Press("cmdRefresh"));
        EXPECT_EQ(Applications().Find("Sample Suite").has_value(), number != 1) << int{number};
    }
}

TEST_F(InstalledList, RefreshAndF5ShowWhatHasComeAndWhatHasGone) {
    const std::string key = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";
    OpenInstalled();
    BringToFront(Running().Main());
    DeleteTree(HKEY_LOCAL_MACHINE, key + "SampleSuite");
    EXPECT_TRUE(Applications().Find("Sample Suite")) << "a list shows what was read";
    ASSERT_TRUE(Running().Press("cmdRefresh"));
    EXPECT_FALSE(Applications().Find("Sample Suite"));
    for (const char* name : {"DisplayName", "UninstallString"}) {
        WriteValue(HKEY_LOCAL_MACHINE, key + "New", name, {REG_SZ, {'A', 'b', 'c', 0}});
    }
    PressKey(VK_F5);
    EXPECT_TRUE(WaitUntil([this] { return Names().front() == "Abc"; }));
}

TEST_F(InstalledList, ASecondClickOnAHeaderTurnsTheOrder) {
    OpenInstalled();
    ChooseView(true);
    std::vector<std::string> names = Names();
    std::ranges::reverse(names);
    ClickAt(Applications().Header(0));
    EXPECT_TRUE(WaitUntil([&] { return Names() == names; }));
}

TEST_F(InstalledList, EveryTextOfThePageFitsItsPlace) {
    OpenInstalled();
    for (const bool details : {false, true}) {
        ChooseView(details);
        EXPECT_EQ(AskInside(Running().Main(), CutTextsQuestion), "");
    }
}

}  // namespace
}  // namespace velkarix::e2e
