#include "NativeViews.h"

namespace velkarix {
namespace {

class NativeComboBoxTest : public NativeViewsTest {
  protected:
    NativeComboBoxTest() {
        ShowTabs(2);
        SetFocus(Box());
    }
    HWND Box() const { return Window("cmbRights"); }
    int Selected() const { return static_cast<int>(SendMessageA(Box(), CB_GETCURSEL, 0, 0)); }
    bool Dropped() const { return SendMessageA(Box(), CB_GETDROPPEDSTATE, 0, 0) != FALSE; }
    void Drop() const { SendMessageA(Box(), CB_SHOWDROPDOWN, TRUE, 0); }
};

TEST_F(NativeComboBoxTest, ShowsTheModelsEntriesAndSelection) {
    EXPECT_EQ(SendMessageA(Box(), CB_GETCOUNT, 0, 0), 12);
    EXPECT_EQ(Selected(), -1);
    views->rights.SelectText("entry 7");
    EXPECT_EQ(Selected(), 7);
    EXPECT_EQ(TextOf(Box()), "entry 7");
    views->rights.Select(ComboBox::NoSelection);
    EXPECT_EQ(TextOf(Box()), "");
    EXPECT_EQ(calls, Calls{});
}

TEST_F(NativeComboBoxTest, ArrowKeysSelectForTheModel) {
    PressAndServe("cmbRights", VK_DOWN);
    PressAndServe("cmbRights", VK_DOWN);
    EXPECT_EQ(views->rights.Selected(), 1);
    EXPECT_EQ(calls, (Calls{"rights entry 0", "rights entry 1"}));
}

TEST_F(NativeComboBoxTest, ClosedBoxHasItsPlaceAndTheDroppedListEightEntries) {
    const RECT closed = AreaOf(Box());
    const RECT button = AreaOf(Window("cmdApply"));
    EXPECT_LT(closed.bottom - closed.top, 2 * (button.bottom - button.top));
    EXPECT_LE(closed.right, button.left);
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof(parts);
    Drop();
    ASSERT_TRUE(GetComboBoxInfo(Box(), &parts));
    RECT list{};
    GetClientRect(parts.hwndList, &list);
    EXPECT_EQ(list.bottom, 8 * SendMessageA(Box(), CB_GETITEMHEIGHT, 0, 0));
    EXPECT_EQ(AreaOf(parts.hwndList).top, closed.bottom);
}

TEST_F(NativeComboBoxTest, EnterTakesTheMarkedEntryOfTheDroppedListAndPressesNoButton) {
    Drop();
    PressAndServe("cmbRights", VK_DOWN);
    PressAndServe("cmbRights", VK_RETURN);
    EXPECT_FALSE(Dropped());
    EXPECT_EQ(views->rights.Selected(), 0);
    EXPECT_EQ(calls, Calls{"rights entry 0"});
    PressAndServe("cmbRights", VK_RETURN);
    EXPECT_EQ(calls, (Calls{"rights entry 0", "apply"}));
}

TEST_F(NativeComboBoxTest, EscapeClosesTheDroppedListAndTheModelHasWhatTheBoxShows) {
    views->rights.Select(3);
    Drop();
    PressAndServe("cmbRights", VK_DOWN);
    PressAndServe("cmbRights", VK_ESCAPE);
    EXPECT_FALSE(Dropped());
    EXPECT_EQ(views->rights.Selected(), Selected());
}

TEST_F(NativeComboBoxTest, SelectionThatTheClosingListTakesBackIsTheModels) {
    views->rights.Select(3);
    SendMessageA(Box(), CB_SETCURSEL, 5, 0);
    const auto closed = MAKEWPARAM(GetDlgCtrlID(Box()), CBN_CLOSEUP);
    SendMessageA(GetParent(Box()), WM_COMMAND, closed, reinterpret_cast<LPARAM>(Box()));
    SendMessageA(GetParent(Box()), WM_COMMAND, closed, reinterpret_cast<LPARAM>(Box()));
    EXPECT_EQ(calls, Calls{"rights entry 5"});
}

class DialogWithBox : public Form {
  public:
    DialogWithBox(Desktop& desktop, Calls& calls)
        : Form("dlgBox", "Dialog", FormKind::Dialog),
          desktop_(desktop),
          box_("cmbDialog", "Box", {"one", "two"}, {}),
          button_("cmdDialog", "Button", [&calls] { calls.push_back("button"); }) {
        SetControls({&box_, &button_});
        SetLayout(Column({Item(box_), Item(button_)}));
    }
    void Form_Load() override {
        const auto form = reinterpret_cast<HWND>(desktop_.HandleOf(*this));
        const HWND box = FindWindowExA(form, nullptr, "COMBOBOX", nullptr);
        PostMessageA(box, WM_KEYDOWN, VK_F4, 1);
        PostMessageA(box, WM_KEYDOWN, VK_ESCAPE, 1);
        PostMessageA(FindWindowExA(form, nullptr, "BUTTON", nullptr), BM_CLICK, 0, 0);
        PostMessageA(box, WM_KEYDOWN, VK_ESCAPE, 1);
    }

