// The utilities page: the hand-over to the update program, the protection from malicious ActiveX
// controls, and the launchers of the tools that lie beside this program.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/Controls.h"
#include "forms/Form.h"
#include "shell/Application.h"

namespace velkarix {

class frmUtilities : public Form {
  public:
    explicit frmUtilities(Application& application);
    ~frmUtilities() override;

    void Form_Load() override;
    void Form_Unload() override;

    void cmdUpdateDefinition_Click();
    void cmdUpdateSoftware_Click();
    void cmdActiveXProtect_Click();
    void cmdActiveXRemove_Click();

  private:
    // The controls of one row of ToolLaunchers.
    struct LauncherBox;

    void MakeLayout();
    std::string LastUpdate();
    void Launcher_Click(std::size_t launcher);
    // Does `work` for the key of each listed control. The code of why the list can't be read to its
    // end.
    ErrorCode ForEachListed(const std::function<void(const std::string& key)>& work);
    // Says `done`, or why the list couldn't be read to its end.
    void TellEnd(ErrorCode result, const std::string& done);

    Application& application_;

    Frame fmDBUpdate_;
    CheckBox chkAutoDBCheck_;
    Label lblLastUpdated_;
    Button cmdUpdateDefinition_;
    Frame fmSoftwareUpdate_;
    Button cmdUpdateSoftware_;
    Frame fmActiveX_;
    Label lblActiveX_;
    Button cmdActiveXProtect_;
    Button cmdActiveXRemove_;
    std::vector<std::unique_ptr<LauncherBox>> launchers_;
};

}  // namespace velkarix
