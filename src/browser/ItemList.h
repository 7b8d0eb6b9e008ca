// A list of the browser page: items that lie in the registry, each in its live place or in the
// holding area. What all such lists do is here, told once; what differs is an ItemListShape, and
// how a row is made of an item.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "browser/BrowserView.h"
#include "browser/ItemPlaces.h"
#include "forms/Controls.h"
#include "forms/ListView.h"
#include "shell/FileRows.h"
#include "shell/Report.h"

namespace velkarix {

class ItemList;

inline constexpr std::size_t NoColumn = static_cast<std::size_t>(-1);

// Which column shows what; NoColumn where a list doesn't show it.
struct ItemColumns {
    std::size_t enabled;
    std::size_t scope = NoColumn;
    std::size_t clsid = 0;
    std::size_t description = NoColumn;
    std::size_t file = NoColumn;    // the file's name
    std::size_t folder = NoColumn;  // with its last backslash; the whole path without a file column
    FileColumns facts = {};
};

struct ItemButton {
    const char* name;
    const char* caption;
    void (ItemList::*command)();
};

struct ItemReport {
    ReportCommand command;
    std::span<const ReportLine> lines;
    // The columns that name the file of the version block; NoColumn: there is no block.
    std::size_t folder = NoColumn;
    std::size_t file = NoColumn;
    const char* failure;
};

struct ItemListShape {
    const char* name;        // of the list control
    const char* spokenName;  // for screen readers
    std::span<const char* const> captions;
    ItemColumns columns;
    const ItemPlaces& places;
    std::span<const char* const> pictures = {};  // that the rows begin with, by their stock names
    std::span<const ItemButton> buttons;         // row after row, four in a row
    const char* refreshButton;
    const char* folderButton = nullptr;  // works while the file of the row exists
    const char* menu;
    const char* openEntry = nullptr;  // of the menu; works while the file of the row exists
    bool searchesTheWeb = false;      // on a double click
    ItemReport report;
};

class ItemList : public BrowserView {
  public:
    // Builds the list anew from the registry, live items first. Marks, selection and sort are
    // those of a new list.
    void Load();
    // Appends the list in its shown order. False, after a message, when that fails.
    bool PrintList(const std::string& filePath);

    // The commands of the view's buttons and of its menu. The first two work on the ticked rows
    // that are in the other state, the next three on the selected row.
    void DisableChecked() { MoveChecked(true); }
    void EnableChecked() { MoveChecked(false); }
    void DeleteSelected();
    void ViewInformation();
    void OpenFolder();
    void MakeReport();
    void CheckAll() { CheckRows(true); }
    void UncheckAll() { CheckRows(false); }

    // The handler, by its name, that builds the list anew on whichever page is loaded.
    std::string RefreshHandler() const { return shape_.refreshButton + std::string("_Click"); }

    // The keys of the commands that all such lists have.
    std::vector<Accelerator> Keys() const;

    ListView& List() { return list_; }
    std::vector<Control*> Controls() override;
    Layout ViewLayout() override;

  protected:
    ItemList(Application& application, Form& page, const ItemListShape& shape);

    // Adds the row of the item `name` below the key `holder`, or none.
    virtual void AddRow(const ItemPlace& place, const std::string& holder, const std::string& name,
                        bool enabled) = 0;

    // A new row with what all lists show of an item.
    ListRow& AddItemRow(const ItemPlace& place, const std::string& name, std::size_t image,
                        bool enabled);

    Application& application_;
    const ItemListShape& shape_;
    ListView list_;
    ImageList images_;

  private:
    void Scan(const ItemPlace& place, bool enabled);
    std::vector<std::string> NamesIn(const ItemPlace& place, const std::string& holder);
    void MoveChecked(bool enabled);
    void CheckRows(bool checked);
    BrowserItem ItemOf(const ListRow& row) const;
    // The path of the row's file; empty where the list has no such column.
    std::string PathOf(const ListRow& row) const;
    bool FileExists(const ListRow& row);
    void ItemClick(const ListRow& row);
    void DoubleClick();
    void MouseUp(MouseButton button);

    Form& page_;
    std::vector<std::unique_ptr<Button>> buttons_;
};

}  // namespace velkarix