  private:
    Desktop& desktop_;
    ComboBox box_;
    Button button_;
};

TEST_F(NativeComboBoxTest, EscapeClosesTheDroppedListBeforeTheDialog) {
    forms.Define("dlgBox", [this] { return std::make_unique<DialogWithBox>(desktop, calls); });
    forms.ShowModal("dlgBox", *main);
    EXPECT_EQ(calls, Calls{"button"});
}

TEST_F(NativeComboBoxTest, F4AndAltDownDropTheList) {
    PressAndServe("cmbRights", VK_F4);
    EXPECT_TRUE(Dropped());
    PressAndServe("cmbRights", VK_F4);
    EXPECT_FALSE(Dropped());
    constexpr LPARAM withAlt = 1 << 29 | 1;
    Post(Box(), WM_SYSKEYDOWN, VK_DOWN, withAlt);
    EXPECT_TRUE(Dropped());
}

class NativeTextBoxTest : public NativeViewsTest {
  protected:
    NativeTextBoxTest() { ShowTabs(1); }
    HWND Box() const { return Window("txtTest"); }
    void Type(const char* text) const {
        SendMessageA(Box(), EM_SETSEL, 1 << 20, 1 << 20);
        SendMessageA(Box(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
    }
};

TEST_F(NativeTextBoxTest, TypingChangesTheValueAndRunsTheHandlerOnce) {
    Type("t");
    EXPECT_EQ(views->text.Value(), "t");
    EXPECT_EQ(calls, Calls{"text"});
}

TEST_F(NativeTextBoxTest, ValueSetByTheProgramComesNotBackAsOneByTheUser) {
    views->text.SetValue("told");
    EXPECT_EQ(TextOf(Box()), "told");
    EXPECT_EQ(calls, Calls{"text"});
}

TEST_F(NativeTextBoxTest, ValueWithANulStaysWholeUntilTheUserTypes) {
    const std::string value("a\0b", 3);
    views->text.SetValue(value);
    desktop.YieldEvents();
    EXPECT_EQ(TextOf(Box()), "a");
    EXPECT_EQ(views->text.Value(), value);
    Type("!");
    EXPECT_EQ(views->text.Value(), "a!");
}

TEST_F(NativeTextBoxTest, LongValuesAreNotCutNorIsTyping) {
    const std::string value(40000, 'x');
    views->text.SetValue(value);
    EXPECT_EQ(GetWindowTextLengthA(Box()), 40000);
    Type("!");
    EXPECT_EQ(views->text.Value().size(), 40001U);
}

TEST_F(NativeTextBoxTest, DisabledBoxTakesNoFocus) {
    views->text.SetEnabled(false);
    EXPECT_FALSE(IsWindowEnabled(Box()));
    views->text.SetEnabled(true);
    EXPECT_TRUE(IsWindowEnabled(Box()));
}

}  // namespace
}  // namespace velkarix
