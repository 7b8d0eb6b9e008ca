#include "forms/ListView.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "forms/ControlVisitor.h"

namespace velkarix {

ListRow::ListRow(ListView& list, std::string key, std::string text, std::size_t image,
                 std::size_t largeImage, std::size_t columns)
    : list_(list), key_(std::move(key)), texts_(columns), image_(image), largeImage_(largeImage) {
    texts_.at(0) = std::move(text);
}

void ListRow::SetText(std::size_t column, std::string text) {
    texts_.at(column) = std::move(text);
    if (column == list_.SortKey()) list_.inOrder_ = !list_.Sorted();
    list_.Notify(Aspect::RowState);
}

void ListRow::SetChecked(bool checked) {
    list_.Count(*this, false);
    checked_ = checked;
    list_.Count(*this, true);
    list_.Notify(Aspect::RowState);
}

void ListRow::SetTextColor(Color color) {
    textColor_ = color;
    list_.Notify(Aspect::RowState);
}

void ListRow::SetBold(bool bold) {
    bold_ = bold;
    list_.Notify(Aspect::RowState);
}

void ListRow::SetMark(ItemMark mark) {
    list_.Count(*this, false);
    mark_ = mark;
    list_.Count(*this, true);
    list_.Notify(Aspect::RowState);
}

ListView::ListView(std::string name, std::string text, std::vector<std::string> columns,
                   Handlers handlers)
    : Control(std::move(name), std::move(text)),
      columns_(std::move(columns)),
      columnShares_(columns_.size(), 1),
      handlers_(std::move(handlers)) {}

ListRow& ListView::Add(std::string key, std::string text, std::size_t image,
                       std::size_t largeImage) {
    rows_.push_back(std::make_unique<ListRow>(*this, std::move(key), std::move(text), image,
                                              largeImage, columns_.size()));
    rows_.back()->position_ = rows_.size() - 1;
    Count(*rows_.back(), true);
    inOrder_ = inOrder_ && !sorted_;
    Notify(Aspect::Rows);
    return *rows_.back();
}

void ListView::Remove(ListRow& row) {
    const std::size_t position = PositionOf(row);
    if (selected_ == &row) selected_ = nullptr;
    Count(row, false);
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(position));
    for (std::size_t i = position; i < rows_.size(); ++i) rows_[i]->position_ = i;
    Notify(Aspect::Rows);
}

void ListView::Clear() {
    selected_ = nullptr;
    rows_.clear();
    counts_ = {};
    inOrder_ = true;
    Notify(Aspect::Rows);
}

ListRow& ListView::Row(std::size_t position) {
    PutInOrder();
    return *rows_.at(position);
}

std::size_t ListView::PositionOf(const ListRow& row) {
    PutInOrder();
    return row.position_;
}

void ListView::Select(ListRow* row) {
    selected_ = row;
    Notify(Aspect::Selection);
}

void ListView::Sort(std::size_t column, SortOrder order) {
    sortKey_ = column;
    order_ = order;
    sorted_ = true;
    inOrder_ = false;
    Notify(Aspect::Rows);
}

void ListView::EndSort() {
    PutInOrder();
    sortKey_ = 0;
    order_ = SortOrder::Ascending;
    sorted_ = false;
}

// Put off until somebody looks, so that filling a sorted list costs one sort and not one a row.
void ListView::PutInOrder() {
    if (inOrder_) return;
    const bool ascending = order_ == SortOrder::Ascending;
    std::stable_sort(rows_.begin(), rows_.end(), [&](const auto& left, const auto& right) {
        const int compared = CompareIgnoringCase(left->Text(sortKey_), right->Text(sortKey_));
        return ascending ? compared < 0 : compared > 0;
    });
    for (std::size_t i = 0; i < rows_.size(); ++i) rows_[i]->position_ = i;
    inOrder_ = true;
}

void ListView::SetImages(const ImageList* images) {
    images_ = images;
    Notify(Aspect::RowState);
}

void ListView::SetLargeImages(const ImageList* images) {
    largeImages_ = images;
    Notify(Aspect::RowState);
}

void ListView::SetMode(ListMode mode) {
    mode_ = mode;
    Notify(Aspect::Look);
}

void ListView::UserSelect(ListRow* row) {
    selected_ = row;
    if (row != nullptr && handlers_.itemClick) handlers_.itemClick(*row);
}

void ListView::UserCheck(ListRow& row, bool checked) {
    Count(row, false);
    row.checked_ = checked;
    Count(row, true);
    if (onChange_) onChange_();
}

void ListView::UserColumnClick(int column) {
    if (handlers_.columnClick) handlers_.columnClick(column);
}

void ListView::UserMouseUp(MouseButton button) {
    if (handlers_.mouseUp) handlers_.mouseUp(button);
}

bool ListView::Fire(std::string_view event) {
    if (event != "DblClick" || !handlers_.doubleClick) return false;
    handlers_.doubleClick();
    return true;
}

void ListView::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

void ListView::Notify(Aspect aspect) const {
    Control::Notify(aspect);
    const bool ofRows = aspect == Aspect::Rows || aspect == Aspect::RowState;
    if ((ofRows || aspect == Aspect::Visible) && onChange_) onChange_();
}

void ListView::Count(const ListRow& row, bool in) {
    const auto count = [in](std::size_t& number, bool isSo) {
        if (isSo) in ? ++number : --number;
    };
    const ItemMark mark = row.Mark();
    const bool both = mark == ItemMark::SuspiciousDisabled;
    count(counts_.rows, true);
    count(counts_.suspicious, both || mark == ItemMark::Suspicious);
    count(counts_.disabled, both || mark == ItemMark::Disabled);
    count(counts_.ticked, row.Checked());
}

}  // namespace velkarix
