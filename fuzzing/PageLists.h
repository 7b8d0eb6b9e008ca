// The pages that the fuzzer works on, and the browser page's lists of items.
#pragma once

#include <cstddef>

#include "browser/ItemPlaces.h"

namespace velkarix {

inline constexpr const char* FuzzedPages[] = {"frmIE", "frmStartup", "frmAddRemove", "frmProcess"};

struct PageList {
    const ItemPlaces& places;
    const char* list;  // the controls
    const char* disable;
    const char* enable;
    const char* remove;
    const char* report;
    bool showsAll;  // each item, whatever is in it
};

inline const PageList PageLists[] = {
    {BHOPlaces, "lstvBHO", "cmdDisableBHO", "cmdEnableBHO", "cmdBHODelete", "cmdReportBHO", true},
    {ToolbarPlaces, "lstvToolbar", "cmdToolbarDisable", "cmdToolbarEnable", "cmdDeleteToolbar",
     "cmdreportToolbar", true},
    {ButtonPlaces, "lstvButtons", "cmdButtonDisable", "cmdButtonEnable", "cmdDeleteButton",
     "cmdReportButton", false},
    {MenuPlaces, "lstvMenu", "cmdDisableMenu", "cmdEnableMenu", "cmdDeleteMenu", "cmdReportMenu",
     true},
    {ProtocolPlaces, "lstvProtocol", "cmdProtocolDisable", "cmdProtocolEnable", "cmdProtocolDelete",
     "cmdProtocolReport", false},
    {DomainPlaces, "lstvDomains", "cmdDomainDisable", "cmdDomainEnable", "cmdDomainDelete",
     "cmdDomainReport", false},
    {HookPlaces, "lstvHook", "cmdHookDisable", "cmdHookEnable", "cmdHookDelete", "cmdHookReport",
     true},
};

}  // namespace velkarix
