// The boxes of the utilities page that start tools of their own: a row for each.
#pragma once

#include "shell/InstalledTool.h"

namespace velkarix {

struct ToolLauncher {
    const char* frame;  // the control's name, and below those of the others
    const char* caption;
    const char* label;
    const char* text;
    const char* button;
    const char* buttonCaption;
    InstalledTool tool;
};

inline constexpr ToolLauncher ToolLaunchers[] = {
    {"fmHosts",
     "Hosts File Editor",
     "lblHosts",
     "Hosts file is used by Windows to map IP address with domain name. Many Spyware add "
     "entries in this file to redirect a url to their site, also an entry can be added in this "
     "file to prevent loading a website.",
     "cmdHosts",
     "Hosts File Editor",
     {"\\Tesselin.exe", "\\Tesselin.exe", "Hosts File Editor utlity not found."}},
    {"fmLSP",
     "Repair Winsock LSP (Layered Service Provider)",
     "lblLSP",
     "Some Spyware add files in Winsock LSP chain. Due to some reason like bad uninstallation, "
     "this chain breaks down leading to inability to access internet.Please read carefully the "
     "instructions on Repair LSP. ",
     "cmdRepairLSP",
     "Repair LSP",
     {"\\quillate.exe", "\\Quillate.exe", "Repair LSP utlity not found."}},
};

}  // namespace velkarix
