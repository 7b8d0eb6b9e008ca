// The pages that the fuzzer works on, and the browser page's lists of items.
#pragma once

#include <cstddef>

#include "browser/ItemPlaces.h"

namespace velkarix {

inline constexpr const char* FuzzedPages[] = {"frmIE", "frmStartup", "frmAddRemove", "frmProcess",
                                              "frmOptions"};

// Which of its items a list shows: each whatever is in it, those with a class, with a zone, or with
// a file that is found in one of many ways.
enum class Shows { Each, WithClass, WithZone, WithFile };

struct PageList {
    const ItemPlaces& places;
    const char* list;  // the controls
    const char* disable;
    const char* enable;
    const char* remove;
    const char* report;
    Shows shows;
};

inline const PageList PageLists[] = {
    {BHOPlaces, "lstvBHO", "cmdDisableBHO", "cmdEnableBHO", "cmdBHODelete", "cmdReportBHO",
     Shows::Each},
    {ToolbarPlaces, "lstvToolbar", "cmdToolbarDisable", "cmdToolbarEnable", "cmdDeleteToolbar",
     "cmdreportToolbar", Shows::Each},
    {ButtonPlaces, "lstvButtons", "cmdButtonDisable", "cmdButtonEnable", "cmdDeleteButton",
     "cmdReportButton", Shows::WithFile},
    {MenuPlaces, "lstvMenu", "cmdDisableMenu", "cmdEnableMenu", "cmdDeleteMenu", "cmdReportMenu",
     Shows::Each},
    {ProtocolPlaces, "lstvProtocol", "cmdProtocolDisable", "cmdProtocolEnable", "cmdProtocolDelete",
     "cmdProtocolReport", Shows::WithClass},
    {DomainPlaces, "lstvDomains", "cmdDomainDisable", "cmdDomainEnable", "cmdDomainDelete",
     "cmdDomainReport", Shows::WithZone},
    {HookPlaces, "lstvHook", "cmdHookDisable", "cmdHookEnable", "cmdHookDelete", "cmdHookReport",
     Shows::Each},
};

}  // namespace velkarix
