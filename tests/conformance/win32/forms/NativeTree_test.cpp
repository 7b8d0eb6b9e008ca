#include <cstring>

#include "NativeForms.h"
#include "forms/TreeView.h"

namespace velkarix {
namespace {

class PageOfTree : public Form {
  public:
    explicit PageOfTree(Calls& calls)
        : Form("pagTree", "Tree", FormKind::Page),
          tree("tvwAll", "Places",
               [this, &calls](const TreeNode& node) {
                   calls.push_back(node.key);
                   if (whenClicked) whenClicked();
               }),
          list("lstvAll", "All", {"Name"}, {}) {
        tree.Add("All", "All Items", "AllItems", {}, true);
        tree.Add("LM", "Local Machine", "Computer", "All", true);
        tree.Add("HKLM", "Registry", "Registry", "LM");
        tree.Add("LMStartup", "Startup Folder", "Folder", "LM");
        tree.Add("CU", "Current User", "User", "All");
        tree.Add("HKCU", "Registry", "Registry", "CU");
        SetControls({&tree, &list});
        SetLayout(Row({Column({Item(tree, 1)}), Item(list, 1)}));
    }

    Handler whenClicked;
    TreeView tree;
    ListView list;
};

class NativeTreeTest : public NativeFormsTest {
  protected:
    NativeTreeTest() {
        forms.Define("pagTree", [this] { return std::make_unique<PageOfTree>(calls); });
        forms.Unload("pagAll");
        trees = static_cast<PageOfTree*>(forms.Show("pagTree", &main->host));
        desktop.YieldEvents();
    }

