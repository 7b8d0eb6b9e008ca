// The proxy server of the browser: whether it is used, its address and its port.
#pragma once

#include <string>
#include <vector>

#include "browser/BrowserView.h"
#include "forms/Controls.h"
#include "shell/Application.h"

namespace velkarix {

class ProxyView : public BrowserView {
  public:
    explicit ProxyView(Application& application);

    std::vector<Control*> Controls() override;
    Layout ViewLayout() override;

    // Shows what the registry holds. A server without a port leaves the box of the port as it is.
    void LoadProxy();
    // What the boxes show, applied or not.
    bool ProxyEnabled() const { return chkProxyEnabled_.Checked(); }
    const std::string& Address() const { return txtAddress_.Value(); }
    const std::string& Port() const { return txtPort_.Value(); }
    void chkProxyEnabled_Click();
    // Writes the settings and shows what is stored then. With the proxy on, an address and a port
    // must be there.
    void cmdProxyApply_Click();

  private:
    // Tells the user that `box` must not be empty. True when it isn't.
    bool Demand(TextBox& box, const char* message);

    Application& application_;
    CheckBox chkProxyEnabled_;
    Label lblAddress_;
    TextBox txtAddress_;
    Label lblPort_;
    TextBox txtPort_;
    Button cmdProxyApply_;
};

}  // namespace velkarix
