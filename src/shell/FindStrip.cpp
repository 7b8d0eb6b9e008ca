#include "shell/FindStrip.h"

#include <optional>
#include <utility>

namespace velkarix {

FindStrip::FindStrip(Desktop& desktop, std::function<ListView*()> listOnView,
                     std::function<void(const std::string&)> say)
    : desktop_(desktop),
      listOnView_(std::move(listOnView)),
      say_(std::move(say)),
      picFind_("picFind", "Find", Panel::Look::Drawer),
      lblFind_("lblFind", "Find:"),
      txtFind_("txtFind", "Find", {24}),
      cmdFindNext_("cmdFindNext", "Next", [this] { Find(SearchWay::Down); }),
      cmdFindPrevious_("cmdFindPrevious", "Previous", [this] { Find(SearchWay::Up); }),
      cmdFindClose_("cmdFindClose", "Close", [this] { Close(); }) {
    picFind_.SetVisible(false);
}

std::vector<Control*> FindStrip::Controls() {
    return {&picFind_, &lblFind_, &txtFind_, &cmdFindNext_, &cmdFindPrevious_, &cmdFindClose_};
}

Layout FindStrip::StripLayout() {
    return Group(
        picFind_,
        Row({Item(lblFind_), Item(txtFind_, 1),
             UniformRow({Item(cmdFindNext_), Item(cmdFindPrevious_), Item(cmdFindClose_)})}));
}

std::vector<Accelerator> FindStrip::Keys() {
    const Handler next = [this] { Find(SearchWay::Down); };
    const Handler previous = [this] { Find(SearchWay::Up); };
    return {{{Key::F, true}, "", nullptr, [this] { Open(); }},
            {{Key::F3}, "", nullptr, next},
            {{Key::F3, false, true}, "", nullptr, previous},
            {{Key::Enter}, "", &txtFind_, next},
            {{Key::Enter, false, true}, "", &txtFind_, previous},
            {{Key::Escape}, "", &picFind_, [this] { Close(); }}};
}

void FindStrip::Open() {
    if (listOnView_() == nullptr) return say_("There is no list here to find anything in");
    picFind_.SetVisible(true);
    desktop_.Focus(txtFind_);
}

// The list first: the keyboard is to go there, and not to what follows the strip.
void FindStrip::Close() {
    if (ListView* list = listOnView_()) desktop_.Focus(*list);
    picFind_.SetVisible(false);
    say_("");
}

// The row is selected as by the user, so that the page's buttons follow it.
void FindStrip::Find(SearchWay way) {
    ListView* const list = listOnView_();
    if (txtFind_.Value().empty() || list == nullptr) return Open();
    const std::optional<FoundRow> found = FindRowHolding(*list, txtFind_.Value(), way);
    if (!found) return say_("\"" + txtFind_.Value() + "\" was not found");
    ListRow& row = list->Row(found->position);
    list->Select(&row);
    list->UserSelect(&row);
    const bool down = way == SearchWay::Down;
    say_(!found->aroundTheEnd ? ""
         : down               ? "Went on at the beginning of the list"
                              : "Went on at the end of the list");
}

}  // namespace velkarix
