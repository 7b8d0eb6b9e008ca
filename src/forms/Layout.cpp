#include "forms/Layout.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

namespace velkarix {

namespace {

Layout Box(Layout::Kind kind, std::initializer_list<Layout> children, int stretch, bool uniform) {
    Layout layout;
    layout.kind = kind;
    layout.children = children;
    layout.stretch = stretch;
    layout.uniform = uniform;
    return layout;
}

// Rows and columns are one thing, seen along their direction and across it.
int Along(const Size& size, bool row) {
    return row ? size.width : size.height;
}
int Across(const Size& size, bool row) {
    return row ? size.height : size.width;
}
Size FromAlong(int along, int across, bool row) {
    return row ? Size{along, across} : Size{across, along};
}

int GapsBetween(std::size_t count, LayoutMetrics& metrics) {
    return count == 0 ? 0 : static_cast<int>(count - 1) * metrics.Gap();
}

bool TakesRoom(const Layout& layout) {
    return layout.control == nullptr || layout.control->TakesRoom();
}

std::vector<Size> SizesOf(const std::vector<Layout>& children, LayoutMetrics& metrics) {
    std::vector<Size> sizes;
    sizes.reserve(children.size());
    for (const Layout& child : children) sizes.push_back(MinimumSize(child, metrics));
    return sizes;
}

// The gaps between a row's or column's children.
int GapsIn(const Layout& layout, LayoutMetrics& metrics) {
    const auto count = std::count_if(layout.children.begin(), layout.children.end(), TakesRoom);
    return GapsBetween(static_cast<std::size_t>(count), metrics);
}

// The least lengths of a row's or column's children along its direction.
std::vector<int> LengthsAlong(const Layout& layout, const std::vector<Size>& sizes, bool row) {
    std::vector<int> lengths;
    lengths.reserve(sizes.size());
    for (const Size& size : sizes) lengths.push_back(Along(size, row));
    if (layout.uniform && !lengths.empty()) {
        lengths.assign(lengths.size(), *std::max_element(lengths.begin(), lengths.end()));
    }
    return lengths;
}

int SumOf(const std::vector<int>& numbers) {
    return std::accumulate(numbers.begin(), numbers.end(), 0);
}

// Takes room from each length in proportion to its weight, which isn't more than the length. Gives
// what couldn't be taken.
int TakeFrom(std::vector<int>& lengths, const std::vector<int>& weights, int missing) {
    int total = SumOf(weights);
    int left = std::min(missing, total);
    missing -= left;
    for (std::size_t i = 0; i < lengths.size() && total > 0; ++i) {
        const int part = weights[i] * left / total;
        lengths[i] -= part;
        left -= part;
        total -= weights[i];
    }
    return missing;
}

// Takes missing room from those that stretch, as a list or a text box is of use in any size; and
// from all where that isn't enough, so that nothing is out of reach.
void Shrink(std::vector<int>& lengths, const std::vector<int>& shares, int missing) {
    std::vector<int> stretching = lengths;
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        if (shares[i] == 0) stretching[i] = 0;
    }
    missing = TakeFrom(lengths, stretching, missing);
    TakeFrom(lengths, std::vector<int>(lengths), missing);
}

// Gives spare room to those that stretch, by their shares; the last of them takes the rest.
void Spread(std::vector<int>& lengths, const std::vector<int>& shares, int spare) {
    const int total = SumOf(shares);
    if (total == 0) return;
    int left = spare;
    std::size_t last = 0;
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        const int part = spare * shares[i] / total;
        lengths[i] += part;
        left -= part;
        if (shares[i] > 0) last = i;
    }
    lengths[last] += left;
}

struct GridLines {
    std::vector<int> columnWidths;
    std::vector<int> columnShares;  // the largest of the column's children
    std::vector<int> rowHeights;
};

