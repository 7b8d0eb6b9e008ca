// A desktop of native windows with a main form and one page of each kind of control, and the
// means to look at its windows and to act on them as a user.
#pragma once

#include <windows.h>
#include <commctrl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "NamedWindow.h"
#include "forms/FormSet.h"
#include "forms/ListView.h"
#include "forms/win32/Win32Desktop.h"

namespace velkarix {

// What the handlers of the forms heard, in order.
using Calls = std::vector<std::string>;

class PageOfAll : public Form {
  public:
    PageOfAll(Calls& calls, const Handler& whenLeft)
        : Form("pagAll", "All", FormKind::Page),
          list("lstvAll", "All", {"Name", "Number"},
               {[&calls](ListRow& row) { calls.push_back("item " + row.Key()); },
                [&calls](int column) { calls.push_back("column " + std::to_string(column)); },
                [&calls] { calls.push_back("double"); },
                [&calls](MouseButton button) {
                    calls.push_back(button == MouseButton::Right ? "right" : "left");
                }}),
          frame("fmAll", "Frame"),
          options("optAll", {"None", "Some"}, 0,
                  [this, &calls] { calls.push_back(std::to_string(options.Chosen())); }),
          box("txtAll", "Text", {20, 1, false}),
          act("cmdAct", "Act", [&calls] { calls.push_back("act"); }),
          leave("cmdLeave", "Leave", [&whenLeft] { whenLeft(); }) {
        list.SetColumnShares({3, 1});
        SetControls({&list, &frame, &options.Option(0), &options.Option(1), &box, &act, &leave});
        SetAccelerators({{{Key::F5}, "cmdAct_Click"}});
        SetLayout(Column({Item(list, 1),
                          Group(frame, Row({Item(options.Option(0)), Item(options.Option(1))})),
                          Row({Item(box), Item(act), Item(leave)})}));
    }

    ListView list;
    Frame frame;
    OptionGroup options;
    TextBox box;
    Button act;
    Button leave;
};

class MainOfAll : public Form {
  public:
    explicit MainOfAll(Calls& calls)
        : Form("frmAll", "Main", FormKind::Main),
          page(
              "cmdPage", "The page", [&calls] { calls.push_back("page"); }, Button::Look::Picture),
          host("picHost", "") {
        SetControls({&host, &page});
        SetLayout(Row({Item(page), Item(host, 1)}));
    }

    Button page;
    PageHost host;
};

class NativeFormsTest : public testing::Test {
  protected:
    NativeFormsTest() {
        forms.Define("frmAll", [this] { return std::make_unique<MainOfAll>(calls); });
        forms.Define("pagAll", [this] { return std::make_unique<PageOfAll>(calls, whenLeft); });
        main = static_cast<MainOfAll*>(forms.Show("frmAll"));
        EnterPage();
    }

    void EnterPage() {
        page = static_cast<PageOfAll*>(forms.Show("pagAll", &main->host));
        desktop.YieldEvents();
    }

    // The window that carries a product name, inside the main form; null when there is none.
    HWND Window(const std::string& name) const {
        return NamedWindow(reinterpret_cast<HWND>(desktop.HandleOf(*main)), name);
    }

    static std::string TextOf(HWND window) {
        char text[256] = "";
        GetWindowTextA(window, text, 256);
        return text;
    }

    void AddThreeRows() {
        for (const char* name : {"beta", "Alpha", "gamma"}) {
            page->list.Add(name, name, 1).SetText(1, std::string(name) + "'s number");
        }
        desktop.YieldEvents();
    }

    void Post(HWND window, UINT message, WPARAM wParam, LPARAM lParam = 0) {
        PostMessageA(window, message, wParam, lParam);
        desktop.YieldEvents();
    }
    void ClickAt(HWND window, int x, int y) {
        PostMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        Post(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    }

    // The highest of some slots that the system gives to new GDI objects: it rises when others
    // aren't freed.
    static int HighestGdiSlot() {
        int highest = 0;
        std::vector<HBRUSH> brushes;
        for (int i = 0; i < 8; ++i) {
            brushes.push_back(CreateSolidBrush(RGB(i, 0, 0)));
            highest = std::max<int>(highest, LOWORD(reinterpret_cast<UINT_PTR>(brushes.back())));
        }
        for (const HBRUSH brush : brushes) DeleteObject(brush);
        return highest;
    }

    Calls calls;
    Handler whenLeft;  // what the page's button "Leave" does
    mutable Win32Desktop desktop;
    FormSet forms{desktop};
    MainOfAll* main = nullptr;
    PageOfAll* page = nullptr;
};

}  // namespace velkarix
