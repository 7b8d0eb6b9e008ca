// The page of installed applications: what the uninstall keys declare, as large icons or with
// details.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/ImageList.h"
#include "forms/ListView.h"
#include "shell/Application.h"
#include "shell/CommandButtons.h"
#include "shell/ListServices.h"

namespace velkarix {

inline constexpr const char* UninstallKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";

class frmAddRemove : public Form {
  public:
    explicit frmAddRemove(Application& application);

    void Form_Load() override;
    void Form_Unload() override;

    void Get_Uninstall();
    void View_Click();
    void lstvAddRemove_MouseUp(MouseButton button);
    void cmdUninstall_Click() { RunUninstaller(); }
    void cmdDelete_Click();
    void cmdReport_Click();
    void cmdRefresh_Click() { Get_Uninstall(); }
    // Appends the rows in the shown order to a report. False, after a message, when it can't.
    bool printReport(const std::string& fileName);

  private:
    struct AppIcon {
        std::size_t large;
        std::size_t small;
    };

    void MakeLayout();
    void ClearAppImages();
    void AddApplication(const std::string& subKey);
    // Where the application's icon is: a file, and which of its icons.
    std::pair<std::string, int> IconPlace(const std::string& subKey, std::string displayIcon);
    std::string FileInCache(const std::string& subKey);
    AppIcon AddAppIcon(const std::string& file, int iconIndex);
    void MarkSuspiciousApp(const std::string& subKeyLowerCase, ListRow& row);
    void RunUninstaller();

    Application& application_;
    std::int16_t CurrentView_;
    ColumnSort sort_;
    // Of this load of the list, by the path without case.
    std::map<std::pair<std::string, int>, AppIcon> icons_;

    ListView lstvAddRemove_;
    ImageList imglAddRemove_;
    ImageList ImgLarge_;
    Frame fmInstalled_;
    OptionGroup views_;
    CommandButtons buttons_;
};

}  // namespace velkarix
