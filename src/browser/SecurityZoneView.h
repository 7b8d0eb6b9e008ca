// Chosen settings of the browser's security zones, one zone at a time, of which the user changes
// one at a time.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "browser/BrowserView.h"
#include "browser/ChoiceEditor.h"
#include "forms/TabStrip.h"
#include "shell/Application.h"

namespace velkarix {

class SecurityZoneView : public BrowserView {
  public:
    explicit SecurityZoneView(Application& application);

    std::vector<Control*> Controls() override;
    Layout ViewLayout() override;
    ListView& List() { return editor_.List(); }

    // Fills the list with the settings of a zone (0 to 4), up to the first that is missing, and
    // selects the first row. The tab on view stays: it is that zone that an apply changes.
    void loadSecurityZone(std::int16_t zone);
    // "Enabled", "Prompt" or "Disabled" for what the registry holds; else "Unknown".
    static std::string ZoneStatusText(std::int32_t value);
    void tbSecurityZone_Click();

  private:
    std::int16_t SelectedZone() const;
    bool StoreStatus(const ListRow& row, int position);

    Application& application_;
    TabStrip tbSecurityZone_;
    ChoiceEditor editor_;
};

}  // namespace velkarix
