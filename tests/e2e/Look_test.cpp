// What holds for the program whatever the user's system looks like: resolution, colours, fonts,
// size of the screen.
#include <string>
#include <vector>

#include "AskInside.h"
#include "Input.h"
#include "Places.h"
#include "ProgramTest.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

bool IsInside(const RECT& inner, const RECT& outer) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

std::string InWords(const Window& window) {
    const RECT area = window.Area();
    return window.Name() + " at " + std::to_string(area.left) + ", " + std::to_string(area.top) +
           " to " + std::to_string(area.right) + ", " + std::to_string(area.bottom);
}

// Whether other controls stand on it.
bool IsGround(const Window& window) {
    const std::string kind = window.Class();
    const bool isFrame = kind == "Button" && (window.Style() & BS_TYPEMASK) == BS_GROUPBOX;
    return isFrame || kind == "SysTabControl32" || kind.starts_with("Velkarix");
}

// Whether the form that a control stands in scrolls, so that what is outside comes in.
bool Scrolls(const Window& control) {
    return (Window(GetParent(control.Handle())).Style() & (WS_VSCROLL | WS_HSCROLL)) != 0;
}

// Whether the beginning of a control is seen in the form that it stands in.
bool IsInSight(const Window& control) {
    const HWND form = GetParent(control.Handle());
    RECT client{};
    GetClientRect(form, &client);
    MapWindowPoints(form, nullptr, reinterpret_cast<POINT*>(&client), 2);
    const RECT area = control.Area();
    return PtInRect(&client, {area.left, area.top}) != FALSE &&
           (area.bottom <= client.bottom || area.top < (client.top + client.bottom) / 2);
}

std::vector<Window> NamedAndVisible(const Window& parent) {
    std::vector<Window> windows = parent.Children();
    std::erase_if(windows,
                  [](const Window& each) { return each.Name().empty() || !each.Visible(); });
    return windows;
}

void ExpectInside(const Window& top) {
    RECT work{};
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
    EXPECT_TRUE(IsInside(top.Area(), work)) << InWords(top);
    RECT client{};
    GetClientRect(top.Handle(), &client);
    MapWindowPoints(top.Handle(), nullptr, reinterpret_cast<POINT*>(&client), 2);
    for (const Window& each : NamedAndVisible(top)) {
        EXPECT_TRUE(Scrolls(each) || IsInside(each.Area(), client)) << InWords(each);
    }
}

// What is seen of a control: no more than the windows that it stands in show. Empty when a form has
// scrolled it out of sight.
RECT SeenArea(const Window& control) {
    RECT seen = control.Area();
    for (HWND around = GetParent(control.Handle()); around != nullptr; around = GetParent(around)) {
        RECT client{};
        GetClientRect(around, &client);
        MapWindowPoints(around, nullptr, reinterpret_cast<POINT*>(&client), 2);
        const RECT before = seen;
        IntersectRect(&seen, &before, &client);
    }
    return seen;
}

void ExpectNoOverlap(const Window& top) {
    std::vector<Window> windows = NamedAndVisible(top);
    std::erase_if(windows, IsGround);
    for (std::size_t i = 0; i < windows.size(); ++i) {
        for (std::size_t j = i + 1; j < windows.size(); ++j) {
            const RECT one = SeenArea(windows[i]);
            const RECT other = SeenArea(windows[j]);
            RECT common{};
            EXPECT_FALSE(IntersectRect(&common, &one, &other))
                << InWords(windows[i]) << ", " << InWords(windows[j]);
        }
    }
}

class Look : public ProgramTest {
  protected:
    static void ExpectWhole(const Window& top) {
        EXPECT_EQ(AskInside(top, CutTextsQuestion), "") << "a text is cut";
        ExpectInside(top);
        ExpectNoOverlap(top);
    }
};

TEST_F(Look, EveryPlaceIsSeenWhole) {
    Start();
    ASSERT_TRUE(BringToFront(Running().Main()));
    for (const Place& place : AllPlaces()) {
        const testing::ScopedTrace trace(__FILE__, __LINE__, NameOf(place));
        ASSERT_TRUE(GoTo(Running(), place));
        ExpectWhole(Running().Main());
    }
}

TEST_F(Look, EveryDialogIsSeenWhole) {
    Start();
    SelectRow("SampleIdle.exe");
    for (const auto& [button, name] :
         {std::pair{"cmdViewInformation", "frmviewInfo"}, std::pair{"lblAbout", "frmAbout"}}) {
        const testing::ScopedTrace trace(__FILE__, __LINE__, name);
        ASSERT_TRUE(Running().Control(button).Click());
        const Window dialog = Running().Dialog(name);
        ASSERT_TRUE(dialog);
        ExpectWhole(dialog);
        ASSERT_TRUE(dialog.Find("cmdOk").Click());
        ASSERT_TRUE(WaitUntil([&] { return !dialog; }));
    }
}

TEST_F(Look, WhatHasTheFocusIsInSight) {
    constexpr int Steps = 30;
    Start();
    ASSERT_TRUE(BringToFront(Running().Main()));
    for (const Place& place : {Place{"cmdProcess"}, Place{"cmdIE", "cmdURLs"}, Place{"cmdOptions"},
                               Place{"cmdUtilities"}}) {
        ASSERT_TRUE(GoTo(Running(), place));
        for (int i = 0; i < Steps; ++i) {
            const Window before = FocusOf(Running().Main().Thread());
            PressKey(VK_TAB);
            ASSERT_TRUE(WaitUntil([&] { return FocusOf(Running().Main().Thread()) != before; }));
            const Window now = FocusOf(Running().Main().Thread());
            EXPECT_TRUE(WaitUntil([&] { return IsInSight(now); }, 1000))
                << InWords(now) << ", " << NameOf(place);
        }
    }
}

}  // namespace
}  // namespace velkarix::e2e
