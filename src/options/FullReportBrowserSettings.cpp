#include "options/FullReportBrowserSettings.h"

#include <cstdint>
#include <iterator>
#include <vector>

#include "base/Text.h"
#include "browser/SecurityZones.h"
#include "shell/Report.h"
#include "shell/TextFile.h"

namespace velkarix {

namespace {

constexpr ReportLine ProtocolLines[] = {
    {"Protocol Defaults : ", ReportValue::Column, 0},
    {"Security Zone     : ", ReportValue::Column, 1},
};

constexpr ReportLine ZoneLines[] = {
    {"Property          : ", ReportValue::Column, 0},
    {"Status            : ", ReportValue::Column, 1},
};

std::string Line(const std::string& text = {}) {
    return text + std::string(LineBreak);
}

std::string ProxyText(const ProxyView& proxy) {
    return Line() + Line("****** Proxy Server Report ******") +
           Line(std::string("Proxy Enabled     : ") + (proxy.ProxyEnabled() ? "True" : "False")) +
           Line("Proxy Server      : " + proxy.Address()) +
           Line("Proxy Port        : " + proxy.Port());
}

}  // namespace

void PrintBrowserSettings(Application& application, frmIE& page, const std::string& fileName) {
    const auto print = [&](const std::string& text) {
        return AppendTextFile(application.machine.files, fileName, text) == error::Success;
    };
    // Of the zone that the page's list shows.
    const auto printZone = [&](const std::string& name) {
        return print(Line() + Line("****** [" + name + "] ******") +
                     ReportBlocks(application, page.SecurityZone(), ZoneLines));
    };
    if (!print(ProxyText(page.Proxy())) ||
        !print(Line() + Line("****** Protocol Defaults Report ******") +
               ReportBlocks(application, page.ProtocolDefaults(), ProtocolLines)) ||
        !print(Line() + Line("****** Security Zones Report ******"))) {
        return;
    }
    const std::vector<std::string> zones = SecurityZoneNames();
    for (std::size_t zone = 0; zone < zones.size(); ++zone) {
        if (zone > 0) page.loadSecurityZone(static_cast<std::int16_t>(zone));
        if (!printZone(zones[zone])) return;
    }
}

}  // namespace velkarix
