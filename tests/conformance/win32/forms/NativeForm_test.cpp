#include <functional>

#include "NativeForms.h"

namespace velkarix {
namespace {

class Dialog : public Form {
  public:
    Dialog(Desktop& desktop, std::function<void(HWND)> whenLoaded)
        : Form("dlgAll", "Dialog", FormKind::Dialog),
          desktop_(desktop),
          whenLoaded_(std::move(whenLoaded)),
          label_("lblAll", "Label") {
        SetControls({&label_});
        SetLayout(Column({Item(label_)}));
    }
    void Form_Load() override { whenLoaded_(reinterpret_cast<HWND>(desktop_.HandleOf(*this))); }

  private:
    Desktop& desktop_;
    std::function<void(HWND)> whenLoaded_;
    Label label_;
};

class NativeFormTest : public NativeFormsTest {
  protected:
    HWND MainWindow() { return reinterpret_cast<HWND>(desktop.HandleOf(*main)); }

    struct Closer {
        HWND window;
        HANDLE loopEnded;
        bool loopSleptOn = false;
    };
    // Sends what doesn't pass through the queue of the form's thread.
    static DWORD WINAPI CloseFromOutside(void* parameter) {
        auto& closer = *static_cast<Closer*>(parameter);
        SendMessageA(closer.window, WM_CLOSE, 0, 0);
        closer.loopSleptOn = WaitForSingleObject(closer.loopEnded, 3000) == WAIT_TIMEOUT;
        if (closer.loopSleptOn) PostMessageA(closer.window, WM_NULL, 0, 0);
        return 0;
    }
};

TEST_F(NativeFormTest, EveryControlCarriesItsName) {
    for (const Form* form : {static_cast<Form*>(main), static_cast<Form*>(page)}) {
        EXPECT_NE(Window(form->Name()), nullptr) << form->Name();
        for (const Control* control : form->Controls()) {
            EXPECT_NE(Window(control->Name()), nullptr) << control->Name();
        }
    }
}

TEST_F(NativeFormTest, PictureButtonSpeaksItsText) {
    EXPECT_EQ(TextOf(Window("cmdPage")), "The page");
}

TEST_F(NativeFormTest, NamesGoWithTheirForm) {
    ASSERT_NE(GlobalFindAtomA("lstvAll"), 0);
    forms.Unload("pagAll");
    EXPECT_EQ(GlobalFindAtomA("lstvAll"), 0);
    EXPECT_EQ(GlobalFindAtomA("pagAll"), 0);
}

TEST_F(NativeFormTest, FormThatGoesTakesTheNamesOfItsPageAlong) {
    forms.Unload("frmAll");
    EXPECT_EQ(GlobalFindAtomA("lstvAll"), 0);
    forms.Unload("pagAll");
    EXPECT_EQ(forms.Loaded("pagAll"), nullptr);
}

TEST_F(NativeFormTest, MainWindowStandsJustAboveTheApplicationWindow) {
    desktop.SetApplicationTitle("Test of the native forms");
    const HWND application = FindWindowA(ApplicationWindowClass, "Test of the native forms");
    ASSERT_NE(application, nullptr);
    EXPECT_EQ(GetWindow(application, GW_HWNDPREV), MainWindow());
}

TEST_F(NativeFormTest, ClickRunsTheHandlerUnlessTheButtonIsDisabled) {
    SendMessageA(Window("cmdAct"), BM_CLICK, 0, 0);
    EXPECT_EQ(calls, Calls{"act"});
    page->act.SetEnabled(false);
    EXPECT_FALSE(IsWindowEnabled(Window("cmdAct")));
}

TEST_F(NativeFormTest, HandlerMayUnloadItsOwnPageWhoseWindowsStandUntilItIsThrough) {
    const HWND button = Window("cmdLeave");
    bool stands = false;
    whenLeft = [&] {
        forms.Unload("pagAll");
        stands = IsWindow(button) != FALSE;
    };
    Post(button, BM_CLICK, 0);
    EXPECT_EQ(forms.Loaded("pagAll"), nullptr);
    EXPECT_TRUE(stands);
    EXPECT_FALSE(IsWindow(button));
}

TEST_F(NativeFormTest, TypedTextIsTheModels) {
    SendMessageA(Window("txtAll"), EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>("typed"));
    EXPECT_EQ(page->box.Value(), "typed");
    page->box.SetValue("told");
    EXPECT_EQ(TextOf(Window("txtAll")), "told");
}

TEST_F(NativeFormTest, ChosenOptionIsTheModels) {
    SendMessageA(Window("optAll(1)"), BM_CLICK, 0, 0);
    EXPECT_EQ(page->options.Chosen(), 1);
    EXPECT_EQ(calls, Calls{"1"});
    EXPECT_EQ(SendMessageA(Window("optAll(0)"), BM_GETCHECK, 0, 0), BST_UNCHECKED);
}

TEST_F(NativeFormTest, ClickOnTheChosenOptionIsNoChoice) {
    SendMessageA(Window("optAll(0)"), BM_CLICK, 0, 0);
    EXPECT_EQ(calls, Calls{});
}

TEST_F(NativeFormTest, OptionChosenByTheProgramRunsNoHandler) {
    page->options.Choose(1);
    EXPECT_EQ(SendMessageA(Window("optAll(1)"), BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_EQ(SendMessageA(Window("optAll(0)"), BM_GETCHECK, 0, 0), BST_UNCHECKED);
    EXPECT_EQ(calls, Calls{});
}

TEST_F(NativeFormTest, AcceleratorWorksWhereverTheFocusIs) {
    Post(Window("lstvAll"), WM_KEYDOWN, VK_F5);
    Post(Window("cmdPage"), WM_KEYDOWN, VK_F5);
    EXPECT_EQ(calls, (Calls{"act", "act"}));
}

TEST_F(NativeFormTest, EnterPressesTheFocusedButton) {
    Post(Window("cmdPage"), WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(calls, Calls{"page"});
}

TEST_F(NativeFormTest, EscapeMeansNothingOutsideOfADialog) {
    Post(Window("lstvAll"), WM_KEYDOWN, VK_ESCAPE);
    EXPECT_EQ(calls, Calls{});
    EXPECT_FALSE(main->Closing());
}

TEST_F(NativeFormTest, WaitingLoopSeesThatAnotherProgramClosedTheForm) {
    Closer closer{MainWindow(), CreateEventA(nullptr, TRUE, FALSE, nullptr)};
    const HANDLE thread = CreateThread(nullptr, 0, CloseFromOutside, &closer, 0, nullptr);
    desktop.RunEventLoop();
    EXPECT_TRUE(main->Closing());
    SetEvent(closer.loopEnded);
    WaitForSingleObject(thread, INFINITE);
    EXPECT_FALSE(closer.loopSleptOn);
    CloseHandle(thread);
    CloseHandle(closer.loopEnded);
}

TEST_F(NativeFormTest, ClosingTheMainWindowEndsTheEventLoopAndNothingElse) {
    PostMessageA(MainWindow(), WM_CLOSE, 0, 0);
    desktop.RunEventLoop();
    EXPECT_TRUE(main->Closing());
    EXPECT_TRUE(IsWindow(MainWindow()));
}

TEST_F(NativeFormTest, DialogDisablesItsOwnerUntilEscape) {
    HWND dialog = nullptr;
    forms.Define("dlgAll", [&] {
        return std::make_unique<Dialog>(desktop, [&](HWND window) {
            dialog = window;
            PostMessageA(Window("cmdPage"), WM_KEYDOWN, VK_F5, 0);
            PostMessageA(window, WM_KEYDOWN, VK_ESCAPE, 0);
        });
    });
    forms.ShowModal("dlgAll", *main);
    EXPECT_EQ(calls, Calls{}) << "a key reached the form below the dialog";
    EXPECT_TRUE(IsWindowEnabled(MainWindow()));
    EXPECT_FALSE(IsWindow(dialog));
}

TEST_F(NativeFormTest, PageEnteredAndLeftManyTimesLeavesNoObjectsBehind) {
    AddThreeRows();
    ImageList images;
    images.Add(Picture{1, 1, {0xFF00FF00}});
    const auto enterAndLeave = [&] {
        page->list.SetImages(&images);
        desktop.YieldEvents();
        forms.Unload("pagAll");
        EnterPage();
    };
    for (int i = 0; i < 3; ++i) enterAndLeave();
    const int before = HighestGdiSlot();
    for (int i = 0; i < 50; ++i) enterAndLeave();
    EXPECT_LT(HighestGdiSlot(), before + 25);
    page->list.SetImages(nullptr);
}

}  // namespace
}  // namespace velkarix
