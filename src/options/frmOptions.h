// The options page: the legend of colours, the full report, and the backups of deleted files.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/ListView.h"
#include "options/FullReport.h"
#include "shell/Application.h"

namespace velkarix {

class frmOptions : public Form {
  public:
    // The report outlives the page.
    frmOptions(Application& application, FullReport& report);

    void Form_Load() override;

    void LoadBackupList();
    void chkFontBold_Click();
    void cmdReport_Click();
    void chkDelete_Click();
    void cmdrestore_Click();
    void cmdDelete_Click();

  private:
    void MakeLayout();
    void ColorBox_DblClick(std::size_t box);
    void AddBackupRow(const std::string& path, const std::string& date, const std::string& prcName);
    std::string BackupFile(const std::string& name);
    bool IsBackup(const std::string& path);
    // Keeps what stands at `path`, unless `copy` is the same. The code of why it can't be kept.
    ErrorCode KeepPresent(const std::string& path, const std::string& copy);
    void TellNotRestored(ErrorCode code);
    void DeleteSet(const std::string& first, const std::string& second);

    Application& application_;
    FullReport& report_;

    Frame fmLegend_;
    std::vector<std::unique_ptr<ColorBox>> colorBoxes_;
    std::vector<std::unique_ptr<Label>> colorLabels_;
    CheckBox chkFontBold_;
    Frame fmReport_;
    std::vector<std::unique_ptr<CheckBox>> areaBoxes_;  // as FullReportAreas
    Button cmdReport_;
    Frame fmBackup_;
    ListView lstvBackup_;
    CheckBox chkDelete_;
    Button cmdrestore_;
    Button cmdDelete_;
};

}  // namespace velkarix
