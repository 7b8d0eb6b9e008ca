// What the main window does with the list on view, whichever page it is of.
#include "shell/ListCopy.h"
#include "shell/frmMain.h"

namespace velkarix {

// Each list of the page on view tells `onChange` what becomes of it.
void frmMain::FollowLists(const Handler& onChange) {
    const Form* page = application_.forms.Loaded(activePage_);
    if (page == nullptr) return;
    for (Control* control : page->Controls()) {
        if (auto* list = dynamic_cast<ListView*>(control)) list->SetOnChange(onChange);
    }
}

ListView* frmMain::ListOnView() const {
    const Form* page = application_.forms.Loaded(activePage_);
    if (page == nullptr) return nullptr;
    for (Control* control : page->Controls()) {
        auto* list = dynamic_cast<ListView*>(control);
        if (list != nullptr && list->Shown()) return list;
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
