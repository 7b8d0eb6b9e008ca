// A list of the program under test: its columns, rows, check boxes and selection, read and used
// from outside.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Window.h"

namespace velkarix::e2e {

// The texts of a row, column by column.
using RowTexts = std::vector<std::string>;

class ListWindow : public Window {
  public:
    ListWindow() = default;
    explicit ListWindow(Window window) : Window(window) {}

    int RowCount() const;
    int ColumnCount() const;
    std::vector<std::string> ColumnCaptions() const;
    std::vector<int> ColumnWidths() const;
    std::string Text(int row, int column) const;
    RowTexts Row(int row) const;
    std::vector<RowTexts> Rows() const;
    std::vector<std::string> Column(int column) const;
    // The place of the first row whose text in column 0 is `text`, whatever the case; nothing
    // when there is none.
    std::optional<int> Find(const std::string& text) const;

    bool Checked(int row) const;
    std::optional<int> Selected() const;
    std::optional<int> Focused() const;

    // Where things are, on the screen.
    RECT RowArea(int row) const;
    RECT LabelArea(int row) const;  // of the row's text in column 0
    RECT IconArea(int row) const;
    POINT CheckBox(int row) const;
    POINT Header(int column) const;

    // Makes the row visible.
    void Show(int row) const;
    Window HeaderWindow() const;

  private:
    RECT Area(int row, int part) const;
};

}  // namespace velkarix::e2e