GridLines MeasureGrid(const Layout& layout, LayoutMetrics& metrics) {
    const auto columns = static_cast<std::size_t>(layout.gridColumns);
    GridLines lines;
    lines.columnWidths.assign(columns, 0);
    lines.columnShares.assign(columns, 0);
    lines.rowHeights.assign((layout.children.size() + columns - 1) / columns, 0);
    for (std::size_t i = 0; i < layout.children.size(); ++i) {
        const Size size = MinimumSize(layout.children[i], metrics);
        int& width = lines.columnWidths[i % columns];
        int& share = lines.columnShares[i % columns];
        int& height = lines.rowHeights[i / columns];
        width = std::max(width, size.width);
        share = std::max(share, layout.children[i].stretch);
        height = std::max(height, size.height);
    }
    return lines;
}

int Total(const std::vector<int>& lengths, LayoutMetrics& metrics) {
    return SumOf(lengths) + GapsBetween(lengths.size(), metrics);
}

// An item that doesn't stretch stands in the middle of a place that is too high for it.
Rect Centred(const Rect& area, const Layout& item, LayoutMetrics& metrics) {
    const Size size = metrics.PreferredSize(*item.control);
    if (item.stretch > 0 || size.height >= area.height) return area;
    return {area.x, area.y + (area.height - size.height) / 2, area.width, size.height};
}

void Place(const Layout& layout, const Rect& area, LayoutMetrics& metrics,
           std::vector<Placement>& placements);

void PlaceBox(const Layout& layout, const Rect& area, LayoutMetrics& metrics,
              std::vector<Placement>& placements) {
    const bool row = layout.kind == Layout::Kind::Row;
    std::vector<int> lengths = LengthsAlong(layout, SizesOf(layout.children, metrics), row);
    std::vector<int> shares;
    for (const Layout& child : layout.children) shares.push_back(child.stretch);
    const int spare = (row ? area.width : area.height) - SumOf(lengths) - GapsIn(layout, metrics);
    if (spare < 0) {
        Shrink(lengths, shares, -spare);
    } else {
        Spread(lengths, shares, spare);
    }
    int position = row ? area.x : area.y;
    for (std::size_t i = 0; i < layout.children.size(); ++i) {
        const Rect place = row ? Rect{position, area.y, lengths[i], area.height}
                               : Rect{area.x, position, area.width, lengths[i]};
        Place(layout.children[i], place, metrics, placements);
        position += lengths[i];
        if (TakesRoom(layout.children[i])) position += metrics.Gap();
    }
}

void PlaceGrid(const Layout& layout, const Rect& area, LayoutMetrics& metrics,
               std::vector<Placement>& placements) {
    GridLines lines = MeasureGrid(layout, metrics);
    const int spare = area.width - Total(lines.columnWidths, metrics);
    if (spare < 0) {
        Shrink(lines.columnWidths, lines.columnShares, -spare);
    } else {
        lines.columnWidths.back() += spare;
    }
    const auto columns = lines.columnWidths.size();
    int x = area.x;
    int y = area.y;
    for (std::size_t i = 0; i < layout.children.size(); ++i) {
        const Rect place{x, y, lines.columnWidths[i % columns], lines.rowHeights[i / columns]};
        Place(layout.children[i], place, metrics, placements);
        x += place.width + metrics.Gap();
        if (i % columns != columns - 1) continue;
        x = area.x;
        y += place.height + metrics.Gap();
    }
}

void PlaceGroup(const Layout& layout, const Rect& area, LayoutMetrics& metrics,
                std::vector<Placement>& placements) {
    placements.push_back({layout.control, area});
    const Insets insets = metrics.GroupInsets(*layout.control);
    const Rect inside{area.x + insets.left, area.y + insets.top,
                      std::max(0, area.width - insets.left - insets.right),
                      std::max(0, area.height - insets.top - insets.bottom)};
    Place(layout.children.front(), inside, metrics, placements);
}

void Place(const Layout& layout, const Rect& area, LayoutMetrics& metrics,
           std::vector<Placement>& placements) {
    switch (layout.kind) {
        case Layout::Kind::Space:
            return;
        case Layout::Kind::Item:
            placements.push_back({layout.control, Centred(area, layout, metrics)});
            return;
        case Layout::Kind::Row:
        case Layout::Kind::Column:
            PlaceBox(layout, area, metrics, placements);
            return;
        case Layout::Kind::Grid:
            PlaceGrid(layout, area, metrics, placements);
            return;
        case Layout::Kind::Group:
            PlaceGroup(layout, area, metrics, placements);
            return;
        case Layout::Kind::Stack:
            for (const Layout& child : layout.children) Place(child, area, metrics, placements);
            return;
    }
}

