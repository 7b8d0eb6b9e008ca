// The tree of the startup page: its nodes, and what the list shows of each.
#include <algorithm>
#include <iterator>

#include "startup/frmStartup.h"

namespace velkarix {

namespace {

struct NodeEntry {
    const char* key;
    const char* text;
    const char* picture;
    const char* parent;
    bool expanded;
    // What the list shows of the node, in this order; null ends it.
    void (frmStartup::*loads[4])();
    const char* selection;  // as the caption names it
};

constexpr NodeEntry Nodes[] = {
    {"All",
     "All Items",
     "AllItems",
     "",
     true,
     {&frmStartup::LoadHKLMRun, &frmStartup::LoadHKCURun, &frmStartup::LoadCUStartupFolder,
      &frmStartup::LoadLMStartupFolder},
     "All Items"},
    {"LM",
     "Local Machine",
     "Computer",
     "All",
     true,
     {&frmStartup::LoadHKLMRun, &frmStartup::LoadLMStartupFolder},
     "Local Machine"},
    {"HKLM",
     "Registry",
     "Registry",
     "LM",
     false,
     {&frmStartup::LoadHKLMRun},
     "Local Machine Regitry"},
    {"LMStartup",
     "Startup Folder",
     "Folder",
     "LM",
     false,
     {&frmStartup::LoadLMStartupFolder},
     "Local Machine Startup Folder"},
    {"CU",
     "Current User",
     "User",
     "All",
     true,
     {&frmStartup::LoadHKCURun, &frmStartup::LoadCUStartupFolder},
     "Current User"},
    {"HKCU",
     "Registry",
     "Registry",
     "CU",
     false,
     {&frmStartup::LoadHKCURun},
     "Current User Registry"},
    {"CUStartup",
     "Startup Folder",
     "Folder",
     "CU",
     false,
     {&frmStartup::LoadCUStartupFolder},
     "Current User Startup Folder"},
};

std::string CaptionOf(const char* selection) {
    return std::string("Startup Items (Current Selection: ") + selection + ")";
}

}  // namespace

void frmStartup::BuildStartupTree() {
    for (const NodeEntry& node : Nodes) {
        tvwStartup_.Add(node.key, node.text, node.picture, node.parent, node.expanded);
    }
}

void frmStartup::tvwStartup_NodeClick(const TreeNode& node) {
    if (node.key == currentNodeKey_) return;
    const auto* entry = std::find_if(std::begin(Nodes), std::end(Nodes),
                                     [&](const NodeEntry& each) { return node.key == each.key; });
    const Progress::Work work(application_.progress, lstvStartup_.Text());
    ClearStartupList();
    for (const auto load : entry->loads) {
        if (load != nullptr) (this->*load)();
    }
    fmStartup_.SetText(CaptionOf(entry->selection));
    AutoSizeColumns(lstvStartup_);
    currentNodeKey_ = node.key;
}

void frmStartup::cmdRefresh_Click() {
    if (tvwStartup_.SelectedNode() == nullptr) tvwStartup_.Select(tvwStartup_.Find(Nodes[0].key));
    currentNodeKey_.clear();
    tvwStartup_NodeClick(*tvwStartup_.SelectedNode());
}

}  // namespace velkarix
