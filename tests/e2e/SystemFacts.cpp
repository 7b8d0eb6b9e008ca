#include "SystemFacts.h"

#include "forms/win32/Win32Desktop.h"
#include "platform/win32/Win32Machine.h"
#include "registry/modRegistry.h"

namespace velkarix::e2e {

SystemDescription AskSystemFacts() {
    Win32Machine machine;
    Win32Desktop desktop;
    const Machine parts = machine.Parts();
    modRegistry registry(parts, desktop, "Velkarix");
    return clsSysInfo(parts.system, registry).sysInfo();
}

}  // namespace velkarix::e2e
