// Looks at a form's layout without a screen: what stands where, and what no form may do.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/ListView.h"
#include "forms/TabStrip.h"

namespace velkarix {

// Sizes near those of a real font: eight pixels a character.
class PlainMetrics : public LayoutMetrics {
  public:
    Size PreferredSize(Control& control) override {
        if (auto* box = dynamic_cast<TextBox*>(&control)) {
            return {box->BoxShape().widthInCharacters * 8, box->BoxShape().lines * 20};
        }
        if (dynamic_cast<ListView*>(&control) != nullptr) return {300, 100};
        const auto* label = dynamic_cast<Label*>(&control);
        if (label != nullptr && label->LabelLook() == Label::Look::Paragraph) {
            constexpr int InALine = 60;
            const int lines = (static_cast<int>(label->Text().size()) + InALine - 1) / InALine;
            return {InALine * 8, lines * 20};
        }
        return {static_cast<int>(control.Text().size()) * 8, 20};
    }
    Insets GroupInsets(Control&) override { return {8, 20, 8, 8}; }
    int Gap() override { return 6; }
};

inline bool IsInside(const Rect& inner, const Rect& outer) {
    return inner.x >= outer.x && inner.y >= outer.y &&
           inner.x + inner.width <= outer.x + outer.width &&
           inner.y + inner.height <= outer.y + outer.height;
}

inline bool Overlap(const Rect& a, const Rect& b) {
    return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height &&
           b.y < a.y + a.height;
}

inline bool IsGroup(const Control* control) {
    return dynamic_cast<const Frame*>(control) != nullptr ||
           dynamic_cast<const Panel*>(control) != nullptr ||
           dynamic_cast<const TabStrip*>(control) != nullptr;
}

// Whether the user reaches it by Tab or, inside a group of options, by the arrow keys.
inline bool TakesFocus(const Control& control) {
    return dynamic_cast<const Label*>(&control) == nullptr &&
           dynamic_cast<const PictureBox*>(&control) == nullptr &&
           dynamic_cast<const PageHost*>(&control) == nullptr &&
           dynamic_cast<const Frame*>(&control) == nullptr &&
           dynamic_cast<const Panel*>(&control) == nullptr;
}

// The names of the controls that take the focus, in the order in which the layout is read: rows
// from left to right, columns and groups from top to bottom.
inline void AddReadingOrder(const Layout& layout, std::vector<std::string>& names) {
    const Control* control = layout.control;
    if (control != nullptr && TakesFocus(*control)) names.push_back(control->Name());
    for (const Layout& child : layout.children) AddReadingOrder(child, names);
}

// The names of the same controls in tab order.
inline std::vector<std::string> TabOrder(const Form& form) {
    std::vector<std::string> names;
    for (const Control* control : form.Controls()) {
        if (TakesFocus(*control)) names.push_back(control->Name());
    }
    return names;
}

// Where the shown controls stand, other than those that others stand in.
inline std::vector<Placement> ShownPlacements(Form& form, const Rect& area) {
    PlainMetrics metrics;
    std::vector<Placement> placements = Arrange(form.FormLayout(), area, metrics);
    std::erase_if(placements, [](const Placement& each) {
        return IsGroup(each.control) || !each.control->Shown();
    });
    return placements;
}

inline void ExpectNoOverlap(Form& form) {
    const std::vector<Placement> placements = ShownPlacements(form, {0, 0, 800, 600});
    for (std::size_t i = 0; i < placements.size(); ++i) {
        for (std::size_t j = i + 1; j < placements.size(); ++j) {
            EXPECT_FALSE(Overlap(placements[i].area, placements[j].area))
                << placements[i].control->Name() << " " << placements[j].control->Name();
        }
    }
}

// The smallest form that holds everything shows each of its controls.
inline void ExpectInside(Form& form) {
    PlainMetrics metrics;
    const Size least = MinimumSize(form.FormLayout(), metrics);
    const Rect all{0, 0, least.width, least.height};
    for (const Placement& each : Arrange(form.FormLayout(), all, metrics)) {
        EXPECT_TRUE(IsInside(each.area, all)) << each.control->Name();
    }
}

}  // namespace velkarix
