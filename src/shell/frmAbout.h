// The about box: title, version and version of the definition data.
#pragma once

#include "forms/Controls.h"
#include "forms/Form.h"
#include "shell/Application.h"

namespace velkarix {

class frmAbout : public Form {
  public:
    explicit frmAbout(Application& application);

    void Form_Load() override;
    void cmdOk_Click() { Close(); }

  private:
    Application& application_;
    PictureBox picIcon_;
    Label lblTitle_;
    Label lblVersion_;
    Label lblDBCaption_;
    Label lblDB_;
    Button cmdOk_;
};

}  // namespace velkarix
