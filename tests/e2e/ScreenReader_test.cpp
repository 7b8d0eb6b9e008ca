// What a screen reader finds to say of each control.
#include <windows.h>
//
#include <oleacc.h>

#include <algorithm>
#include <string>
#include <utility>

#include "Places.h"
#include "ProgramTest.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

// The name of a window's inside as the system's accessibility gives it to any reader.
std::string SpokenName(const Window& window) {
    using Call = HRESULT(WINAPI*)(HWND, DWORD, REFIID, void**);
    static const auto call = reinterpret_cast<Call>(reinterpret_cast<void*>(
        GetProcAddress(LoadLibraryA("oleacc.dll"), "AccessibleObjectFromWindow")));
    static const IID accessible = {
        0x618736E0, 0x3C3D, 0x11CF, {0x81, 0x0C, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71}};
    IAccessible* object = nullptr;
    if (call == nullptr || FAILED(call(window.Handle(), static_cast<DWORD>(OBJID_CLIENT),
                                       accessible, reinterpret_cast<void**>(&object)))) {
        return "";
    }
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    BSTR name = nullptr;
    object->get_accName(self, &name);
    object->Release();
    char text[512] = "";
    if (name != nullptr) {
        WideCharToMultiByte(CP_ACP, 0, name, -1, text, sizeof text, nullptr, nullptr);
    }
    SysFreeString(name);
    return text;
}

// What systems call by the label before it and not by its own text.
bool IsNamedByLabel(const Window& window) {
    constexpr const char* Classes[] = {"Edit", "ComboBox", "SysListView32", "SysTreeView32",
                                       "SysTabControl32"};
    return std::ranges::any_of(Classes, [&](const char* each) { return window.Class() == each; });
}

// A fact that isn't known has nothing to be said of.
bool IsEmptyLabel(const Window& window) {
    return window.Class() == "Static" && !window.Name().starts_with("pic") && window.Text().empty();
}

class ScreenReader : public ProgramTest {
  protected:
    ScreenReader() { Start(); }
    static void ExpectNames(const Window& top) {
        for (const Window& each : top.Children()) {
            if (each.Name().empty() || !each.Visible() || IsEmptyLabel(each)) continue;
            EXPECT_NE(SpokenName(each), "") << each.Name();
            if (!IsNamedByLabel(each)) continue;
            const Window label(GetWindow(each.Handle(), GW_HWNDPREV));
            EXPECT_EQ(label.Class(), "Static") << each.Name();
            EXPECT_NE(label.Text(), "") << each.Name();
            EXPECT_FALSE(label.Visible()) << each.Name();
        }
    }
};

TEST_F(ScreenReader, FindsANameForEveryControlOfEveryPlace) {
    for (const Place& place : AllPlaces()) {
        const testing::ScopedTrace trace(__FILE__, __LINE__, NameOf(place));
        ASSERT_TRUE(GoTo(Running(), place));
        ExpectNames(Running().Main());
    }
}

TEST_F(ScreenReader, FindsThemInTheDialogs) {
    SelectRow("SampleIdle.exe");
    for (const auto& [button, name] :
         {std::pair{"cmdViewInformation", "frmviewInfo"}, std::pair{"lblAbout", "frmAbout"}}) {
        ASSERT_TRUE(Running().Control(button).Click());
        const Window dialog = Running().Dialog(name);
        ASSERT_TRUE(dialog);
        ExpectNames(dialog);
        ASSERT_TRUE(dialog.Find("cmdOk").Click());
        ASSERT_TRUE(WaitUntil([&] { return !dialog; }));
    }
}

// Not what is typed in it.
TEST_F(ScreenReader, FindsWhatABoxIsForAndNotWhatItHolds) {
    ASSERT_TRUE(GoTo(Running(), {"cmdIE", "cmdURLs"}));
    const Window box = Running().Control("txtStartPage");
    ASSERT_NE(box.Text(), "");
    EXPECT_EQ(SpokenName(box), "Start Page");
}

}  // namespace
}  // namespace velkarix::e2e
