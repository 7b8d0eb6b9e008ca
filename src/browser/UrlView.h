// The addresses that the browser takes from the registry: start page, search and prefixes, shown
// in boxes, with buttons for the stock addresses and one that writes all of them.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "browser/BrowserView.h"
#include "browser/UrlTables.h"
#include "forms/Controls.h"
#include "shell/Application.h"

namespace velkarix {

class UrlView : public BrowserView {
  public:
    explicit UrlView(Application& application);

    std::vector<Control*> Controls() override;
    Layout ViewLayout() override;

    // Fills the boxes from the registry; what is missing there gives an empty box.
    void LoadUrls();
    // Writes all boxes and sets the browser's own stock addresses back. What can't be written is
    // told by the registry layer, and the rest goes on.
    void ApplyUrls();
    // The view is entered: shows what the registry holds, with nothing to apply.
    void Enter();
    // Reads the boxes anew and appends them to a report. False, after a message, when the file
    // can't be written.
    bool printReportURLs(const std::string& filePath);
    void cmdApply_Click();

  private:
    TextBox& Box(UrlBox box) const { return *boxes_[static_cast<std::size_t>(box)]; }
    Button& StockButton(UrlButton button) const {
        return *buttons_[static_cast<std::size_t>(button)];
    }
    Label* LabelOf(UrlBox box) const { return labels_[static_cast<std::size_t>(box)].get(); }
    void PutStock(UrlButton button);
    void AddField(std::vector<Control*>& controls, UrlBox box) const;
    Layout Labelled(std::span<const UrlBox> boxes, bool withButtons) const;

    Application& application_;
    Frame fmStartPage_;
    Frame fmSearchURLs_;
    Frame fmURLPrefixes_;
    std::vector<std::unique_ptr<Label>> labels_;
    std::vector<std::unique_ptr<TextBox>> boxes_;
    std::vector<std::unique_ptr<Button>> buttons_;
    Button cmdApply_;
};

}  // namespace velkarix
