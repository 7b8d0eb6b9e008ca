#include "browser/ProtocolDefaultsView.h"

#include "browser/SecurityZones.h"
#include "shell/Settings.h"

namespace velkarix {

namespace {

constexpr const char* ProtocolKey =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\ProtocolDefaults";

constexpr double NoZone = -1;

constexpr ChoiceEditorTexts Texts = {
    "lstvProtocolDefaults",
    "txtProtocolDefaults",
    "cmbProtocolDefaults",
    "cmdProtocolDefaultsApply",
    "Protocol Defaults",
    "Protocol",
    "Security Zone",
    "Please select a security zone to apply.",
    "Unknown security zone cannot be applied. Please change it.",
    "Are you sure you want to change the security zone for protocol: ",
};

double ZoneNumber(const RegValueEntry& entry) {
    if (const auto* number = std::get_if<std::int32_t>(&entry.data)) return *number;
    const auto* text = std::get_if<std::string>(&entry.data);
    return text == nullptr ? NoZone : StrictNumber(*text).value_or(NoZone);
}

}  // namespace

ProtocolDefaultsView::ProtocolDefaultsView(Application& application)
    : application_(application),
      editor_(application, Texts, SecurityZoneNames(),
              [this](const ListRow& row, int zone) {
                  return application_.registry.StoreDwordValue(Hive::CurrentUser, ProtocolKey,
                                                               row.Text(0), zone);
              }),
      lblProtocol_("lblProtocol", "Protocol") {}

std::vector<Control*> ProtocolDefaultsView::Controls() {
    std::vector<Control*> controls = {&editor_.List(), &lblProtocol_};
    const std::vector<Control*> edit = editor_.EditControls();
    controls.insert(controls.end(), edit.begin(), edit.end());
    return controls;
}

Layout ProtocolDefaultsView::ViewLayout() {
    return Column({Item(editor_.List(), 1), Row({Item(lblProtocol_), editor_.EditRow()})});
}

void ProtocolDefaultsView::LoadProtocolDefaults() {
    editor_.List().Clear();
    editor_.ClearEdit();
    for (const RegValueEntry& entry :
         application_.registry.EnumValues(Hive::CurrentUser, ProtocolKey)) {
        if (entry.name.empty()) continue;
        editor_.AddRow("", entry.name, SecurityZoneName(ZoneNumber(entry)));
    }
    editor_.ShowRows();
}

}  // namespace velkarix
