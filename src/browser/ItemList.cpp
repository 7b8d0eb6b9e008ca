#include "browser/ItemList.h"

#include "base/Text.h"
#include "shell/FilePaths.h"
#include "shell/ListServices.h"

namespace velkarix {

namespace {

bool StartsWithBrace(const std::string& name) {
    return !name.empty() && name.front() == '{';
}

}  // namespace

ItemList::ItemList(Application& application, Form& page, const ItemListShape& shape)
    : application_(application),
      shape_(shape),
      list_(shape.name, shape.spokenName, {shape.captions.begin(), shape.captions.end()},
            {[this](ListRow& row) { ItemClick(row); },
             [this](int column) { SortByColumn(list_, column - 1); }, [this] { DoubleClick(); },
             [this](MouseButton button) { MouseUp(button); }}),
      page_(page) {
    for (const ItemButton& each : shape.buttons) {
        buttons_.push_back(std::make_unique<Button>(
            each.name, each.caption, [this, command = each.command] { (this->*command)(); }));
    }
}

std::vector<Control*> ItemList::Controls() {
    std::vector<Control*> controls = {&list_};
    for (const auto& button : buttons_) controls.push_back(button.get());
    return controls;
}

Layout ItemList::ViewLayout() {
    constexpr int ButtonColumns = 4;
    Layout buttons = Grid(ButtonColumns, {});
    for (const auto& button : buttons_) buttons.children.push_back(Item(*button));
    return Column({Item(list_, 1), Row({std::move(buttons), Space()})});
}

std::vector<Accelerator> ItemList::Keys() const {
    struct CommandKey {
        KeyStroke stroke;
        void (ItemList::*command)();
        const Control* within;
    };
    const CommandKey table[] = {{{Key::F5}, &ItemList::Load, nullptr},
                                {{Key::P, true}, &ItemList::MakeReport, nullptr},
                                {{Key::Delete}, &ItemList::DeleteSelected, &list_}};
    std::vector<Accelerator> keys;
    for (const CommandKey& each : table) {
        for (const ItemButton& button : shape_.buttons) {
            if (button.command != each.command) continue;
            keys.push_back({each.stroke, button.name + std::string("_Click"), each.within});
        }
    }
    return keys;
}

// ---- The rows

void ItemList::Load() {
    const Progress::Work work(application_.progress, list_.Text());
    ClearRows(list_, images_, shape_.pictures);
    list_.EndSort();
    const std::span<const ItemPlace> places = shape_.places.places;
    for (const ItemPlace& place : places) Scan(place, true);
    for (std::size_t i = 0; i < places.size(); ++i) {
        Scan(places[shape_.places.heldInReverse ? places.size() - 1 - i : i], false);
    }
    AutoSizeColumns(list_);
}

void ItemList::Scan(const ItemPlace& place, bool enabled) {
    const std::string holder = HoldingKey(application_, place, enabled);
    const std::vector<std::string> names = NamesIn(place, holder);
    Progress::Work work(application_.progress, list_.Text(), names.size());
    for (const std::string& name : names) {
        work.Step(name);
        AddRow(place, holder, name, enabled);
    }
}

// Beside the items that are values the browser keeps other things, which don't bear the name of a
// class.
std::vector<std::string> ItemList::NamesIn(const ItemPlace& place, const std::string& holder) {
    std::vector<std::string> names;
    if (shape_.places.kind == ItemKind::Key) {
        application_.registry.EnumSubKeys(place.hive, holder, names);
        // A name that begins with a NUL, as only other ways into the registry can make, shows
        // nothing.
        std::erase_if(names, [](const std::string& name) { return TrimAtNull(name).empty(); });
        return names;
    }
    for (const RegValueEntry& value : application_.registry.EnumValues(place.hive, holder)) {
        if (StartsWithBrace(value.name)) names.push_back(value.name);
    }
    return names;
}

ListRow& ItemList::AddItemRow(const ItemPlace& place, const std::string& name, std::size_t image,
                              bool enabled) {
    ListRow& row = list_.Add(name, name, image);
    row.SetText(shape_.columns.enabled, EnabledText(enabled));
    if (shape_.columns.scope != NoColumn) row.SetText(shape_.columns.scope, place.scope);
    return row;
}

BrowserItem ItemList::ItemOf(const ListRow& row) const {
    const std::size_t scope = shape_.columns.scope;
    return {&PlaceOfScope(shape_.places, scope == NoColumn ? "" : row.Text(scope)), row.Key(),
            row.Text(shape_.columns.enabled) == EnabledText(true)};
}

std::string ItemList::PathOf(const ListRow& row) const {
    const auto [folder, file] = std::pair(shape_.columns.folder, shape_.columns.file);
    return (folder == NoColumn ? "" : row.Text(folder)) + (file == NoColumn ? "" : row.Text(file));
}

bool ItemList::FileExists(const ListRow& row) {
    return PathExists(application_.machine.files, PathOf(row));
}

}  // namespace velkarix
