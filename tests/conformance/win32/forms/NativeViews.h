// A page of two views in one place, of which the second has two more under the tabs of a strip, and
// in one of those a strip stands around other controls.
#pragma once

#include "NativeForms.h"
#include "forms/ComboBox.h"
#include "forms/TabStrip.h"

namespace velkarix {

class PageOfViews : public Form {
  public:
    explicit PageOfViews(Calls& calls) : Form("pagViews", "Views", FormKind::Page), calls_(calls) {
        SetControls({&toFirst, &toSecond, &firstView, &list, &refresh, &secondView, &outer, &boxes,
                     &check, &label, &text, &zones, &inner, &zoneList, &rights, &apply});
        const Layout texts = Column({Item(check), Row({Item(label), Item(text, 1)})});
        const Layout zone =
            Group(inner, Column({Item(zoneList, 1), Row({Item(rights), Item(apply)})}));
        const Layout tabs = Group(outer, Stack({Group(boxes, texts), Group(zones, zone)}));
        SetLayout(Row({Column({Item(toFirst), Item(toSecond)}),
                       Stack({Group(firstView, Column({Item(list, 1), Item(refresh)})),
                              Group(secondView, tabs)},
                             1)}));
        SetAccelerators({{{Key::F5}, "cmdRefresh_Click"}, {{Key::F5}, "cmdApply_Click"}});
        SetButtons(&apply, nullptr);
        secondView.SetVisible(false);
        zones.SetVisible(false);
    }

    void View(bool first) {
        firstView.SetVisible(first);
        secondView.SetVisible(!first);
        if (whileSwitching) whileSwitching();
    }

    Handler whileSwitching;
    Button toFirst{"cmdFirst", "First", [this] { View(true); }, Button::Look::SmallPicture};
    Button toSecond{"cmdSecond", "Second", [this] { View(false); }, Button::Look::SmallPicture};
    Frame firstView{"fmViews(0)", "First"};
    ListView list{"lstvFirst", "First", {"Name"}, {}};
    Button refresh{"cmdRefresh", "Refresh", Telling("refresh")};
    Frame secondView{"fmViews(1)", "Second"};
    TabStrip outer{"tbOuter", "Kinds", {"Boxes", "Zones"}, [this] { Turn(); }};
    Panel boxes{"picTabs(0)", "Boxes", Panel::Look::Plain};
    CheckBox check{"chkTest", "Check", {}};
    Label label{"lblTest", "Label"};
    TextBox text{"txtTest", "Text", {20, 1, false}, Telling("text")};
    Panel zones{"picTabs(1)", "Zones", Panel::Look::Plain};
    TabStrip inner{"tbInner", "Zones", {"A", "B", "C"}, [this] { TellTab("inner", inner); }};
    ListView zoneList{"lstvZone", "Zone", {"Name"}, {}};
    ComboBox rights{"cmbRights", "Rights", Entries(12),
                    [this] { calls_.push_back("rights " + rights.SelectedText()); }};
    Button apply{"cmdApply", "Apply", Telling("apply")};

  private:
    static std::vector<std::string> Entries(int count) {
        std::vector<std::string> entries;
        for (int i = 0; i < count; ++i) entries.push_back("entry " + std::to_string(i));
        return entries;
    }
    Handler Telling(std::string what) {
        return [this, what = std::move(what)] { calls_.push_back(what); };
    }
    void TellTab(const std::string& strip, const TabStrip& of) {
        calls_.push_back(strip + " " + std::to_string(of.Selected()));
    }
    void Turn() {
        TellTab("outer", outer);
        boxes.SetVisible(outer.Selected() == 1);
        zones.SetVisible(outer.Selected() == 2);
    }

    Calls& calls_;
};

class NativeViewsTest : public NativeFormsTest {
  protected:
    NativeViewsTest() {
        forms.Define("pagViews", [this] { return std::make_unique<PageOfViews>(calls); });
        forms.Unload("pagAll");
        views = static_cast<PageOfViews*>(forms.Show("pagViews", &main->host));
        desktop.YieldEvents();
    }

    void ShowTabs(int tab) {
        views->View(false);
        views->outer.UserSelect(tab);
        views->outer.Select(tab);
        desktop.YieldEvents();
        calls.clear();
    }

    void PressAndServe(const std::string& control, WPARAM key) {
        Post(Window(control), WM_KEYDOWN, key, 1);
    }
    static RECT AreaOf(HWND window) {
        RECT area{};
        GetWindowRect(window, &area);
        return area;
    }

    PageOfViews* views = nullptr;
};

}  // namespace velkarix
