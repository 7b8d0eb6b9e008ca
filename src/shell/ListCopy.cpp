#include "shell/ListCopy.h"

#include <cstddef>

#include "base/Text.h"

namespace velkarix {

namespace {

void AddColumn(std::string& line, std::size_t column, const std::string& text) {
    if (column > 0) line += '\t';
    for (const char c : text) line += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
}

}  // namespace

std::string RowAsText(const ListView& list, const ListRow& row) {
    std::string line;
    for (std::size_t i = 0; i < list.Columns().size(); ++i) AddColumn(line, i, row.Text(i));
    return line;
}

std::string ListAsText(ListView& list) {
    std::string text;
    for (std::size_t i = 0; i < list.Columns().size(); ++i) AddColumn(text, i, list.Columns()[i]);
    text += LineBreak;
    for (std::size_t i = 0; i < list.RowCount(); ++i) {
        text.append(RowAsText(list, list.Row(i))).append(LineBreak);
    }
    return text;
}

}  // namespace velkarix
