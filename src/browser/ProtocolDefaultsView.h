// The security zones that the browser gives to protocols, of which the user changes one at a time.
#pragma once

#include <vector>

#include "browser/BrowserView.h"
#include "browser/ChoiceEditor.h"
#include "forms/Controls.h"
#include "shell/Application.h"

namespace velkarix {

class ProtocolDefaultsView : public BrowserView {
  public:
    explicit ProtocolDefaultsView(Application& application);

    std::vector<Control*> Controls() override;
    Layout ViewLayout() override;
    ListView& List() { return editor_.List(); }

    // Fills the list and selects its first row.
    void LoadProtocolDefaults();

  private:
    Application& application_;
    ChoiceEditor editor_;
    Label lblProtocol_;
};

}  // namespace velkarix
