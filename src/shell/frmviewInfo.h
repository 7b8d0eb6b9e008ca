// The dialog that shows everything known of one file. Any list fills it and shows it.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/Controls.h"
#include "forms/Form.h"
#include "shell/Application.h"

namespace velkarix {

class frmviewInfo : public Form {
  public:
    explicit frmviewInfo(Application& application);

    // What the dialog is about, set before it is loaded: the item's name, the file's full path,
    // and its size as the list shows it, in kilobytes.
    void SetItem(std::string name, std::string path, std::string size);

    void Form_Load() override;
    void cmdOk_Click() { Close(); }

  private:
    // One line of the dialog: a caption and what stands beside it, in a box or as plain text.
    struct Line {
        std::unique_ptr<Label> caption;
        std::unique_ptr<TextBox> box;
        std::unique_ptr<Label> plain;
        void Show(const std::string& text);
    };
    void MakeLines();
    void ShowIcon();
    void ShowFacts();

    Application& application_;
    std::string itemName_;
    std::string path_;
    std::string size_;

    PictureBox picIcon_;
    Label lblName_;
    TextBox txtName_;
    std::vector<Line> lines_;
    Button cmdOk_;
};

// Shows the dialog above the main window.
void ShowFileInformation(Application& application, const std::string& name, const std::string& path,
                         const std::string& size);

}  // namespace velkarix
