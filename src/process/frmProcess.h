// The process page: what runs, filtered and judged by the lists or all of it unjudged.
#pragma once

#include <string>

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/ImageList.h"
#include "forms/ListView.h"
#include "process/ProcessBackup.h"
#include "process/SafeList.h"
#include "process/VerdictCache.h"
#include "shell/Application.h"

namespace velkarix {

class frmProcess : public Form {
  public:
    // The cache outlives the page.
    frmProcess(Application& application, VerdictCache& verdictCache);

    void Form_Load() override;

    void LoadProcessList();
    // Chooses "All", as the user would: builds the list anew and keeps the setting.
    void ShowAllProcesses();
    void optFilter_Click();
    void lstvProcess_ItemClick(const ListRow& row);
    void lstvProcess_ColumnClick(int column);
    void lstvProcess_DblClick();
    void lstvProcess_MouseUp(MouseButton button);
    void cmdAdd_Click();
    void cmdRemove_Click();
    void cmdKill_Click();
    void cmdDelete_Click();
    void cmdViewInformation_Click();
    void cmdReport_Click();
    void cmdRefresh_Click();
    void cmdOpen_Click();
    // Appends all rows in the shown order to a report. False, after a message, when it can't.
    bool printReport(const std::string& fileName);

  private:
    void MakeLayout();
    void ApplySkin();
    std::string SafeListFile();
    void ReadSafeList();
    // Success where the list is the file's, so that writing it loses nothing of that. One that
    // couldn't be read is read once more; then the code of why it can't.
    ErrorCode EnsureSafeList();
    void TellNotAdded(ErrorCode code);
    void SetFilter(bool on);
    void ShowEntry(const std::string& path, ProcessId id);
    void AddProcessRow(const std::string& path, const std::string& name, ProcessId id,
                       bool suspicious);
    void SetMenuEntries();
    bool Confirmed(const char* question, const ListRow& row);
    // True when the process was stopped.
    bool killProcess(const ListRow& row);

    Application& application_;
    VerdictCache& verdictCache_;
    SafeProcesses safeProcessList_;
    ErrorCode safeListFailure_ = error::Success;  // why it couldn't be read
    ProcessBackup backup_;
    bool filterOn_ = true;

    ListView lstvProcess_;
    ImageList imglProcess_;
    Frame fmFilter_;
    OptionGroup optFilter_;
    Button cmdAdd_;
    Button cmdRemove_;
    Button cmdKill_;
    Button cmdDelete_;
    Button cmdViewInformation_;
    Button cmdReport_;
    Button cmdRefresh_;
    Button cmdOpen_;
};

}  // namespace velkarix
