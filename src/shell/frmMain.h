// The main window: a banner with two links, a strip of six page buttons, the page on view between
// the strips of finding and of status, and the keys that work on the list of any page. It makes the
// program ready as it loads, and hands over to the update program once, shortly after the first
// page stands.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/ListView.h"
#include "forms/Timer.h"
#include "shell/Application.h"
#include "shell/FindStrip.h"
#include "shell/StatusStrip.h"

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
    void tmrUpdate_Timer();

  private:
    void ApplySkin();
    bool ReadAppearance();
    void GetWindowsName();
    void LoadDefinitionLists();
    void PageButton_Click(std::size_t button);
    bool ShowPage(const std::string& page);
    void ShowActivePage();
    void MarkActivePage();
    // All lists of the page on view, seen or not.
    std::vector<ListView*> ListsOfPage() const;
    void FollowLists(const Handler& onChange);
    // The list that the user sees; null where the page on view shows none.
    ListView* ListOnView() const;
    // Put the selected row, or all with their captions, on the clipboard. Without any they do
    // nothing.
    void CopyRow();
    void CopyList();
    void Copy(const std::string& text, const char* done);

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
    FindStrip find_;
    StatusStrip status_;
    Timer tmrUpdate_;
};

}  // namespace velkarix
