#include "shell/MenuTables.h"

#include <string>
#include <utility>

namespace velkarix {

namespace {

const MenuEntry Dash{};

Menu ProcessMenu() {
    return {"mnuProcess",
            "Process",
            {{"mnuAdd", "&Add Checked to Safe list", "cmdAdd_Click"},
             {"mnuRemove", "&Remove checked from Safe list", "cmdRemove_Click"},
             Dash,
             {"mnuKill", "&Kill Process", "cmdKill_Click"},
             {"mnuDelete", "&Delete Process", "cmdDelete_Click"},
             Dash,
             {"mnuView", "&View Information", "cmdViewInformation_Click"},
             {"mnuReport", "&Generate Report", "cmdReport_Click"},
             Dash,
             {"mnuOpen", "&Open Folder", "cmdOpen_Click"},
             {"mnuRefresh", "&Refresh", "cmdRefresh_Click"},
             Dash,
             {"mnuGoogle", "&Search Google", "lstvProcess_DblClick"}}};
}

Menu AddRemoveMenu() {
    return {"mnuAddRemove",
            "Add/Remove",
            {{"mnuAddRemove_Uninstall", "&Uninstall", "cmdUninstall_Click"},
             {"mnuAddRemove_Delete", "&Delete", "cmdDelete_Click"},
             Dash,
             {"mnuAddremove_Report", "&Generate Report", "cmdReport_Click"},
             Dash,
             {"mnuAddRemove_Refresh", "&Refresh", "cmdRefresh_Click"}}};
}

Menu StartupMenu() {
    return {"mnuStartup",
            "Startup",
            {{"mnuStartup_Disable", "&Disabled Checked Items", "cmdDisable_Click"},
             {"mnuStartup_Enable", "&Enable Checked Items", "cmdEnable_Click"},
             Dash,
             {"mnuStartup_Delete", "Delete &Selected item", "cmdDelete_Click"},
             Dash,
             {"mnuStartup_View", "&View Information", "cmdViewInformation_Click"},
             {"mnuStartup_Report", "&Generate Report", "cmdReport_Click"},
             Dash,
             // Runs nothing, by design: the folder opens by the page's button alone.
             {"mnuStartup_Open", "&Open Folder", ""},
             {"mnuStartup_Refresh", "&Refresh", "cmdRefresh_Click"}}};
}

// The five lists of the browser page that show a class and its file have menus of one shape.
struct BrowserMenu {
    const char* prefix;
    const char* caption;
    const char* what;  // what the entries call an item of the list
    const char* disable;
    const char* enable;
    const char* deleteHandler;
    const char* view;
    const char* report;
    const char* open;
    const char* refresh;
    const char* search;
};

const BrowserMenu BrowserMenus[] = {
    {"mnuBHO", "BHO", "BHO", "cmdDisableBHO_Click", "cmdEnableBHO_Click", "cmdBHODelete_Click",
     "cmdViewInfoBHO_Click", "cmdReportBHO_Click", "cmdFolderBHO_Click", "cmdRefreshBHO_Click",
     "lstvBHO_DblClick"},
    {"mnuToolbar", "Toolbar", "Toolbar", "cmdToolbarDisable_Click", "cmdToolbarEnable_Click",
     "cmdDeleteToolbar_Click", "cmdViewInfoToolbar_Click", "cmdreportToolbar_Click",
     "cmdFolderToolbar_Click", "cmdRefreshToolbar_Click", "lstvToolbar_DblClick"},
    {"mnuButtons", "Buttons", "Button", "cmdButtonDisable_Click", "cmdButtonEnable_Click",
     "cmdDeleteButton_Click", "cmdViewInfoButton_Click", "cmdReportButton_Click",
     "cmdFolderButton_Click", "cmdRefreshButton_Click", "lstvButtons_DblClick"},
    {"mnuProtocol", "Protocol", "Protocol", "cmdProtocolDisable_Click", "cmdProtocolEnable_Click",
     "cmdProtocolDelete_Click", "cmdProtocolViewInfo_Click", "cmdProtocolReport_Click",
     "cmdProtocolFolder_Click", "cmdProtocolRefresh_Click", "lstvProtocol_DblClick"},
    {"mnuHook", "Hook", "Hook", "cmdHookDisable_Click", "cmdHookEnable_Click",
     "cmdHookDelete_Click", "cmdHookInfo_Click", "cmdHookReport_Click", "cmdHookFolder_Click",
     "cmdHookRefresh_Click", "lstvHook_DblClick"},
};

Menu MakeBrowserMenu(const BrowserMenu& row) {
    const std::string prefix = row.prefix;
    const std::string what = row.what;
    return {row.prefix,
            row.caption,
            {{prefix + "_Disable", "&Disable Checked " + what, row.disable},
             {prefix + "_Enable", "&Enable Checked " + what, row.enable},
             Dash,
             {prefix + "_Delete", "&Delete Selected " + what, row.deleteHandler},
             Dash,
             {prefix + "_View", "&View Information", row.view},
             {prefix + "_Report", "&Generate Report", row.report},
             Dash,
             {prefix + "_Open", "&Open Folder", row.open},
             {prefix + "_Refresh", "&Refresh", row.refresh},
             Dash,
             {prefix + "_Google", "&Search Google", row.search}}};
}

Menu ContextMenu() {
    return {"mnuContext",
            "Context",
            {{"mnuMenu_Disable", "&Disable Checked Menu", "cmdDisableMenu_Click"},
             {"mnuMenu_Enable", "&Enable Checked Menu", "cmdEnableMenu_Click"},
             Dash,
             {"mnuContext_Delete", "&Delete Selected Menu", "cmdDeleteMenu_Click"},
             Dash,
             {"mnuMenu_Report", "&Generate Report", "cmdReportMenu_Click"},
             Dash,
             {"mnuContext_Open", "&Open Folder", "cmdFolderMenu_Click"},
             {"mnuContext_Refresh", "&Refresh", "cmdRefreshMenu_Click"}}};
}

Menu DomainMenu() {
    return {"mnuDomain",
            "Domain",
            {{"mnuDomain_Disable", "&Disable Checked Domain", "cmdDomainDisable_Click"},
             {"mnuDomain_Enable", "&Enable Checked Domain", "cmdDomainEnable_Click"},
             Dash,
             {"mnuDomain_Delete", "&Delete Selected Domain", "cmdDomainDelete_Click"},
             Dash,
             {"mnuDomain_CheckAll", "&Check All", "cmdDomainCheckAll_Click"},
             {"mnuDomain_UncheckAll", "&Uncheck All", "cmdDomainUncheckAll_Click"},
             Dash,
             {"mnuDomain_Report", "&Generate Report", "cmdDomainReport_Click"},
             Dash,
             {"mnuDomain_Refresh", "&Refresh", "cmdDomainRefresh_Click"}}};
}

}  // namespace

std::vector<Menu> AllMenus() {
    std::vector<Menu> menus = {ProcessMenu(), AddRemoveMenu(), StartupMenu()};
    for (const BrowserMenu& row : BrowserMenus) menus.push_back(MakeBrowserMenu(row));
    menus.push_back(ContextMenu());
    menus.push_back(DomainMenu());
    return menus;
}

}  // namespace velkarix
