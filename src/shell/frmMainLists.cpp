// What the main window does with the list on view, whichever page it is of.
#include "shell/ListCopy.h"
#include "shell/frmMain.h"

namespace velkarix {

std::vector<ListView*> frmMain::ListsOfPage() const {
    const Form* page = application_.forms.Loaded(activePage_);
    std::vector<ListView*> lists;
    if (page == nullptr) return lists;
    for (Control* control : page->Controls()) {
        if (auto* list = dynamic_cast<ListView*>(control)) lists.push_back(list);
    }
    return lists;
}

// Each list of the page on view tells `onChange` what becomes of it.
void frmMain::FollowLists(const Handler& onChange) {
    for (ListView* list : ListsOfPage()) list->SetOnChange(onChange);
}

ListView* frmMain::ListOnView() const {
    for (ListView* list : ListsOfPage()) {
        if (list->Shown()) return list;
    }
    return nullptr;
}

void frmMain::CopyRow() {
    ListView* list = ListOnView();
    const ListRow* row = list == nullptr ? nullptr : list->SelectedRow();
    if (row != nullptr) Copy(RowAsText(*list, *row), "The row was copied");
}

void frmMain::CopyList() {
    ListView* list = ListOnView();
    if (list != nullptr && list->RowCount() > 0) Copy(ListAsText(*list), "All rows were copied");
}

void frmMain::Copy(const std::string& text, const char* done) {
    if (application_.desktop.SetClipboardText(text)) return status_.Say(done);
    application_.Tell(MessageIcon::Information,
                      "Nothing was copied. Another program may be using the clipboard; please try "
                      "again.");
}

}  // namespace velkarix
