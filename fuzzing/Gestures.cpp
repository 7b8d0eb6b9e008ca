#include "fuzzing/Gestures.h"

#include "tests/machine/ControlGestures.h"

namespace velkarix {

void MakeGesture(FuzzInput& input, Form& form) {
    Control& control = *form.Controls()[input.Byte() % form.Controls().size()];
    std::vector<ControlGesture> gestures =
        GesturesOf(control, [&input](const std::string&) { return input.Text(); });
    // Before all others, since most commands work on ticked rows.
    if (auto* const list = dynamic_cast<ListView*>(&control)) {
        const auto tickAll = [list](Control&) {
            TickAllRows(*list);
            return true;
        };
        gestures.insert(gestures.begin(), {"TickAll", {tickAll}});
    }
    if (gestures.empty()) return;
    const auto& ways = gestures[input.Below(gestures.size())].ways;
    const std::size_t way = input.Byte();
    if (control.Enabled() && !ways.empty()) ways[way % ways.size()](control);
}

}  // namespace velkarix
