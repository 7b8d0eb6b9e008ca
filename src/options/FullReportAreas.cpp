#include "options/FullReportAreas.h"

#include "browser/frmIE.h"
#include "installed/frmAddRemove.h"
#include "options/FullReportBrowserSettings.h"
#include "process/frmProcess.h"
#include "startup/frmStartup.h"

namespace velkarix {

namespace {

template <typename Page, bool (Page::*Writer)(const std::string&)>
void Write(Application&, Form& page, const std::string& fileName) {
    (static_cast<Page&>(page).*Writer)(fileName);
}

// Every process, and so none of them judged.
void WriteProcesses(Application&, Form& page, const std::string& fileName) {
    auto& processes = static_cast<frmProcess&>(page);
    processes.ShowAllProcesses();
    processes.printReport(fileName);
}

void WriteBrowserSettings(Application& application, Form& page, const std::string& fileName) {
    PrintBrowserSettings(application, static_cast<frmIE&>(page), fileName);
}

constexpr FullReportBlock ProcessBlocks[] = {
    {{"", "****** Process Report ******", ""}, WriteProcesses},
};

constexpr FullReportBlock BrowserBlocks[] = {
    {{"", "****** Internet Explorer Report ******", "", "****** BHO Report ******"},
     Write<frmIE, &frmIE::printReportBHO>},
    {{"", "****** Toolbar Report ******"}, Write<frmIE, &frmIE::printReportToolbar>},
    {{"", "****** Toolbar Button Report ******"}, Write<frmIE, &frmIE::printReportButton>},
    {{"", "****** Menu Report ******"}, Write<frmIE, &frmIE::printReportMenu>},
    {{"", "****** Protocol Report ******"}, Write<frmIE, &frmIE::printReportProtocol>},
    {{"", "****** Domain Report ******"}, Write<frmIE, &frmIE::printReportDomain>},
    {{"", "****** URLs Report ******"}, Write<frmIE, &frmIE::printReportURLs>},
    {{"", "****** SearchHook Report ******"}, Write<frmIE, &frmIE::printReportHook>},
    {{""}, WriteBrowserSettings},
};

constexpr FullReportBlock StartupBlocks[] = {
    {{"", "****** Startup Report ******", ""}, Write<frmStartup, &frmStartup::printReport>},
};

constexpr FullReportBlock InstalledBlocks[] = {
    {{"", "****** Add/Remove Report ******", ""}, Write<frmAddRemove, &frmAddRemove::printReport>},
};

constexpr FullReportArea Areas[] = {
    {"chkProcess", "Process", "frmProcess", ProcessBlocks},
    {"chkIE", "Internet Explorer", "frmIE", BrowserBlocks},
    {"chkStartup", "Startup", "frmStartup", StartupBlocks},
    {"chkAddremove", "Add/Remove", "frmAddRemove", InstalledBlocks},
};

}  // namespace

std::span<const FullReportArea> FullReportAreas() {
    return Areas;
}

}  // namespace velkarix
