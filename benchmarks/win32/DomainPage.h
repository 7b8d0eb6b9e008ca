// The browser page's list of domains, in a program on the real machine whose windows aren't there.
#pragma once

#include <cstddef>

#include "BenchProgram.h"
#include "browser/frmIE.h"

namespace velkarix {

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

}  // namespace velkarix
