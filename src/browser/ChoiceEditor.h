// A list of settings with the choice that each stands at, and beneath it the selected one with a
// drop-down list of the choices and a button that stores another.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/ComboBox.h"
#include "forms/Controls.h"
#include "forms/Layout.h"
#include "forms/ListView.h"
#include "shell/Application.h"

namespace velkarix {

// What a row shows in place of its choice when that is none of the known ones.
inline constexpr const char* UnknownChoice = "Unknown";

// The names and words of one editor.
struct ChoiceEditorTexts {
    const char* list;  // the controls' names
    const char* box;
    const char* combo;
    const char* button;
    const char* listText;  // what the list is called, for screen readers
    const char* settingColumn;
    const char* choiceColumn;
    const char* selectFirst;  // when nothing is chosen
    const char* notUnknown;   // when the unknown entry is chosen
    const char* question;     // before a change; the row's text and "?" follow it
};

class ChoiceEditor {
  public:
    // Writes the choice at `position`, from 0, for the setting of `row`. False when it can't.
    using Store = std::function<bool(const ListRow& row, int position)>;

    // `choices` are the known ones; the drop-down list has the unknown one behind them.
    ChoiceEditor(Application& application, const ChoiceEditorTexts& texts,
                 std::vector<std::string> choices, Store store);

    ListView& List() { return list_; }
    // What stands beneath the list, in tab order.
    std::vector<Control*> EditControls() { return {&box_, &combo_, &button_}; }
    Layout EditRow() { return Row({Item(box_, 1), Item(combo_), Item(button_)}, 1); }

    void AddRow(const std::string& key, const std::string& setting, const std::string& choice);
    // No setting is shown beneath the list.
    void ClearEdit();
    // The list is filled: gives it the focus when it is on view, and selects its first row.
    void ShowRows();

  private:
    void ListItemClick(const ListRow& row);
    void ComboClick();
    void ButtonClick();
    // Tells the user why the choice can't be stored, and leads back to it.
    void Refuse(const char* message);
    bool IsKnown(int position) const { return position >= 0 && position < UnknownPosition(); }
    int UnknownPosition() const { return static_cast<int>(combo_.Entries().size()) - 1; }

    Application& application_;
    const ChoiceEditorTexts& texts_;
    Store store_;
    ListView list_;
    TextBox box_;
    ComboBox combo_;
    Button button_;
};

}  // namespace velkarix