    HWND Tree() const { return Window("tvwAll"); }
    HTREEITEM Next(HTREEITEM item, UINT relation) const {
        return reinterpret_cast<HTREEITEM>(
            SendMessageA(Tree(), TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
    }
    HTREEITEM Native(const char* key) const { return Below(Next(nullptr, TVGN_ROOT), key); }
    TVITEMA Facts(HTREEITEM native, char* text, int size) const {
        TVITEMA item{};
        item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_PARAM;
        item.hItem = native;
        item.pszText = text;
        item.cchTextMax = size;
        SendMessageA(Tree(), TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item));
        return item;
    }
    std::string TextOfNode(HTREEITEM native) const {
        char text[64] = "";
        Facts(native, text, 64);
        return text;
    }
    bool IsOpen(const char* key) const {
        TVITEMA item{};
        item.mask = TVIF_STATE;
        item.stateMask = TVIS_EXPANDED;
        item.hItem = Native(key);
        SendMessageA(Tree(), TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item));
        return (item.state & TVIS_EXPANDED) != 0;
    }
    HTREEITEM Selected() const { return Next(nullptr, TVGN_CARET); }
    // Of the node's text, or of its whole line; empty while the node is in a closed branch.
    RECT AreaOf(const char* key, bool text) const {
        RECT area{};
        const HTREEITEM native = Native(key);
        std::memcpy(&area, &native, sizeof(native));
        const LRESULT shown = SendMessageA(Tree(), TVM_GETITEMRECT, text ? TRUE : FALSE,
                                           reinterpret_cast<LPARAM>(&area));
        return shown != FALSE ? area : RECT{};
    }
    void ClickNode(const char* key) {
        const RECT text = AreaOf(key, true);
        ClickAt(Tree(), static_cast<int>(text.left) + 4,
                static_cast<int>(text.top + text.bottom) / 2);
    }
    // On the sign that opens and closes a node: before its image, which stands before its text.
    POINT ButtonOf(const char* key) const {
        const RECT text = AreaOf(key, true);
        POINT point{text.left, (text.top + text.bottom) / 2};
        TVHITTESTINFO hit{};
        do {
            hit.pt = {--point.x, point.y};
            SendMessageA(Tree(), TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
        } while (point.x > 0 && (hit.flags & TVHT_ONITEMBUTTON) == 0);
        return point;
    }
    void ClickButton(const char* key) {
        const POINT point = ButtonOf(key);
        ClickAt(Tree(), static_cast<int>(point.x), static_cast<int>(point.y));
    }
    void SelectByProgram(const char* key) {
        trees->tree.Select(trees->tree.Find(key));
        desktop.YieldEvents();
    }

    PageOfTree* trees = nullptr;

  private:
    HTREEITEM Below(HTREEITEM first, const char* key) const {
        for (HTREEITEM each = first; each != nullptr; each = Next(each, TVGN_NEXT)) {
            char text[64] = "";
            const auto* node = reinterpret_cast<const TreeNode*>(Facts(each, text, 64).lParam);
            if (node->key == key) return each;
            if (HTREEITEM found = Below(Next(each, TVGN_CHILD), key)) return found;
        }
        return nullptr;
    }
};

TEST_F(NativeTreeTest, ShowsTheNodesOfTheModelUnderTheirParents) {
    const HTREEITEM all = Next(nullptr, TVGN_ROOT);
    EXPECT_EQ(TextOfNode(all), "All Items");
    EXPECT_EQ(Next(all, TVGN_NEXT), nullptr);
    const HTREEITEM machine = Next(all, TVGN_CHILD);
    EXPECT_EQ(TextOfNode(machine), "Local Machine");
    EXPECT_EQ(TextOfNode(Next(machine, TVGN_CHILD)), "Registry");
    EXPECT_EQ(TextOfNode(Next(Next(machine, TVGN_CHILD), TVGN_NEXT)), "Startup Folder");
    EXPECT_EQ(TextOfNode(Next(machine, TVGN_NEXT)), "Current User");
    EXPECT_EQ(SendMessageA(Tree(), TVM_GETCOUNT, 0, 0), 6);
}

TEST_F(NativeTreeTest, HasItsSpokenNameAndNeitherEditsNorDragsNodes) {
    EXPECT_EQ(TextOf(Tree()), "Places");
    const auto style = static_cast<DWORD>(GetWindowLongA(Tree(), GWL_STYLE));
    EXPECT_EQ(style & TVS_EDITLABELS, 0u);
    constexpr DWORD wanted =
        TVS_HASLINES | TVS_LINESATROOT | TVS_HASBUTTONS | TVS_SHOWSELALWAYS | TVS_DISABLEDRAGDROP;
    EXPECT_EQ(style & wanted, wanted);
}

TEST_F(NativeTreeTest, OpensTheNodesThatTheModelSaysAndNoOthers) {
    EXPECT_TRUE(IsOpen("All"));
    EXPECT_TRUE(IsOpen("LM"));
    EXPECT_FALSE(IsOpen("CU"));
    const RECT last = AreaOf("CU", false);
    EXPECT_GT(last.top, AreaOf("LMStartup", false).top);
}

TEST_F(NativeTreeTest, NodesOfOnePictureShareAnImage) {
    const auto image = [this](const char* key) {
        char text[64] = "";
        const TVITEMA item = Facts(Native(key), text, 64);
        EXPECT_EQ(item.iImage, item.iSelectedImage);
        return item.iImage;
    };
    EXPECT_EQ(image("HKLM"), image("HKCU"));
    EXPECT_NE(image("HKLM"), image("LMStartup"));
    const auto images =
        reinterpret_cast<HIMAGELIST>(SendMessageA(Tree(), TVM_GETIMAGELIST, TVSIL_NORMAL, 0));
    EXPECT_EQ(ImageList_GetImageCount(images), 5);
    int width = 0;
    int height = 0;
    ImageList_GetIconSize(images, &width, &height);
    const HDC screen = GetDC(nullptr);
    EXPECT_EQ(width, MulDiv(16, GetDeviceCaps(screen, LOGPIXELSX), 96));
    ReleaseDC(nullptr, screen);
}

TEST_F(NativeTreeTest, NodeAddedLaterIsShownToo) {
    trees->tree.Add("CUStartup", "Startup Folder", "Folder", "CU");
    desktop.YieldEvents();
    EXPECT_EQ(Next(Native("HKCU"), TVGN_NEXT), Native("CUStartup"));
    EXPECT_EQ(SendMessageA(Tree(), TVM_GETCOUNT, 0, 0), 7);
}

TEST_F(NativeTreeTest, NodeSelectedByTheProgramRunsNoHandler) {
    SelectByProgram("CU");
    EXPECT_EQ(Selected(), Native("CU"));
    SelectByProgram("HKLM");
    EXPECT_EQ(Selected(), Native("HKLM"));
    EXPECT_EQ(calls, Calls{});
}

TEST_F(NativeTreeTest, ClickOnANodeSelectsItAndRunsTheHandlerOnce) {
    SelectByProgram("All");
    ClickNode("HKLM");
    EXPECT_EQ(trees->tree.SelectedNode(), trees->tree.Find("HKLM"));
    EXPECT_EQ(Selected(), Native("HKLM"));
    EXPECT_EQ(calls, Calls{"HKLM"});
}

TEST_F(NativeTreeTest, ClickOnTheSelectedNodeRunsTheHandlerOnceToo) {
    SelectByProgram("CU");
    ClickNode("CU");
    EXPECT_EQ(calls, Calls{"CU"});
    ClickNode("CU");
    EXPECT_EQ(calls, (Calls{"CU", "CU"}));
}

TEST_F(NativeTreeTest, ClickBesideAllNodesRunsNoHandler) {
    SelectByProgram("All");
    const RECT last = AreaOf("CU", false);
    ClickAt(Tree(), 20, static_cast<int>(last.bottom) + 10);
    const RECT line = AreaOf("All", true);
    ClickAt(Tree(), static_cast<int>(line.right) + 5, static_cast<int>(line.top) + 4);
    EXPECT_EQ(calls, Calls{});
    EXPECT_EQ(trees->tree.SelectedNode(), trees->tree.Find("All"));
}

TEST_F(NativeTreeTest, ArrowKeysSelectAndRunTheHandlerForEachNodeReached) {
    SelectByProgram("LM");
    SetFocus(Tree());
    for (const WPARAM key : {VK_DOWN, VK_DOWN, VK_UP, VK_HOME, VK_UP}) {
        Post(Tree(), WM_KEYDOWN, key, 1);
    }
    EXPECT_EQ(calls, (Calls{"HKLM", "LMStartup", "HKLM", "All"}));
    EXPECT_EQ(GetFocus(), Tree());
}

TEST_F(NativeTreeTest, TypingLeadsToTheNode) {
    SelectByProgram("All");
    SetFocus(Tree());
    Post(Tree(), WM_CHAR, 'c', 1);
    EXPECT_EQ(calls, Calls{"CU"});
}

TEST_F(NativeTreeTest, OpeningAndClosingANodeIsNoClickOnIt) {
    SelectByProgram("All");
    ClickButton("CU");
    EXPECT_TRUE(IsOpen("CU"));
    ClickButton("LM");
    EXPECT_FALSE(IsOpen("LM"));
    ClickButton("All");
    EXPECT_FALSE(IsOpen("All"));
    EXPECT_EQ(calls, Calls{});
}

TEST_F(NativeTreeTest, ClosingTheBranchOfTheSelectionLeadsToItsRoot) {
    SelectByProgram("HKLM");
    ClickButton("LM");
    EXPECT_EQ(Selected(), Native("LM"));
    EXPECT_EQ(trees->tree.SelectedNode(), trees->tree.Find("LM"));
    EXPECT_EQ(calls, Calls{"LM"});
}

TEST_F(NativeTreeTest, DoubleClickClosesABranchAndLeadsToItsRootToo) {
    SelectByProgram("HKLM");
    const RECT text = AreaOf("LM", true);
    Post(Tree(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(text.left + 4, text.top + 4));
    Post(Tree(), WM_LBUTTONUP, 0, MAKELPARAM(text.left + 4, text.top + 4));
    EXPECT_FALSE(IsOpen("LM"));
    EXPECT_EQ(calls, Calls{"LM"});
}

TEST_F(NativeTreeTest, BranchClosedForTheUserLeadsToItsRootToo) {
    SelectByProgram("HKLM");
    SendMessageA(Tree(), TVM_EXPAND, TVE_COLLAPSE, reinterpret_cast<LPARAM>(Native("LM")));
    EXPECT_EQ(trees->tree.SelectedNode(), trees->tree.Find("LM"));
    EXPECT_EQ(calls, Calls{"LM"});
}

TEST_F(NativeTreeTest, WhatTheUserOpenedStaysOpenWhenTheProgramSelects) {
    ClickButton("LM");
    ClickButton("CU");
    SelectByProgram("All");
    EXPECT_FALSE(IsOpen("LM"));
    EXPECT_TRUE(IsOpen("CU"));
}

TEST_F(NativeTreeTest, ToolThatSelectsForTheUserIsHeardAsTheUser) {
    SendMessageA(Tree(), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(Native("LM")));
    desktop.YieldEvents();
    EXPECT_EQ(trees->tree.SelectedNode(), trees->tree.Find("LM"));
    EXPECT_EQ(calls, Calls{"LM"});
}

TEST_F(NativeTreeTest, PageMayGoWhileItsTreeIsClicked) {
    trees->whenClicked = [this] { forms.Unload("pagTree"); };
    ClickNode("LM");
    EXPECT_EQ(calls, Calls{"LM"});
    EXPECT_EQ(Tree(), nullptr);
}

TEST_F(NativeTreeTest, IsAsWideAsItsLongestNodeNeeds) {
    SendMessageA(Tree(), TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(Native("CU")));
    RECT inside{};
    GetClientRect(Tree(), &inside);
    LONG widest = 0;
    for (const char* key : {"All", "LM", "HKLM", "LMStartup", "CU", "HKCU"}) {
        widest = std::max(widest, AreaOf(key, true).right);
    }
    EXPECT_LE(widest, inside.right);
    EXPECT_GT(widest, inside.right - 12);
    const auto style = static_cast<DWORD>(GetWindowLongA(Tree(), GWL_STYLE));
    EXPECT_EQ(style & (WS_HSCROLL | WS_VSCROLL), 0u);
}

TEST_F(NativeTreeTest, PagesEnteredAndLeftLeaveNoObjectsBehind) {
    const auto enter = [this] {
        forms.Unload("pagTree");
        forms.Show("pagTree", &main->host);
        desktop.YieldEvents();
    };
    for (int i = 0; i < 3; ++i) enter();
    const int before = HighestGdiSlot();
    for (int i = 0; i < 8; ++i) enter();
    EXPECT_LT(HighestGdiSlot(), before + 16);
}

}  // namespace
}  // namespace velkarix