Size MinimumBox(const Layout& layout, LayoutMetrics& metrics) {
    const bool row = layout.kind == Layout::Kind::Row;
    const std::vector<Size> sizes = SizesOf(layout.children, metrics);
    int across = 0;
    for (const Size& size : sizes) across = std::max(across, Across(size, row));
    return FromAlong(SumOf(LengthsAlong(layout, sizes, row)) + GapsIn(layout, metrics), across,
                     row);
}

}  // namespace

Layout Item(Control& control, int stretch) {
    Layout layout;
    layout.kind = Layout::Kind::Item;
    layout.control = &control;
    layout.stretch = stretch;
    return layout;
}

Layout Space(int stretch) {
    Layout layout;
    layout.stretch = stretch;
    return layout;
}

Layout Row(std::initializer_list<Layout> children, int stretch) {
    return Box(Layout::Kind::Row, children, stretch, false);
}

Layout Column(std::initializer_list<Layout> children, int stretch) {
    return Box(Layout::Kind::Column, children, stretch, false);
}

Layout UniformRow(std::initializer_list<Layout> children, int stretch) {
    return Box(Layout::Kind::Row, children, stretch, true);
}

Layout UniformColumn(std::initializer_list<Layout> children, int stretch) {
    return Box(Layout::Kind::Column, children, stretch, true);
}

Layout Grid(int columns, std::initializer_list<Layout> children, int stretch) {
    Layout layout = Box(Layout::Kind::Grid, children, stretch, false);
    layout.gridColumns = columns;
    return layout;
}

Layout Group(Control& around, Layout child, int stretch) {
    Layout layout;
    layout.kind = Layout::Kind::Group;
    layout.control = &around;
    layout.children.push_back(std::move(child));
    layout.stretch = stretch;
    return layout;
}

Layout Stack(std::vector<Layout> children, int stretch) {
    Layout layout;
    layout.kind = Layout::Kind::Stack;
    layout.children = std::move(children);
    layout.stretch = stretch;
    return layout;
}

Layout OnView(const Layout& layout) {
    Layout seen = layout;
    if (layout.kind == Layout::Kind::Stack) {
        std::erase_if(seen.children, [](const Layout& child) {
            return child.control != nullptr && !child.control->Shown();
        });
    }
    for (Layout& child : seen.children) child = OnView(child);
    return seen;
}

Size MinimumSize(const Layout& layout, LayoutMetrics& metrics) {
    if (!TakesRoom(layout)) return {};
    switch (layout.kind) {
        case Layout::Kind::Space:
            return {};
        case Layout::Kind::Item:
            return metrics.PreferredSize(*layout.control);
        case Layout::Kind::Row:
        case Layout::Kind::Column:
            return MinimumBox(layout, metrics);
        case Layout::Kind::Grid: {
            const GridLines lines = MeasureGrid(layout, metrics);
            return {Total(lines.columnWidths, metrics), Total(lines.rowHeights, metrics)};
        }
        case Layout::Kind::Group: {
            const Insets insets = metrics.GroupInsets(*layout.control);
            const Size inside = MinimumSize(layout.children.front(), metrics);
            const Size own = metrics.PreferredSize(*layout.control);
            return {std::max(own.width, inside.width + insets.left + insets.right),
                    std::max(own.height, inside.height + insets.top + insets.bottom)};
        }
        case Layout::Kind::Stack: {
            Size largest;
            for (const Size& size : SizesOf(layout.children, metrics)) {
                largest.width = std::max(largest.width, size.width);
                largest.height = std::max(largest.height, size.height);
            }
            return largest;
        }
    }
    return {};
}

std::vector<Placement> Arrange(const Layout& layout, const Rect& area, LayoutMetrics& metrics) {
    std::vector<Placement> placements;
    Place(layout, area, metrics, placements);
    return placements;
}

}  // namespace velkarix
