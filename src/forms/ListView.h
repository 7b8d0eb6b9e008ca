// A list with columns, check boxes and one selected row. The model owns the rows, their order and
// the selection; there is no second copy: a view asks it for what it shows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/Color.h"
#include "forms/Control.h"
#include "forms/ImageList.h"

namespace velkarix {

class ListView;

enum class MouseButton { Left = 1, Right = 2 };
enum class SortOrder { Ascending, Descending };
enum class ListMode { Details, Icons };  // icons are large and show column 0 alone

// What is known of the item that a row stands for.
enum class ItemMark { None, Suspicious, Disabled, SuspiciousDisabled };

// How many rows a list has, and of which kinds; a row may be of several.
struct ListCounts {
    std::size_t rows = 0;
    std::size_t suspicious = 0;
    std::size_t disabled = 0;
    std::size_t ticked = 0;

    friend bool operator==(const ListCounts&, const ListCounts&) = default;
};

class ListRow {
  public:
    ListRow(ListView& list, std::string key, std::string text, std::size_t image,
            std::size_t largeImage, std::size_t columns);

    const std::string& Key() const { return key_; }
    // The text of a column; column 0 is the row's text.
    const std::string& Text(std::size_t column) const { return texts_.at(column); }
    void SetText(std::size_t column, std::string text);
    std::size_t Image() const { return image_; }            // from 1
    std::size_t LargeImage() const { return largeImage_; }  // from 1
    bool Checked() const { return checked_; }
    void SetChecked(bool checked);
    // The colour of the row's text in column 0; nothing is the list's own colour.
    const std::optional<Color>& TextColor() const { return textColor_; }
    void SetTextColor(Color color);
    bool Bold() const { return bold_; }
    void SetBold(bool bold);
    // No mark at first. It has no look of its own: colour and weight are.
    ItemMark Mark() const { return mark_; }
    void SetMark(ItemMark mark);

  private:
    friend class ListView;
    ListView& list_;
    std::string key_;
    std::vector<std::string> texts_;
    std::size_t image_;
    std::size_t largeImage_;
    std::size_t position_ = 0;
    std::optional<Color> textColor_;
    ItemMark mark_ = ItemMark::None;
    bool checked_ = false;
    bool bold_ = false;
};

class ListView : public Control {
  public:
    // Handlers of the user's gestures. The row of itemClick is the one that was clicked or
    // reached by a key; columnClick counts from 1.
    struct Handlers {
        std::function<void(ListRow&)> itemClick;
        std::function<void(int)> columnClick;
        std::function<void()> doubleClick;
        std::function<void(MouseButton)> mouseUp;
    };

    // `text` is the list's spoken name; `columns` are the captions, in order.
    ListView(std::string name, std::string text, std::vector<std::string> columns,
             Handlers handlers);

    const std::vector<std::string>& Columns() const { return columns_; }
    // Whether a box to tick stands in front of each row; it does at first. Said before the list is
    // shown.
    bool CheckBoxes() const { return checkBoxes_; }
    void SetCheckBoxes(bool checkBoxes) { checkBoxes_ = checkBoxes; }
    // The shares of the list's width that its columns have until they are fitted; equal ones at
    // first. Said before the list is shown.
    const std::vector<int>& ColumnShares() const { return columnShares_; }
    void SetColumnShares(std::vector<int> shares) { columnShares_ = std::move(shares); }

    // The new row stands last, or at its place when the list is sorted. It lives until it is
    // removed or the list is cleared.
    ListRow& Add(std::string key, std::string text, std::size_t image, std::size_t largeImage = 1);
    void Remove(ListRow& row);
    void Clear();
    std::size_t RowCount() const { return rows_.size(); }
    const ListCounts& Counts() const { return counts_; }
    // The row at a position of the shown order, from 0.
    ListRow& Row(std::size_t position);
    std::size_t PositionOf(const ListRow& row);

    ListRow* SelectedRow() const { return selected_; }
    void Select(ListRow* row);  // by the program: no handler runs

    std::size_t SortKey() const { return sortKey_; }
    SortOrder Order() const { return order_; }
    bool Sorted() const { return sorted_; }
    // Sorting is by text without regard to the case of A to Z; rows that compare equal keep the
    // order that they came in.
    void Sort(std::size_t column, SortOrder order);
    // The rows stay as they stand and new ones come last, as in a new list.
    void EndSort();

    // The pictures of the rows; null detaches. The list doesn't own them.
    const ImageList* Images() const { return images_; }
    void SetImages(const ImageList* images);

    // The pictures that rows show in the mode of icons; null: none.
    const ImageList* LargeImages() const { return largeImages_; }
    void SetLargeImages(const ImageList* images);

    // Details at first.
    ListMode Mode() const { return mode_; }
    void SetMode(ListMode mode);

    // Fits all columns to their headers and contents.
    void FitColumns() { Notify(Aspect::ColumnWidths); }

    // `onChange` hears of every change of the rows, whoever makes it, and when the list comes on
    // view or leaves it. Empty takes it away.
    void SetOnChange(Handler onChange) { onChange_ = std::move(onChange); }

    // The user's gestures. They change the model without a word to the view, then run handlers.
    void UserSelect(ListRow* row);               // click or arrow key; null: beside all rows
    void UserCheck(ListRow& row, bool checked);  // click on the box, or Space
    void UserColumnClick(int column);            // from 1
    void UserMouseUp(MouseButton button);        // also the Menu key, as the right button
    bool Fire(std::string_view event) override;  // "DblClick"
    void Accept(ControlVisitor& visitor) override;

  protected:
    void Notify(Aspect aspect) const override;

  private:
    friend class ListRow;
    void PutInOrder();
    // Counts what the row is in, or no longer.
    void Count(const ListRow& row, bool in);

    std::vector<std::string> columns_;
    std::vector<int> columnShares_;
    Handlers handlers_;
    Handler onChange_;
    std::vector<std::unique_ptr<ListRow>> rows_;
    ListCounts counts_;
    ListRow* selected_ = nullptr;
    std::size_t sortKey_ = 0;
    SortOrder order_ = SortOrder::Ascending;
    bool sorted_ = false;
    bool checkBoxes_ = true;
    bool inOrder_ = true;
    const ImageList* images_ = nullptr;
    const ImageList* largeImages_ = nullptr;
    ListMode mode_ = ListMode::Details;
};

}  // namespace velkarix
