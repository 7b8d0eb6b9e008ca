#include "forms/win32/FormArrangement.h"

#include <algorithm>

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

// What scrolls its own text is of use in less room than it would like to have.
class LeastMetrics : public LayoutMetrics {
  public:
    explicit LeastMetrics(Metrics& metrics) : metrics_(metrics) {}
    Size PreferredSize(Control& control) override {
        Size size = metrics_.PreferredSize(control);
        if (dynamic_cast<const TextBox*>(&control) != nullptr) {
            size.width = std::min(size.width, metrics_.InLetters(UsableTextBox));
        }
        return size;
    }
    Insets GroupInsets(Control& group) override { return metrics_.GroupInsets(group); }
    int Gap() override { return metrics_.Gap(); }

  private:
    static constexpr int UsableTextBox = 120;
    Metrics& metrics_;
};

}  // namespace

Size LeastInside(const Form& form, Metrics& metrics) {
    LeastMetrics least(metrics);
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
    std::vector<Placement> placements = Arrange(form.FormLayout(), area, metrics);
    JoinStripsToBanner(placements, metrics.Gap());
    return placements;
}

std::map<const Control*, Shade> GroundsOf(const Layout& layout) {
    std::map<const Control*, Shade> grounds;
    MarkGrounds(layout, Shade::Face, grounds);
    return grounds;
}

}  // namespace velkarix
