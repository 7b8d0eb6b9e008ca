// The main window: a banner with two links, a strip of six page buttons, the page on view, and
// below it how many places couldn't be read. It makes the program ready as it loads, and hands over
// to the update program once, shortly after the first page stands.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/Timer.h"
#include "shell/Application.h"

namespace velkarix {

class frmMain : public Form {
  public:
    explicit frmMain(Application& application);
    ~frmMain() override;

    void Form_Load() override;

    // Loads a page that isn't loaded, for what it lists, without showing it. Null when there is no
    // page of that name.
    Form* LoadPage(const std::string& page);
    // Unloads a page. One that is on view leaves its place empty, until the user opens a page.
    void UnloadPage(const std::string& page);

    void lblHelp_Click();
    void lblAbout_Click();
    void lblUnread_Click();
    void tmrUpdate_Timer();

  private:
    void ApplySkin();
    bool ReadAppearance();
    void GetWindowsName();
    void LoadDefinitionLists();
    void ShowUnread();
    void PageButton_Click(std::size_t button);
    bool ShowPage(const std::string& page);
    void MarkActivePage();

    Application& application_;
    std::string activePage_;

    Panel picTop_;
    PictureBox picProduct_;
    Label lblProduct_;
    LinkLabel lblHelp_;
    LinkLabel lblAbout_;
    Panel picLeft_;
    std::vector<std::unique_ptr<Button>> pageButtons_;
    PageHost picPage_;
    LinkLabel lblUnread_;
    Timer tmrUpdate_;
};

}  // namespace velkarix
