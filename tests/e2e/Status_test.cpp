// The foot of the main window: counts at rest, and what the program is busy with while it serves
// no events.
#include <algorithm>
#include <set>

#include "BrowserTest.h"
#include "Input.h"
#include "Screen.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

constexpr const char* DomainKeys =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains\\";

class Status : public BrowserTest {
  protected:
    // Also of a program that serves no messages now.
    std::string Text() {
        char text[512] = "";
        GetWindowTextA(status_.Handle(), text, sizeof text);
        return text;
    }
    bool Says(const std::string& text) {
        return WaitUntil([&] { return Text() == text; });
    }
    void Open() {
        Start();
        status_ = Running().Control("lblStatus");
        bar_ = Running().Control("barProgress");
    }
    static std::string Rows(const ListWindow& list) {
        return std::to_string(list.RowCount()) + " rows";
    }
    static void AddDomains(int count) {
        for (int i = 0; i < count; ++i) {
            HKEY key = nullptr;
            const std::string path = DomainKeys + std::to_string(i) + ".status.example";
            RegCreateKeyA(HKEY_CURRENT_USER, path.c_str(), &key);
            const DWORD zone = 4;
            RegSetValueExA(key, "*", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&zone),
                           sizeof zone);
            RegCloseKey(key);
        }
    }
    int ColouredPixelsOfBar() const {
        constexpr int Strong = 60;  // the grounds of windows are weaker
        return CountPixels(bar_.Area(), [](COLORREF colour) {
            const auto [least, most] =
                std::minmax({GetRValue(colour), GetGValue(colour), GetBValue(colour)});
            return most - least > Strong;
        });
    }

    Window status_;
    Window bar_;
};

TEST_F(Status, CountsRowsAndWhatIsMarkedAndTicked) {
    Open();
    const std::string rows = Rows(List()) + ", 1 suspicious";
    EXPECT_TRUE(Says(rows)) << Text();
    Tick(List(), RowOf("SampleIdle.exe"));
    EXPECT_TRUE(Says(rows + ", 1 ticked")) << Text();
    PressKey(VK_SPACE);
    EXPECT_TRUE(WaitUntil([&] { return Text() != rows + ", 1 ticked"; }));
    ASSERT_TRUE(Running().Press("optFilter(0)"));
    EXPECT_TRUE(Says(Rows(List()))) << Text();
    EXPECT_FALSE(bar_.Visible());
}

TEST_F(Status, FollowsThePagesAndViews) {
    Open();
    ASSERT_TRUE(Running().Press("cmdIE"));
    const ListWindow menus = Show(Menus);
    EXPECT_TRUE(WaitUntil([&] { return Text().starts_with(Rows(menus)); })) << Text();
    ASSERT_TRUE(Running().Press("cmdURLs"));
    EXPECT_TRUE(Says("")) << Text();
    ASSERT_TRUE(Running().Press("cmdUtilities"));
    EXPECT_TRUE(Says("")) << Text();
}

// The program is looked at while a page is filled.
TEST_F(Status, ShowsOnTheScreenWhatIsReadWhileNoEventsAreServed) {
    AddDomains(4000);
    Open();
    BringToFront(Running().Main());
    ASSERT_EQ(ColouredPixelsOfBar(), 0);
    const Window button = Running().Control("cmdIE");
    ASSERT_TRUE(button.Post(BM_CLICK));
    std::set<std::string> seen;
    int mostPixels = 0;
    const bool done = WaitUntil([&] {
        if (Text().starts_with("Domains: ")) {
            seen.insert(Text());
            mostPixels = std::max(mostPixels, ColouredPixelsOfBar());
        }
        const Window page = Running().Main().Find("frmIE");
        return page && page.Visible();
    });
    ASSERT_TRUE(done);
    EXPECT_GE(seen.size(), 2u);
    EXPECT_GT(mostPixels, 0);
    EXPECT_TRUE(WaitUntil([this] { return !bar_.Visible(); }));
}

}  // namespace
}  // namespace velkarix::e2e
