#include "browser/ProxyView.h"

#include <algorithm>

namespace velkarix {

namespace {

constexpr const char* SettingsKey =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";
constexpr const char* EnableName = "ProxyEnable";
constexpr const char* ServerName = "ProxyServer";
constexpr std::int32_t On = 1;

std::string WithoutBlanks(const std::string& text) {
    const std::size_t first = std::min(text.find_first_not_of(' '), text.size());
    return text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

}  // namespace

ProxyView::ProxyView(Application& application)
    : application_(application),
      chkProxyEnabled_("chkProxyEnabled", "Proxy Enabled", [this] { chkProxyEnabled_Click(); }),
      lblAddress_("lblAddress", "Address:"),
      txtAddress_("txtAddress", "Address:", {30}, [this] { cmdProxyApply_.SetEnabled(true); }),
      lblPort_("lblPort", "Port:"),
      txtPort_("txtPort", "Port:", {8}, [this] { cmdProxyApply_.SetEnabled(true); }),
      cmdProxyApply_("cmdProxyApply", "Apply", [this] { cmdProxyApply_Click(); }) {
    txtAddress_.SetEnabled(false);
    txtPort_.SetEnabled(false);
    cmdProxyApply_.SetEnabled(false);
}

std::vector<Control*> ProxyView::Controls() {
    return {&chkProxyEnabled_, &lblAddress_, &txtAddress_, &lblPort_, &txtPort_, &cmdProxyApply_};
}

Layout ProxyView::ViewLayout() {
    return Column({Item(chkProxyEnabled_),
                   Grid(2, {Item(lblAddress_), Item(txtAddress_, 1), Item(lblPort_),
                            Row({Item(txtPort_), Space()})}),
                   Row({Space(), Item(cmdProxyApply_)}), Space()});
}

void ProxyView::LoadProxy() {
    modRegistry& registry = application_.registry;
    bool missing = false;
    const bool enabled =
        registry.GetDwordValue(Hive::CurrentUser, SettingsKey, EnableName, missing) == On;
    if (enabled != chkProxyEnabled_.Checked()) {
        chkProxyEnabled_.SetChecked(enabled);
        chkProxyEnabled_Click();
    }
    const std::string server = registry.GetStringValue(Hive::CurrentUser, SettingsKey, ServerName);
    const std::size_t colon = server.find(':');
    txtAddress_.SetValue(server.substr(0, colon));
    if (colon != std::string::npos) txtPort_.SetValue(server.substr(colon + 1));
    cmdProxyApply_.SetEnabled(false);
}

void ProxyView::chkProxyEnabled_Click() {
    txtAddress_.SetEnabled(chkProxyEnabled_.Checked());
    txtPort_.SetEnabled(chkProxyEnabled_.Checked());
    cmdProxyApply_.SetEnabled(true);
}

bool ProxyView::Demand(TextBox& box, const char* message) {
    if (!box.Value().empty()) return true;
    application_.Tell(MessageIcon::Information, message);
    application_.desktop.Focus(box);
    return false;
}

void ProxyView::cmdProxyApply_Click() {
    txtAddress_.SetValue(WithoutBlanks(txtAddress_.Value()));
    txtPort_.SetValue(WithoutBlanks(txtPort_.Value()));
    const bool enabled = chkProxyEnabled_.Checked();
    if (enabled && (!Demand(txtAddress_, "Please enter proxy server address.") ||
                    !Demand(txtPort_, "Please enter proxy server port."))) {
        return;
    }
    const bool complete = !txtAddress_.Value().empty() && !txtPort_.Value().empty();
    modRegistry& registry = application_.registry;
    registry.SetDwordValue(Hive::CurrentUser, SettingsKey, EnableName, enabled ? On : 0);
    registry.SetStringValue(Hive::CurrentUser, SettingsKey, ServerName,
                            complete ? txtAddress_.Value() + ":" + txtPort_.Value() : "");
    LoadProxy();
}

}  // namespace velkarix
