#include "browser/UrlView.h"

#include <iterator>

#include "base/Text.h"
#include "shell/Report.h"

namespace velkarix {

namespace {

constexpr TextBox::Shape AddressShape{30};
constexpr TextBox::Shape PrefixShape{12};

// As the frames show them.
constexpr UrlBox SearchBoxes[] = {UrlBox::SearchURL, UrlBox::SearchPage, UrlBox::SearchBar,
                                  UrlBox::SEarchAssistant, UrlBox::CustomizeSearch};
constexpr UrlBox PrefixBoxes[] = {UrlBox::DefPrefix, UrlBox::wwwPrefix, UrlBox::HomePrefix,
                                  UrlBox::MosaicPrefix};
constexpr std::size_t PrefixesInAColumn = 2;

const UrlBoxEntry& EntryOf(UrlBox box) {
    return UrlBoxes[static_cast<std::size_t>(box)];
}

}  // namespace

UrlView::UrlView(Application& application)
    : application_(application),
      fmStartPage_("fmStartPage", "Start Page"),
      fmSearchURLs_("fmSearchURLs", "Search URLs"),
      fmURLPrefixes_("fmURLPrefixes",
                     "URL Prefixes (These words are added before the typed address)"),
      cmdApply_("cmdApply", "Apply", [this] { cmdApply_Click(); }) {
    for (const UrlBoxEntry& entry : UrlBoxes) {
        labels_.push_back(entry.labelName == nullptr
                              ? nullptr
                              : std::make_unique<Label>(entry.labelName, entry.label));
        const bool prefix = entry.button == UrlButton::DefPrefix;
        boxes_.push_back(std::make_unique<TextBox>(entry.name, entry.label,
                                                   prefix ? PrefixShape : AddressShape,
                                                   [this] { cmdApply_.SetEnabled(true); }));
    }
    for (std::size_t i = 0; i < std::size(UrlButtons); ++i) {
        buttons_.push_back(
            std::make_unique<Button>(UrlButtons[i].name, UrlButtons[i].caption,
                                     [this, i] { PutStock(static_cast<UrlButton>(i)); }));
    }
    cmdApply_.SetEnabled(false);
}

std::vector<Control*> UrlView::Controls() {
    std::vector<Control*> controls = {&fmStartPage_, &Box(UrlBox::StartPage),
                                      &StockButton(UrlButton::Blank), &fmSearchURLs_};
    for (const UrlBox box : SearchBoxes) {
        AddField(controls, box);
        controls.push_back(&StockButton(EntryOf(box).button));
    }
    controls.push_back(&fmURLPrefixes_);
    for (const UrlBox box : PrefixBoxes) AddField(controls, box);
    controls.insert(controls.end(), {&StockButton(UrlButton::DefPrefix), &cmdApply_});
    return controls;
}

void UrlView::AddField(std::vector<Control*>& controls, UrlBox box) const {
    controls.insert(controls.end(), {LabelOf(box), &Box(box)});
}

Layout UrlView::Labelled(std::span<const UrlBox> boxes, bool withButtons) const {
    Layout grid = Grid(2, {}, 1);
    for (const UrlBox box : boxes) {
        grid.children.push_back(Item(*LabelOf(box)));
        grid.children.push_back(
            withButtons ? Row({Item(Box(box), 1), Item(StockButton(EntryOf(box).button))}, 1)
                        : Item(Box(box), 1));
    }
    return grid;
}

Layout UrlView::ViewLayout() {
    const std::span<const UrlBox> prefixes(PrefixBoxes);
    return Column({Group(fmStartPage_, Row({Item(Box(UrlBox::StartPage), 1),
                                            Item(StockButton(UrlButton::Blank))})),
                   Group(fmSearchURLs_, Labelled(SearchBoxes, true)),
                   Group(fmURLPrefixes_, Row({Labelled(prefixes.first(PrefixesInAColumn), false),
                                              Labelled(prefixes.subspan(PrefixesInAColumn), false),
                                              Item(StockButton(UrlButton::DefPrefix))})),
                   Row({Space(), Item(cmdApply_)}), Space()});
}

void UrlView::LoadUrls() {
    for (std::size_t i = 0; i < std::size(UrlBoxes); ++i) {
        const RegistryPlace& place = UrlBoxes[i].place;
        boxes_[i]->SetValue(
            application_.registry.GetStringValue(place.hive, place.key, place.valueName));
    }
}

void UrlView::Enter() {
    LoadUrls();
    cmdApply_.SetEnabled(false);
}

void UrlView::PutStock(UrlButton button) {
    for (std::size_t i = 0; i < std::size(UrlBoxes); ++i) {
        if (UrlBoxes[i].button == button) boxes_[i]->SetValue(UrlBoxes[i].stock.Text());
    }
}

void UrlView::cmdApply_Click() {
    ApplyUrls();
    cmdApply_.SetEnabled(false);
}

void UrlView::ApplyUrls() {
    modRegistry& registry = application_.registry;
    for (const UrlWrite& write : UrlWrites) {
        const auto* box = std::get_if<UrlBox>(&write.data);
        const std::string text =
            box != nullptr ? Box(*box).Value() : std::get<StockAddress>(write.data).Text();
        registry.SetStringValue(write.place.hive, write.place.key, write.place.valueName, text);
    }
    // The user's own search settings would hide those of the machine.
    registry.DeleteKey(Hive::CurrentUser, urlKey::Search, true);
    registry.DeleteValue(Hive::CurrentUser, urlKey::Main, "Default_Page_URL", true);
    registry.DeleteValue(Hive::CurrentUser, urlKey::Main, "Default_Search_URL", true);
    registry.SetBinaryValue(Hive::CurrentUser, urlKey::Main, "Do404Search", {1, 0, 0, 0}, false);
}

bool UrlView::printReportURLs(const std::string& filePath) {
    // The report tells the registry and not the screen.
    LoadUrls();
    std::string text;
    for (const UrlReportLine& line : UrlReport) {
        text += line.label + Box(line.box).Value() + std::string(LineBreak);
    }
    return AppendReport(application_, filePath, text, "Error Occurred URLs printReport: ");
}

}  // namespace velkarix
