// The browser page's list of domains, in a program on the real machine.
#pragma once

#include <windows.h>

#include <cstddef>

#include "BenchProgram.h"
#include "browser/frmIE.h"
#include "forms/win32/Win32Desktop.h"

namespace velkarix {

// Of a program whose windows aren't there.
class DomainPage {
  public:
    DomainPage() { program_.application.forms.Show("frmIE"); }

    void Load() { Page().LoadDomains(); }
    void Click(const char* button) { Page().Find(button)->Raise("Click"); }
    void CheckFirst(int count) {
        for (int i = 0; i < count; ++i) List().Row(static_cast<std::size_t>(i)).SetChecked(true);
    }
    // Often, since once is too short a time.
    void CheckAll() {
        for (int i = 0; i < Often; ++i) Click("cmdDomainCheckAll");
    }
    // By the shown text, and looks at the first row, so that the sort is made.
    void Sort() {
        for (int i = 0; i < Often; ++i) {
            List().UserColumnClick(1);
            List().Row(0);
        }
    }
    std::size_t RowCount() { return List().RowCount(); }

    modRegistry& Registry() { return program_.application.registry; }

  private:
    static constexpr int Often = 20;

    frmIE& Page() { return static_cast<frmIE&>(*program_.application.forms.Loaded("frmIE")); }
    ListView& List() { return program_.Get<ListView>("frmIE", "lstvDomains"); }

    BenchProgram program_;
};

// Of a program on the screen, in the view that shows the list.
class ShownDomainPage {
  public:
    ShownDomainPage() {
        program_.application.forms.Show("frmMain");
        program_.Get<Button>("frmMain", "cmdIE").Raise("Click");
        program_.Get<Button>("frmIE", "cmdDomain").Raise("Click");
        program_.desktop.YieldEvents();
    }

    // Whether the user is told how far a load has got.
    void ShowProgress(bool shown) { program_.clock.stands = !shown; }
    // By the key, as the user would.
    void Load() {
        const Form& page = *program_.application.forms.Loaded("frmIE");
        const auto window = reinterpret_cast<HWND>(program_.desktop.HandleOf(page));
        PostMessageA(window, WM_KEYDOWN, VK_F5, 0);
        program_.desktop.YieldEvents();
    }
    std::size_t RowCount() { return program_.Get<ListView>("frmIE", "lstvDomains").RowCount(); }

  private:
    BenchProgramOn<Win32Desktop> program_;
};

}  // namespace velkarix
