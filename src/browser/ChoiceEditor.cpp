#include "browser/ChoiceEditor.h"

#include <utility>

namespace velkarix {

namespace {

constexpr std::size_t ChoiceColumn = 1;

std::vector<std::string> WithUnknown(std::vector<std::string> choices) {
    choices.push_back("Unknown!");
    return choices;
}

}  // namespace

ChoiceEditor::ChoiceEditor(Application& application, const ChoiceEditorTexts& texts,
                           std::vector<std::string> choices, Store store)
    : application_(application),
      texts_(texts),
      store_(std::move(store)),
      list_(texts.list, texts.listText, {texts.settingColumn, texts.choiceColumn},
            {[this](ListRow& row) { ListItemClick(row); }, {}, {}, {}}),
      box_(texts.box, texts.settingColumn, {20, 1, true}),
      combo_(texts.combo, texts.choiceColumn, WithUnknown(std::move(choices)),
             [this] { ComboClick(); }),
      button_(texts.button, "Apply", [this] { ButtonClick(); }) {
    list_.SetCheckBoxes(false);
    list_.SetColumnShares({2, 1});
    button_.SetEnabled(false);
}

void ChoiceEditor::AddRow(const std::string& key, const std::string& setting,
                          const std::string& choice) {
    list_.Add(key, setting, 0).SetText(ChoiceColumn, choice);
}

void ChoiceEditor::ClearEdit() {
    box_.SetValue("");
    combo_.Select(ComboBox::NoSelection);
    button_.SetEnabled(false);
}

void ChoiceEditor::ShowRows() {
    if (list_.Shown()) application_.desktop.Focus(list_);
    if (list_.RowCount() == 0) return;
    list_.Select(&list_.Row(0));
    ListItemClick(list_.Row(0));
}

void ChoiceEditor::ListItemClick(const ListRow& row) {
    box_.SetValue(row.Text(0));
    combo_.SelectText(row.Text(ChoiceColumn));
    if (combo_.Selected() == ComboBox::NoSelection) combo_.Select(UnknownPosition());
    button_.SetEnabled(false);
}

void ChoiceEditor::ComboClick() {
    const ListRow* row = list_.SelectedRow();
    if (row == nullptr || box_.Value().empty() || !IsKnown(combo_.Selected())) {
        button_.SetEnabled(false);
    } else if (combo_.SelectedText() != row->Text(ChoiceColumn)) {
        button_.SetEnabled(true);
    }
}

void ChoiceEditor::Refuse(const char* message) {
    application_.Tell(MessageIcon::Information, message);
    application_.desktop.Focus(combo_);
}

void ChoiceEditor::ButtonClick() {
    ListRow* row = list_.SelectedRow();
    if (row == nullptr) return;
    const int position = combo_.Selected();
    if (position == ComboBox::NoSelection) return Refuse(texts_.selectFirst);
    if (!IsKnown(position)) return Refuse(texts_.notUnknown);
    const MessageAnswer answer = application_.Tell(
        MessageIcon::Question, texts_.question + row->Text(0) + "?", MessageButtons::YesNo);
    if (answer != MessageAnswer::Yes) return;
    if (store_(*row, position)) row->SetText(ChoiceColumn, combo_.SelectedText());
}

}  // namespace velkarix
