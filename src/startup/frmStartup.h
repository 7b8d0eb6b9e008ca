// The startup page: what Windows starts when a user logs on, and what of it is switched off. A tree
// chooses which places the list shows.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/ImageList.h"
#include "forms/ListView.h"
#include "forms/TreeView.h"
#include "shell/Application.h"
#include "shell/CommandButtons.h"
#include "shell/FileRows.h"
#include "shell/ListServices.h"
#include "shell/ShortcutFacts.h"
#include "startup/StartupPlaces.h"

namespace velkarix {

class frmStartup : public Form {
  public:
    // `toldOfShortcuts` outlives the page: whether the user knows that this system can't read
    // shortcuts.
    frmStartup(Application& application, bool& toldOfShortcuts);

    void Form_Load() override;

    // Each adds the rows of its places, live ones first.
    void LoadHKLMRun() { LoadRun(Hive::LocalMachine); }
    void LoadHKCURun() { LoadRun(Hive::CurrentUser); }
    void LoadLMStartupFolder() { LoadFolder("Startup LM"); }
    void LoadCUStartupFolder() { LoadFolder("Startup CU"); }

    void tvwStartup_NodeClick(const TreeNode& node);
    void lstvStartup_ItemClick(const ListRow& row);
    void lstvStartup_MouseUp(MouseButton button);
    void cmdDisable_Click() { MoveChecked(true); }
    void cmdEnable_Click() { MoveChecked(false); }
    void cmdDelete_Click();
    void cmdViewInformation_Click();
    void cmdReport_Click();
    void cmdFolder_Click();
    void cmdRefresh_Click();
    // Appends the rows in the shown order to a report. False, after a message, when it can't.
    bool printReport(const std::string& filePath);

  private:
    // What a row is made of.
    struct StartupItem {
        std::string name;
        std::string command;  // as the list shows it
        std::string location;
        std::string path;  // of the file that it starts
        std::string iconFile;
        int iconIndex = 0;
    };

    // What is known of a file.
    struct SeenFile {
        bool exists = false;
        bool suspicious = false;
        FileFacts facts;
    };

    void MakeLayout();
    void BuildStartupTree();
    void ClearStartupList();
    void LoadRun(Hive hive);
    void ScanRunKey(const RunKey& key, bool enabled);
    void LoadFolder(const char* location);
    void ScanShortcutFolder(const std::string& folder, const char* location, bool enabled);
    void AddShortcutRow(const std::string& name, const Shortcut& shortcut, const char* location,
                        bool enabled);
    void AddRow(const StartupItem& item, bool enabled);
    const SeenFile& LookAt(const std::string& path);
    std::size_t ImageOf(const std::string& file, int index);
    void ResolveFolders();
    // The folder that holds the shortcuts which are on, or off, as it was when the page was loaded;
    // empty when there is none.
    const std::string& FolderOfShortcuts(const StartupFolder& folder, bool enabled) const;
    void MoveChecked(bool enabled);
    // False when it failed in a way that ends the command; the user knows.
    bool MoveShortcut(const StartupFolder& folder, const std::string& name, bool enabled);
    void DeleteShortcut(const std::string& path);
    void TellError(const std::string& operation, ErrorCode code);

    Application& application_;
    bool& toldOfShortcuts_;
    std::optional<ShortcutSource> shortcuts_;
    std::map<std::pair<std::string, bool>, std::string> folders_;  // by location and state
    int iconIndex_ = 0;  // of the shortcut that was read last
    // What this load of the list has looked at, by the path without case: many items start the
    // same file.
    std::map<std::string, SeenFile> seenFiles_;
    std::map<std::pair<std::string, int>, std::size_t> seenIcons_;
    std::string currentNodeKey_;
    ColumnSort sort_;

    TreeView tvwStartup_;
    Frame fmStartup_;
    ListView lstvStartup_;
    ImageList imglStartup_;
    CommandButtons buttons_;
};

}  // namespace velkarix
