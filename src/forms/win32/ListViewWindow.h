// A list as the native one, in lines or as icons. The native list has no rows of its own: it asks
// the model for what it shows, so the number of rows costs nothing.
#pragma once

#include "forms/ListView.h"
#include "forms/win32/ControlWindow.h"
#include "forms/win32/ListImages.h"
#include "forms/win32/PendingRefreshes.h"

namespace velkarix {

class ListViewWindow : public ControlWindow, private Refreshable {
  public:
    ListViewWindow(DesktopContext& context, ListView& list, const ControlPlace& place);
    void Detach() override;
    void Changed(Aspect aspect) override;
    LRESULT OnNotify(NMHDR& header) override;
    void ColoursChanged() override;
    void FontsChanged() override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    // The window catches up with the model.
    void Refresh() override;
    void SpaceIcons() const;
    void ShowImages(int kind, const ImageList* images, ListImages& shown) const;
    void ShowSelection();

    // What the user did.
    void OnItemChanged(const NMLISTVIEW& change);
    void TellIfNothingIsSelected();
    void OnClick(const NMITEMACTIVATE& click);
    void OnDoubleClick(const NMITEMACTIVATE& click);
    void OnContextMenu(LPARAM where);

    bool ToggleIfOnCheckBox(const POINT& point);
    void Toggle(int position);
    LRESULT OnDraw(NMLVCUSTOMDRAW& draw) const;
    bool ShowsFocusItself() const;
    int FocusedPosition() const;  // -1 when no row has the focus
    POINT BesideFocusedRow() const;

    ListView& list_;
    ListImages images_;
    ListImages largeImages_;
    bool rowsChanged_ = true;
    bool selectionChanged_ = true;
    bool modeChanged_ = false;
    bool fitWanted_ = false;
};

}  // namespace velkarix
