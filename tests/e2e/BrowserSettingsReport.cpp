#include "BrowserSettingsReport.h"

#include <iterator>
#include <string_view>

namespace velkarix::e2e {

namespace {

struct ProtocolZone {
    const char* protocol;
    const char* zone;
};
// A number that no zone has, and data that is no number, are both unknown.
constexpr ProtocolZone ProtocolZones[] = {
    {"@ivt", "Local Intranet"}, {"file", "Internet"},     {"ftp", "Internet"},
    {"http", "Internet"},       {"https", "Internet"},    {"news", "Unknown"},
    {"sample", "Unknown"},      {"shell", "My Computer"},
};

constexpr const char* ZoneSettings[] = {
    "Download signed ActiveX controls",
    "Download unsigned ActiveX controls",
    "Run ActiveX controls and plugins",
    "Initialize, script ActiveX controls not marked safe",
    "Script ActiveX controls marked safe for scripting",
    "Launch applications and files in an IFRAME",
    "File Downloading",
    "Font Downloading",
    "Submit non-encrypted form data",
    "Launch Applications and unsafe files",
    "Use Popup Blocker",
};

struct Zone {
    const char* name;
    // A letter for the status of each setting that is shown: from the first one that the zone lacks
    // on there is none.
    std::string_view statuses;
};
constexpr Zone Zones[] = {
    {"My Computer", "EEEPEEEEEED"},      {"Local Intranet", "PDEDEPEEUPD"},
    {"Trusted Sites", "EPEPEEE"},        {"Internet", "PDEDEPEEPPE"},
    {"Restricted Sites", "DDDDDDDPPDE"},
};

std::string StatusOf(char letter) {
    switch (letter) {
        case 'E':
            return "Enabled";
        case 'P':
            return "Prompt";
        case 'D':
            return "Disabled";
        default:
            return "Unknown";
    }
}

std::string ZoneLines(const Zone& zone) {
    std::string text = std::string("****** [") + zone.name + "] ******\r\n";
    for (std::size_t i = 0; i < zone.statuses.size(); ++i) {
        if (i > 0) text += "\r\n";
        text += std::string("Property          : ") + ZoneSettings[i] + "\r\n" +
                "Status            : " + StatusOf(zone.statuses[i]) + "\r\n";
    }
    return text;
}

std::string ProtocolLines() {
    std::string text;
    for (const ProtocolZone& each : ProtocolZones) {
        if (!text.empty()) text += "\r\n";
        text += std::string("Protocol Defaults : ") + each.protocol + "\r\n" +
                "Security Zone     : " + each.zone + "\r\n";
    }
    return text;
}

}  // namespace

std::string AddressLines() {
    return "Start Page        : http://start.sample.example/?id=17\r\n"
           "Cust Search       : http://ie.sample.example/customize.htm\r\n"
           "Search Asst.      : http://ie.sample.example/assistant.htm\r\n"
           "Search Page       : http://search.sample.example/page.htm\r\n"
           "Search URL        : http://search.sample.example/?q=%s\r\n"
           "Search Bar        : http://search.sample.example/bar.htm\r\n"
           "Prefix def        : http://\r\n"
           "Prefix www        : http://redirect.sample.example/?\r\n"
           "Prefix home       : http://\r\n"
           "Prefix mosaic     : http://\r\n";
}

std::string BrowserSettingsLines() {
    std::string text =
        "****** Proxy Server Report ******\r\n"
        "Proxy Enabled     : False\r\n"
        "Proxy Server      : proxy.sample.example\r\n"
        "Proxy Port        : 8080\r\n"
        "\r\n"
        "****** Protocol Defaults Report ******\r\n" +
        ProtocolLines() +
        "\r\n"
        "****** Security Zones Report ******\r\n";
    for (const Zone& zone : Zones) text += "\r\n" + ZoneLines(zone);
    return text;
}

}  // namespace velkarix::e2e
