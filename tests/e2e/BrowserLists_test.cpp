// What the seven lists of the browser page show: live and disabled items, their files, their marks.
#include <algorithm>

#include "BrowserRows.h"
#include "BrowserTest.h"
#include "Input.h"
#include "Screen.h"
#include "Setup.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class BrowserPageLists : public BrowserTest {
  protected:
    // The list's rows, without the protocols of the system itself.
    std::vector<RowTexts> OwnRows(const BrowserList& each) {
        std::vector<RowTexts> rows = Show(each).Rows();
        if (&each == &Protocols) {
            std::erase_if(rows, [](const RowTexts& row) {
                return row.at(0).find("sample") == std::string::npos;
            });
        }
        return rows;
    }
    static std::vector<RowTexts> ExpectedTexts(const BrowserList& each) {
        std::vector<RowTexts> texts;
        for (const BrowserRow& row : RowsOf(each)) texts.push_back(row.texts);
        return texts;
    }
    static int PlaceOf(const ListWindow& list, const RowTexts& texts) {
        const std::vector<RowTexts> rows = list.Rows();
        return static_cast<int>(std::ranges::find(rows, texts) - rows.begin());
    }
    // Of a program that is started for it.
    int RedPixelsOfTheSuspect() {
        OpenBrowser();
        const ListWindow list = Show(BHOs);
        SelectRow(list, 0);
        const RECT label = list.LabelArea(list.Find(Clsid("0B100002")).value_or(0));
        WaitUntil([&] { return CountPixels(label, IsReddish) > 0; });
        return CountPixels(label, IsReddish);
    }
};

class EverySystemBrowserPageLists : public BrowserPageLists {};

TEST_F(EverySystemBrowserPageLists, EachShowsItsLiveItemsAndThenTheDisabledOnes) {
    OpenBrowser();
    for (const BrowserList* each : BrowserLists) {
        EXPECT_EQ(OwnRows(*each), ExpectedTexts(*each)) << each->list;
    }
}

TEST_F(BrowserPageLists, EachHasItsColumns) {
    OpenBrowser();
    for (const BrowserList* each : BrowserLists) {
        EXPECT_EQ(Show(*each).ColumnCaptions(), ColumnsOf(*each)) << each->list;
    }
}

TEST_F(BrowserPageLists, TheSystemsProtocolsAreAmongTheOthers) {
    OpenBrowser();
    const ListWindow list = Show(Protocols);
    EXPECT_TRUE(list.Find("gzip"));
    EXPECT_TRUE(list.Find("http"));
}

TEST_F(BrowserPageLists, TheColoursTellWhatIsSuspiciousAndWhatIsDisabled) {
    OpenBrowser();
    for (const BrowserList* each : BrowserLists) {
        const ListWindow list = Show(*each);
        for (const BrowserRow& expected : RowsOf(*each)) {
            const int row = PlaceOf(list, expected.texts);
            ASSERT_LT(row, list.RowCount());
            // What is selected has the colours of the selection.
            SelectRow(list, row == 0 ? 1 : 0);
            list.Show(row);
            const RECT label = list.LabelArea(row);
            const COLORREF color = ColorOf(expected.mark);
            EXPECT_TRUE(WaitUntil([&] { return TextColor(label) == color; }, 2000))
                << each->list << ": " << expected.texts[0] << std::hex << " has "
                << TextColor(label) << " instead of " << color;
        }
    }
}

TEST_F(BrowserPageLists, SuspiciousRowsAreBoldUnlessTheSettingsSayOtherwise) {
    const int bold = RedPixelsOfTheSuspect();
    ASSERT_GT(bold, 0);
    WritePrivateProfileStringA("Main", "FontBold", "0", install_.Path("Settings.ini").c_str());
    const int plain = RedPixelsOfTheSuspect();
    EXPECT_GT(plain, 0);
    EXPECT_LT(plain, bold);
}

TEST_F(BrowserPageLists, AClassIsKnownByItsLettersInLowerCaseAlone) {
    install_.Write("SusCLSID.vkl", Clsid("0B1000C3") + "\r\n");
    OpenBrowser();
    const ListWindow list = Show(BHOs);
    SelectRow(list, 0);
    EXPECT_TRUE(WaitUntil([&] {
        return TextColor(list.LabelArea(*list.Find(Clsid("0B100002")))) ==
               ColorOf(Mark::Suspicious);
    }));
    EXPECT_EQ(TextColor(list.LabelArea(*list.Find(Clsid("0B1000C3")))), ColorOf(Mark::None));
}

TEST_F(BrowserPageLists, RefreshDropsTicksAndSelection) {
    OpenBrowser();
    for (const BrowserList* each : BrowserLists) {
        const ListWindow list = Show(*each);
        const std::vector<RowTexts> rows = list.Rows();
        EXPECT_FALSE(list.Checked(1)) << each->list;
        SelectRow(list, 1);
        Tick(list, 1);
        ASSERT_TRUE(Running().Press(each->refresh));
        EXPECT_EQ(list.Rows(), rows) << each->list;
        EXPECT_FALSE(list.Checked(1)) << each->list;
        EXPECT_FALSE(list.Selected()) << each->list;
    }
}

TEST_F(BrowserPageLists, F5RefreshesTheListOnView) {
    OpenBrowser();
    BringToFront(Running().Main());
    for (const BrowserList* each : BrowserLists) {
        const ListWindow list = Show(*each);
        Tick(list, 1);
        PressKey(VK_F5);
        EXPECT_TRUE(WaitUntil([&] { return !list.Checked(1); })) << each->list;
    }
}

TEST_F(BrowserPageLists, AHeaderSortsDescendingFirst) {
    OpenBrowser();
    BringToFront(Running().Main());
    for (const BrowserList* each : BrowserLists) {
        const ListWindow list = Show(*each);
        std::vector<std::string> texts = list.Column(0);
        std::ranges::sort(texts, [](const std::string& a, const std::string& b) {
            return lstrcmpiA(a.c_str(), b.c_str()) > 0;
        });
        ClickAt(list.Header(0));
        EXPECT_TRUE(WaitUntil([&] { return list.Column(0) == texts; })) << each->list;
    }
}

TEST_F(BrowserPageLists, ARefreshShowsWhatIsGoneNoMore) {
    OpenBrowser();
    for (const SampleItem& item : SampleItems) {
        Show(item.list);
        RemoveItem(item);
        EXPECT_TRUE(IsListed(item, true)) << "a list shows what was read: " << item;
        ASSERT_TRUE(Running().Press(item.list.refresh));
        EXPECT_FALSE(IsListed(item, true)) << item;
    }
}

TEST_F(BrowserPageLists, AnItemThatIsLiveAndDisabledAtOnceIsTwoRows) {
    for (const SampleItem& item : SampleItems) CopyToHeld(item);
    OpenBrowser();
    for (const SampleItem& item : SampleItems) {
        EXPECT_TRUE(IsListed(item, true)) << item;
        EXPECT_TRUE(IsListed(item, false)) << item;
    }
}

}  // namespace
}  // namespace velkarix::e2e
