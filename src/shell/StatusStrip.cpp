#include "shell/StatusStrip.h"

#include <utility>

#include "base/Text.h"

namespace velkarix {

namespace {

// The text for as many places leaves room for any other.
constexpr std::size_t MostPlaces = 10000;

std::string UnreadText(std::size_t places) {
    return std::to_string(places) + (places == 1 ? " place" : " places") + " could not be read";
}

}  // namespace

std::string CountsText(const ListCounts& counts) {
    if (counts.rows == 0) return "No rows";
    std::string text = std::to_string(counts.rows) + (counts.rows == 1 ? " row" : " rows");
    const std::pair<std::size_t, const char*> parts[] = {{counts.suspicious, " suspicious"},
                                                         {counts.disabled, " disabled"},
                                                         {counts.ticked, " ticked"}};
    for (const auto& [number, words] : parts) {
        if (number > 0) text += ", " + std::to_string(number) + words;
    }
    return text;
}

StatusStrip::StatusStrip(Application& application, std::function<ListView*()> listOnView)
    : application_(application),
      listOnView_(std::move(listOnView)),
      picStatus_("picStatus", "Status", Panel::Look::Drawer),
      lblStatus_("lblStatus", "", Label::Look::Status),
      barProgress_("barProgress", "Progress"),
      lblUnread_("lblUnread", UnreadText(MostPlaces), [this] { lblUnread_Click(); }) {
    barProgress_.SetVisible(false);
    ShowUnread();
    application_.unread.SetOnChange([this] { ShowUnread(); });
    application_.progress.SetView(this);
}

StatusStrip::~StatusStrip() {
    application_.progress.SetView(nullptr);
    application_.unread.SetOnChange({});
}

std::vector<Control*> StatusStrip::Controls() {
    return {&picStatus_, &lblStatus_, &barProgress_, &lblUnread_};
}

Layout StatusStrip::StripLayout() {
    return Group(picStatus_,
                 Row({Item(lblStatus_, 1), Stack({Item(barProgress_), Item(lblUnread_)})}));
}

// A change of a list within some work is one of many; its end is waited for.
void StatusStrip::ShowCounts() {
    if (application_.progress.Busy()) return;
    const ListView* list = listOnView_();
    lblStatus_.SetText(list == nullptr ? "" : CountsText(list->Counts()));
}

void StatusStrip::Say(const std::string& text) {
    ShowCounts();
    if (!text.empty()) lblStatus_.SetText(text);
}

void StatusStrip::ShowProgress(const std::string& text, std::optional<double> share) {
    lblStatus_.SetText(text);
    barProgress_.SetPercent(static_cast<int>(share.value_or(0) * 100));
    ShowBar(share.has_value());
    lblStatus_.ShowNow();
    barProgress_.ShowNow();
}

void StatusStrip::EndProgress() {
    ShowBar(false);
    ShowCounts();
}

// The bar stands where the unread places are told, which are told again afterwards.
void StatusStrip::ShowBar(bool visible) {
    if (barProgress_.Visible() == visible) return;
    if (visible) lblUnread_.SetVisible(false);
    barProgress_.SetVisible(visible);
    ShowUnread();
}

void StatusStrip::ShowUnread() {
    const std::size_t places = application_.unread.Names().size();
    lblUnread_.SetVisible(places > 0 && !barProgress_.Visible());
    lblUnread_.SetText(UnreadText(places > 0 ? places : MostPlaces));
}

void StatusStrip::lblUnread_Click() {
    constexpr std::size_t Shown = 20;  // more would leave the screen
    const std::vector<std::string> names = application_.unread.Names();
    std::string text = "What is in these places could not be read, and is not shown:";
    text.append(LineBreak).append(LineBreak);
    for (std::size_t i = 0; i < names.size() && i < Shown; ++i) {
        text.append(names[i]).append(LineBreak);
    }
    if (names.size() > Shown) text += "and " + std::to_string(names.size() - Shown) + " more";
    application_.Tell(MessageIcon::Information, text);
}

}  // namespace velkarix
