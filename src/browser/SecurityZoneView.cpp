#include "browser/SecurityZoneView.h"

#include <optional>

#include "browser/SecurityZones.h"
#include "shell/ListServices.h"

namespace velkarix {

namespace {

constexpr const char* ZonesKey =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Zones\\";

struct ZoneSetting {
    std::int32_t action;  // as a decimal text, it is the value's name
    const char* text;
};

constexpr ZoneSetting ZoneSettings[] = {
    {1001, "Download signed ActiveX controls"},
    {1004, "Download unsigned ActiveX controls"},
    {1200, "Run ActiveX controls and plugins"},
    {1201, "Initialize, script ActiveX controls not marked safe"},
    {1405, "Script ActiveX controls marked safe for scripting"},
    {1804, "Launch applications and files in an IFRAME"},
    {1803, "File Downloading"},
    {1604, "Font Downloading"},
    {1601, "Submit non-encrypted form data"},
    {1806, "Launch Applications and unsafe files"},
    {1809, "Use Popup Blocker"},
};

struct ZoneStatus {
    std::int32_t stored;
    const char* text;
};

constexpr ZoneStatus ZoneStatuses[] = {{0, "Enabled"}, {1, "Prompt"}, {3, "Disabled"}};

constexpr ChoiceEditorTexts Texts = {
    "lstvSecurityZone",
    "txtSecurityZone",
    "cmbSecurityZone",
    "cmdSecurityZoneApply",
    "Security Zone Settings",
    "Property",
    "Status",
    "Please select a status to apply.",
    "Unknown status cannot be applied. Please change it.",
    "Are you sure you want to change the status of: \r\n\r\n",
};

std::vector<std::string> StatusTexts() {
    std::vector<std::string> texts;
    for (const ZoneStatus& status : ZoneStatuses) texts.push_back(status.text);
    return texts;
}

std::string ZoneKey(std::int16_t zone) {
    return ZonesKey + std::to_string(zone);
}

}  // namespace

SecurityZoneView::SecurityZoneView(Application& application)
    : application_(application),
      tbSecurityZone_("tbSecurityZone", "Security Zones", SecurityZoneNames(),
                      [this] { tbSecurityZone_Click(); }),
      editor_(application, Texts, StatusTexts(),
              [this](const ListRow& row, int position) { return StoreStatus(row, position); }) {}

std::vector<Control*> SecurityZoneView::Controls() {
    std::vector<Control*> controls = {&tbSecurityZone_, &editor_.List()};
    const std::vector<Control*> edit = editor_.EditControls();
    controls.insert(controls.end(), edit.begin(), edit.end());
    return controls;
}

Layout SecurityZoneView::ViewLayout() {
    // The row in a row of its own: it stretches along, and leaves all height to the list.
    return Group(tbSecurityZone_, Column({Item(editor_.List(), 1), Row({editor_.EditRow()})}));
}

std::string SecurityZoneView::ZoneStatusText(std::int32_t value) {
    for (const ZoneStatus& status : ZoneStatuses) {
        if (status.stored == value) return status.text;
    }
    return UnknownChoice;
}

std::int16_t SecurityZoneView::SelectedZone() const {
    return static_cast<std::int16_t>(tbSecurityZone_.Selected() - 1);
}

void SecurityZoneView::tbSecurityZone_Click() {
    loadSecurityZone(SelectedZone());
}

void SecurityZoneView::loadSecurityZone(std::int16_t zone) {
    editor_.List().Clear();
    bool missing = false;
    for (const ZoneSetting& setting : ZoneSettings) {
        const std::int32_t value = application_.registry.GetDwordValue(
            Hive::CurrentUser, ZoneKey(zone), std::to_string(setting.action), missing);
        // The first one that is missing hides all behind it.
        if (missing) break;
        editor_.AddRow(EncodeDigits(setting.action), setting.text, ZoneStatusText(value));
    }
    editor_.ShowRows();
}

bool SecurityZoneView::StoreStatus(const ListRow& row, int position) {
    const std::optional<std::int32_t> action = DecodeDigits(row.Key());
    return action && application_.registry.StoreDwordValue(
                         Hive::CurrentUser, ZoneKey(SelectedZone()), std::to_string(*action),
                         ZoneStatuses[position].stored);
}

}  // namespace velkarix
