#include "shell/frmAbout.h"

#include <string>

namespace velkarix {

frmAbout::frmAbout(Application& application)
    : Form("frmAbout", std::string("About: ") + ApplicationTitle, FormKind::Dialog),
      application_(application),
      picIcon_("picIcon", ApplicationTitle, "Application", 48),
      lblTitle_("lblTitle", ApplicationTitle),
      lblVersion_("lblVersion", "Version: " + ApplicationVersion()),
      lblDBCaption_("lblDBCaption", "Database version:"),
      lblDB_("lblDB", ""),
      cmdOk_("cmdOk", "OK", [this] { cmdOk_Click(); }) {
    SetControls({&picIcon_, &lblTitle_, &lblVersion_, &lblDBCaption_, &lblDB_, &cmdOk_});
    SetButtons(&cmdOk_, &cmdOk_);
    SetLayout(Column({Row({Item(picIcon_), Column({Item(lblTitle_), Item(lblVersion_),
                                                   Row({Item(lblDBCaption_), Item(lblDB_, 1)})},
                                                  1)}),
                      Row({Space(), Item(cmdOk_)})}));
}

void frmAbout::Form_Load() {
    Settings& settings = application_.settings;
    lblDB_.SetText(settings.ReadIni("Database", "Version", "N/A",
                                    settings.InstallFolder() + "\\Database.ini"));
}

}  // namespace velkarix
