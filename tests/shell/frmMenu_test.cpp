#include "shell/frmMenu.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "forms/Controls.h"
#include "tests/machine/RecordingDesktop.h"

namespace velkarix {
namespace {

using Lines = std::vector<std::string>;

// A menu as one line an entry: name, caption, handler.
Lines LinesOf(const Menu& menu) {
    Lines lines = {menu.name + " | " + menu.caption};
    for (const MenuEntry& entry : menu.entries) {
        lines.push_back(
            entry.IsSeparator() ? "-" : entry.name + " | " + entry.caption + " | " + entry.handler);
    }
    return lines;
}

class PageWithHandlers : public Form {
  public:
    PageWithHandlers() : Form("frmTest", "Test", FormKind::Page) {
        SetControls({&cmdRefresh, &cmdKill});
        cmdKill.SetEnabled(false);
    }
    Lines calls;
    Button cmdRefresh{"cmdRefresh", "Refresh", [this] { calls.push_back("refresh"); }};
    Button cmdKill{"cmdKill", "Kill", [this] { calls.push_back("kill"); }};
};

class MenuTest : public testing::Test {
  protected:
    Lines Menu(const char* name) { return LinesOf(*menus.Find(name)); }

    RecordingDesktop desktop;
    frmMenu menus{desktop};
    PageWithHandlers page;
};

TEST_F(MenuTest, HasTenMenusOfTheirOwnNames) {
    std::set<std::string> names;
    for (const auto& menu : menus.Menus()) names.insert(menu.name);
    EXPECT_EQ(menus.Menus().size(), 10u);
    EXPECT_EQ(names, (std::set<std::string>{"mnuProcess", "mnuAddRemove", "mnuStartup", "mnuBHO",
                                            "mnuToolbar", "mnuButtons", "mnuProtocol", "mnuHook",
                                            "mnuContext", "mnuDomain"}));
    EXPECT_EQ(menus.Find("mnuGone"), nullptr);
}

TEST_F(MenuTest, HasTheProcessMenu) {
    EXPECT_EQ(
        Menu("mnuProcess"),
        (Lines{"mnuProcess | Process", "mnuAdd | &Add Checked to Safe list | cmdAdd_Click",
               "mnuRemove | &Remove checked from Safe list | cmdRemove_Click", "-",
               "mnuKill | &Kill Process | cmdKill_Click",
               "mnuDelete | &Delete Process | cmdDelete_Click", "-",
               "mnuView | &View Information | cmdViewInformation_Click",
               "mnuReport | &Generate Report | cmdReport_Click", "-",
               "mnuOpen | &Open Folder | cmdOpen_Click", "mnuRefresh | &Refresh | cmdRefresh_Click",
               "-", "mnuGoogle | &Search Google | lstvProcess_DblClick"}));
}

TEST_F(MenuTest, HasTheAddRemoveMenu) {
    EXPECT_EQ(Menu("mnuAddRemove"),
              (Lines{"mnuAddRemove | Add/Remove",
                     "mnuAddRemove_Uninstall | &Uninstall | cmdUninstall_Click",
                     "mnuAddRemove_Delete | &Delete | cmdDelete_Click", "-",
                     "mnuAddremove_Report | &Generate Report | cmdReport_Click", "-",
                     "mnuAddRemove_Refresh | &Refresh | cmdRefresh_Click"}));
}

TEST_F(MenuTest, HasTheStartupMenuWhoseOpenEntryRunsNothing) {
    EXPECT_EQ(Menu("mnuStartup"),
              (Lines{"mnuStartup | Startup",
                     "mnuStartup_Disable | &Disabled Checked Items | cmdDisable_Click",
                     "mnuStartup_Enable | &Enable Checked Items | cmdEnable_Click", "-",
                     "mnuStartup_Delete | Delete &Selected item | cmdDelete_Click", "-",
                     "mnuStartup_View | &View Information | cmdViewInformation_Click",
                     "mnuStartup_Report | &Generate Report | cmdReport_Click", "-",
                     "mnuStartup_Open | &Open Folder | ",
                     "mnuStartup_Refresh | &Refresh | cmdRefresh_Click"}));
}

TEST_F(MenuTest, HasTheBrowserMenusInOneShape) {
    EXPECT_EQ(Menu("mnuBHO"),
              (Lines{"mnuBHO | BHO", "mnuBHO_Disable | &Disable Checked BHO | cmdDisableBHO_Click",
                     "mnuBHO_Enable | &Enable Checked BHO | cmdEnableBHO_Click", "-",
                     "mnuBHO_Delete | &Delete Selected BHO | cmdBHODelete_Click", "-",
                     "mnuBHO_View | &View Information | cmdViewInfoBHO_Click",
                     "mnuBHO_Report | &Generate Report | cmdReportBHO_Click", "-",
                     "mnuBHO_Open | &Open Folder | cmdFolderBHO_Click",
                     "mnuBHO_Refresh | &Refresh | cmdRefreshBHO_Click", "-",
                     "mnuBHO_Google | &Search Google | lstvBHO_DblClick"}));
    EXPECT_EQ(Menu("mnuToolbar"),
              (Lines{"mnuToolbar | Toolbar",
                     "mnuToolbar_Disable | &Disable Checked Toolbar | cmdToolbarDisable_Click",
                     "mnuToolbar_Enable | &Enable Checked Toolbar | cmdToolbarEnable_Click", "-",
                     "mnuToolbar_Delete | &Delete Selected Toolbar | cmdDeleteToolbar_Click", "-",
                     "mnuToolbar_View | &View Information | cmdViewInfoToolbar_Click",
                     "mnuToolbar_Report | &Generate Report | cmdreportToolbar_Click", "-",
                     "mnuToolbar_Open | &Open Folder | cmdFolderToolbar_Click",
                     "mnuToolbar_Refresh | &Refresh | cmdRefreshToolbar_Click", "-",
                     "mnuToolbar_Google | &Search Google | lstvToolbar_DblClick"}));
    EXPECT_EQ(Menu("mnuButtons"),
              (Lines{"mnuButtons | Buttons",
                     "mnuButtons_Disable | &Disable Checked Button | cmdButtonDisable_Click",
                     "mnuButtons_Enable | &Enable Checked Button | cmdButtonEnable_Click", "-",
                     "mnuButtons_Delete | &Delete Selected Button | cmdDeleteButton_Click", "-",
                     "mnuButtons_View | &View Information | cmdViewInfoButton_Click",
                     "mnuButtons_Report | &Generate Report | cmdReportButton_Click", "-",
                     "mnuButtons_Open | &Open Folder | cmdFolderButton_Click",
                     "mnuButtons_Refresh | &Refresh | cmdRefreshButton_Click", "-",
                     "mnuButtons_Google | &Search Google | lstvButtons_DblClick"}));
    EXPECT_EQ(Menu("mnuProtocol"),
              (Lines{"mnuProtocol | Protocol",
                     "mnuProtocol_Disable | &Disable Checked Protocol | cmdProtocolDisable_Click",
                     "mnuProtocol_Enable | &Enable Checked Protocol | cmdProtocolEnable_Click", "-",
                     "mnuProtocol_Delete | &Delete Selected Protocol | cmdProtocolDelete_Click",
                     "-", "mnuProtocol_View | &View Information | cmdProtocolViewInfo_Click",
                     "mnuProtocol_Report | &Generate Report | cmdProtocolReport_Click", "-",
                     "mnuProtocol_Open | &Open Folder | cmdProtocolFolder_Click",
                     "mnuProtocol_Refresh | &Refresh | cmdProtocolRefresh_Click", "-",
                     "mnuProtocol_Google | &Search Google | lstvProtocol_DblClick"}));
    EXPECT_EQ(
        Menu("mnuHook"),
        (Lines{"mnuHook | Hook", "mnuHook_Disable | &Disable Checked Hook | cmdHookDisable_Click",
               "mnuHook_Enable | &Enable Checked Hook | cmdHookEnable_Click", "-",
               "mnuHook_Delete | &Delete Selected Hook | cmdHookDelete_Click", "-",
               "mnuHook_View | &View Information | cmdHookInfo_Click",
               "mnuHook_Report | &Generate Report | cmdHookReport_Click", "-",
               "mnuHook_Open | &Open Folder | cmdHookFolder_Click",
               "mnuHook_Refresh | &Refresh | cmdHookRefresh_Click", "-",
               "mnuHook_Google | &Search Google | lstvHook_DblClick"}));
}

TEST_F(MenuTest, HasTheContextAndDomainMenus) {
    EXPECT_EQ(Menu("mnuContext"),
              (Lines{"mnuContext | Context",
                     "mnuMenu_Disable | &Disable Checked Menu | cmdDisableMenu_Click",
                     "mnuMenu_Enable | &Enable Checked Menu | cmdEnableMenu_Click", "-",
                     "mnuContext_Delete | &Delete Selected Menu | cmdDeleteMenu_Click", "-",
                     "mnuMenu_Report | &Generate Report | cmdReportMenu_Click", "-",
                     "mnuContext_Open | &Open Folder | cmdFolderMenu_Click",
                     "mnuContext_Refresh | &Refresh | cmdRefreshMenu_Click"}));
    EXPECT_EQ(Menu("mnuDomain"),
              (Lines{"mnuDomain | Domain",
                     "mnuDomain_Disable | &Disable Checked Domain | cmdDomainDisable_Click",
                     "mnuDomain_Enable | &Enable Checked Domain | cmdDomainEnable_Click", "-",
                     "mnuDomain_Delete | &Delete Selected Domain | cmdDomainDelete_Click", "-",
                     "mnuDomain_CheckAll | &Check All | cmdDomainCheckAll_Click",
                     "mnuDomain_UncheckAll | &Uncheck All | cmdDomainUncheckAll_Click", "-",
                     "mnuDomain_Report | &Generate Report | cmdDomainReport_Click", "-",
                     "mnuDomain_Refresh | &Refresh | cmdDomainRefresh_Click"}));
}

TEST_F(MenuTest, RunsTheChosenEntrysHandlerOnThePage) {
    desktop.nextMenuChoice = "mnuRefresh";
    menus.PopupMenu("mnuProcess", page);
    EXPECT_EQ(page.calls, (Lines{"refresh"}));
    ASSERT_EQ(desktop.menus.size(), 1u);
    EXPECT_EQ(desktop.menus[0].owner, "frmTest");
}

// The entry decides for itself whether it is enabled.
TEST_F(MenuTest, RunsTheHandlerAlsoOfADisabledButton) {
    desktop.nextMenuChoice = "mnuKill";
    menus.PopupMenu("mnuProcess", page);
    EXPECT_EQ(page.calls, (Lines{"kill"}));
}

TEST_F(MenuTest, RunsNothingWhenNothingIsChosenOrTheEntryHasNoHandler) {
    menus.PopupMenu("mnuProcess", page);
    desktop.nextMenuChoice = "mnuStartup_Open";
    menus.PopupMenu("mnuStartup", page);
    menus.PopupMenu("mnuGone", page);
    EXPECT_TRUE(page.calls.empty());
    EXPECT_EQ(desktop.menus.size(), 2u);
}

}  // namespace
}  // namespace velkarix
