#include "forms/win32/FormArrangement.h"

#include <algorithm>
#include <climits>

#include "forms/Controls.h"
#include "forms/win32/AreaWindows.h"

namespace velkarix {

namespace {

const Panel* PanelOf(const Control* control, Panel::Look look) {
    const auto* panel = dynamic_cast<const Panel*>(control);
    return panel != nullptr && panel->PanelLook() == look ? panel : nullptr;
}

// A strip under the banner joins it: the gap of the layout would cut the drawing in two.
void JoinStripsToBanner(std::vector<Placement>& placements, int gap) {
    int bannerEnd = -1;
    for (Placement& placement : placements) {
        Rect& area = placement.area;
        if (PanelOf(placement.control, Panel::Look::Banner) != nullptr) {
            bannerEnd = area.y + area.height;
        } else if (PanelOf(placement.control, Panel::Look::Strip) != nullptr &&
                   area.y == bannerEnd + gap) {
            area.y -= gap;
            area.height += gap;
        }
    }
}

void MarkGrounds(const Layout& layout, Shade ground, std::map<const Control*, Shade>& grounds) {
    if (layout.control != nullptr) grounds[layout.control] = ground;
    if (const auto* panel = dynamic_cast<const Panel*>(layout.control)) {
        ground = PanelWindow::ShadeOf(panel->PanelLook());
    }
    for (const Layout& child : layout.children) MarkGrounds(child, ground, grounds);
}

// Asks once for each control: a layout wants to know its sizes at each of its levels, and to
// measure a text is slow.
class RememberedMetrics : public LayoutMetrics {
  public:
    explicit RememberedMetrics(Metrics& metrics, int widestTextBox = INT_MAX)
        : metrics_(metrics), widestTextBox_(widestTextBox) {}
    Size PreferredSize(Control& control) override {
        const auto [place, isNew] = sizes_.try_emplace(&control);
        Size& size = place->second;
        if (!isNew) return size;
        size = metrics_.PreferredSize(control);
        const bool isTextBox = dynamic_cast<const TextBox*>(&control) != nullptr;
        if (isTextBox) size.width = std::min(size.width, widestTextBox_);
        return size;
    }
    Insets GroupInsets(Control& group) override {
        const auto [place, isNew] = insets_.try_emplace(&group);
        if (isNew) place->second = metrics_.GroupInsets(group);
        return place->second;
    }
    int Gap() override { return metrics_.Gap(); }

  private:
    Metrics& metrics_;
    int widestTextBox_;
    std::map<const Control*, Size> sizes_;
    std::map<const Control*, Insets> insets_;
};

// What scrolls its own text is of use in less room than it would like to have.
constexpr int UsableTextBox = 120;

}  // namespace

Size LeastInside(const Form& form, Metrics& metrics) {
    RememberedMetrics least(metrics, metrics.InLetters(UsableTextBox));
    const Size layout = MinimumSize(OnView(form.FormLayout()), least);
    const Insets margins = metrics.FormMargins(form.Kind());
    return {layout.width + margins.left + margins.right,
            layout.height + margins.top + margins.bottom};
}

std::vector<Placement> ArrangeForm(const Form& form, const Rect& inside, Metrics& metrics) {
    const Insets margins = metrics.FormMargins(form.Kind());
    const Rect area{inside.x + margins.left, inside.y + margins.top,
                    inside.width - margins.left - margins.right,
                    inside.height - margins.top - margins.bottom};
    RememberedMetrics remembered(metrics);
    std::vector<Placement> placements = Arrange(form.FormLayout(), area, remembered);
    JoinStripsToBanner(placements, metrics.Gap());
    return placements;
}

std::map<const Control*, Shade> GroundsOf(const Layout& layout) {
    std::map<const Control*, Shade> grounds;
    MarkGrounds(layout, Shade::Face, grounds);
    return grounds;
}

}  // namespace velkarix
