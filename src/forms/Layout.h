// Where the controls of a form stand: rows, columns, grids, groups and stacks with stretch, no
// pixels.
// The sizes come from whoever shows the form, who alone knows fonts and the machine's DPI.
#pragma once

#include <initializer_list>
#include <vector>

#include "forms/Control.h"

namespace velkarix {

struct Size {
    int width = 0;
    int height = 0;
    friend bool operator==(const Size&, const Size&) = default;
};

struct Rect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    friend bool operator==(const Rect&, const Rect&) = default;
};

// One node of a layout. Stretch is the share of spare room along the parent's direction.
struct Layout {
    enum class Kind { Item, Space, Row, Column, Grid, Group, Stack };

    Kind kind = Kind::Space;
    Control* control = nullptr;  // Item: the control; Group: the frame or panel around the child
    std::vector<Layout> children;
    int stretch = 0;
    int gridColumns = 0;   // Grid: children fill row after row; the last column takes spare room
    bool uniform = false;  // Row and Column: all children as large as the largest, in its direction
};

Layout Item(Control& control, int stretch = 0);
Layout Space(int stretch = 1);
Layout Row(std::initializer_list<Layout> children, int stretch = 0);
Layout Column(std::initializer_list<Layout> children, int stretch = 0);
Layout UniformRow(std::initializer_list<Layout> children, int stretch = 0);
Layout UniformColumn(std::initializer_list<Layout> children, int stretch = 0);
Layout Grid(int columns, std::initializer_list<Layout> children, int stretch = 0);
Layout Group(Control& around, Layout child, int stretch = 0);
// All children in one place, of which one at a time is visible.
Layout Stack(std::vector<Layout> children, int stretch = 0);

struct Insets {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

// What the layout needs to know of the place where it is shown, in its pixels.
class LayoutMetrics {
  public:
    virtual ~LayoutMetrics() = default;
    // The least size at which the control shows all of itself; of a group, without what stands in
    // it.
    virtual Size PreferredSize(Control& control) = 0;
    // Room that a frame or panel keeps around its child.
    virtual Insets GroupInsets(Control& group) = 0;
    // Between two neighbours.
    virtual int Gap() = 0;
};

struct Placement {
    Control* control = nullptr;
    Rect area;
};

// The layout without what the stacks in it don't show now.
Layout OnView(const Layout& layout);
// The least size that holds everything.
Size MinimumSize(const Layout& layout, LayoutMetrics& metrics);
// Places all controls inside `area`, groups before what stands in them. Room that is missing to the
// minimum is taken from what stretches, then from all. Invisible controls keep their place, but for
// groups that take no room then, which have a place of no size along their row or column.
std::vector<Placement> Arrange(const Layout& layout, const Rect& area, LayoutMetrics& metrics);

}  // namespace velkarix
