// The foot of the main window: what the program is busy with and how much of that is done, or, at
// rest, how many rows the list on view has; and beside it how many places couldn't be read.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/ListView.h"
#include "forms/ProgressBar.h"
#include "shell/Application.h"
#include "shell/Progress.h"

namespace velkarix {

class StatusStrip : private Progress::View {
  public:
    // `listOnView` gives the list that the user sees, or null.
    StatusStrip(Application& application, std::function<ListView*()> listOnView);
    ~StatusStrip() override;
    StatusStrip(const StatusStrip&) = delete;
    StatusStrip& operator=(const StatusStrip&) = delete;

    std::vector<Control*> Controls();  // in tab order
    Layout StripLayout();

    // Shows the counts of the list on view; nothing where there is none.
    void ShowCounts();
    // Shows this until something of the list changes; the counts where it is empty.
    void Say(const std::string& text);

  private:
    void ShowProgress(const std::string& text, std::optional<double> share) override;
    void EndProgress() override;
    void ShowBar(bool visible);
    void ShowUnread();
    void lblUnread_Click();

    Application& application_;
    std::function<ListView*()> listOnView_;
    Panel picStatus_;
    Label lblStatus_;
    ProgressBar barProgress_;
    LinkLabel lblUnread_;
};

// "128 rows, 3 suspicious, 2 disabled, 1 ticked": what there is none of is left out.
std::string CountsText(const ListCounts& counts);

}  // namespace velkarix
