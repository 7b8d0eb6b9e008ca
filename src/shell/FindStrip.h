// The strip above the page on view in which the user looks for a text in the list that is shown
// there. Hidden until it is asked for.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/Controls.h"
#include "forms/Desktop.h"
#include "forms/Form.h"
#include "forms/ListSearch.h"

namespace velkarix {

class FindStrip {
  public:
    // `listOnView` gives the list that the user sees, or null; `say` tells the user how a search
    // has ended, without asking anything; an empty text: as expected.
    FindStrip(Desktop& desktop, std::function<ListView*()> listOnView,
              std::function<void(const std::string&)> say);
    FindStrip(const FindStrip&) = delete;
    FindStrip& operator=(const FindStrip&) = delete;

    std::vector<Control*> Controls();  // in tab order
    Layout StripLayout();
    std::vector<Accelerator> Keys();

  private:
    void Open();
    void Close();
    // Opens the strip where there is nothing to look for yet.
    void Find(SearchWay way);

    Desktop& desktop_;
    std::function<ListView*()> listOnView_;
    std::function<void(const std::string&)> say_;
    Panel picFind_;
    Label lblFind_;
    TextBox txtFind_;
    Button cmdFindNext_;
    Button cmdFindPrevious_;
    Button cmdFindClose_;
};

}  // namespace velkarix
