// The browser page: eight views of what extends the browser and of its settings, the last one with
// four sub-views. The page itself knows which of them is shown and when each is filled.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "browser/BHOList.h"
#include "browser/ButtonList.h"
#include "browser/DomainList.h"
#include "browser/HookList.h"
#include "browser/MenuList.h"
#include "browser/ProtocolDefaultsView.h"
#include "browser/ProtocolList.h"
#include "browser/ProxyView.h"
#include "browser/SecurityZoneView.h"
#include "browser/ToolbarList.h"
#include "browser/UrlView.h"
#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/TabStrip.h"
#include "shell/Application.h"

namespace velkarix {

class frmIE : public Form {
  public:
    explicit frmIE(Application& application);

    void Form_Load() override;
    void Form_Unload() override;

    // Shows the view, or sub-view, of that index. False when it is shown already.
    bool SwitchView(std::int16_t index);
    bool SwitchAdvancedView(std::int16_t index);

    // Fill the views anew, whenever they are called.
    void LoadBHOs() { bhos_.Load(); }
    void LoadToolbars() { toolbars_.Load(); }
    void LoadButtons() { toolbarButtons_.Load(); }
    void LoadMenus() { menus_.Load(); }
    void LoadProtocols() { protocols_.Load(); }
    void LoadDomains() { domains_.Load(); }
    void LoadHooks() { hooks_.Load(); }
    void LoadUrls() { urls_.LoadUrls(); }
    void LoadProxy() { proxy_.LoadProxy(); }
    void LoadProtocolDefaults() { protocolDefaults_.LoadProtocolDefaults(); }
    // `zone` is from 0 to 4.
    void loadSecurityZone(std::int16_t zone) { securityZones_.loadSecurityZone(zone); }

    // What the views of the settings show.
    const ProxyView& Proxy() const { return proxy_; }
    ListView& ProtocolDefaults() { return protocolDefaults_.List(); }
    ListView& SecurityZone() { return securityZones_.List(); }

    // Append the lists, in their shown order, to a report. False, after a message, when that fails.
    bool printReportBHO(const std::string& filePath) { return bhos_.PrintList(filePath); }
    bool printReportToolbar(const std::string& filePath) { return toolbars_.PrintList(filePath); }
    bool printReportButton(const std::string& filePath) {
        return toolbarButtons_.PrintList(filePath);
    }
    bool printReportMenu(const std::string& filePath) { return menus_.PrintList(filePath); }
    bool printReportProtocol(const std::string& filePath) { return protocols_.PrintList(filePath); }
    bool printReportDomain(const std::string& filePath) { return domains_.PrintList(filePath); }
    bool printReportHook(const std::string& filePath) { return hooks_.PrintList(filePath); }
    bool printReportURLs(const std::string& filePath) { return urls_.printReportURLs(filePath); }

  private:
    void MakeControls();
    // Each adds its controls in tab order.
    Layout MakeStrip(std::vector<Control*>& controls);
    Layout MakeViews(std::vector<Control*>& controls);
    void ApplySkin();
    void ViewButton_Click(std::size_t view);
    void tbMain_Click();

    Application& application_;
    std::int16_t currentView_ = 0;
    std::int16_t currentAdvancedView_ = 0;

    Panel picButtonHolder_;
    std::vector<std::unique_ptr<Button>> viewButtons_;  // by the index of the view, as the frames
    std::vector<std::unique_ptr<Frame>> fmIE_;
    std::vector<std::unique_ptr<Panel>> fmIEAdvanced_;
    TabStrip tbMain_;

    BHOList bhos_;
    ToolbarList toolbars_;
    ButtonList toolbarButtons_;
    MenuList menus_;
    UrlView urls_;
    ProtocolList protocols_;
    DomainList domains_;
    HookList hooks_;
    ProxyView proxy_;
    ProtocolDefaultsView protocolDefaults_;
    SecurityZoneView securityZones_;
};

}  // namespace velkarix
