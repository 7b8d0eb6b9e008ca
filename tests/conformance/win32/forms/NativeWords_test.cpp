// Words beside and about controls: a paragraph of several lines, and what comes up where the mouse
// rests.
#include "NativeForms.h"

namespace velkarix {
namespace {

const std::string ShortText = "One line.";
const std::string LongText =
    "Hosts & addresses: this paragraph is much too long for one line of any page, so that it is "
    "broken between its words into as many lines as it needs, and all of them are to be seen.";

class PageOfWords : public Form {
  public:
    PageOfWords() : Form("pagWords", "Words", FormKind::Page) {
        tipped.SetToolTip("Click to do it ");
        SetControls({&oneLine, &paragraph, &tipped, &plain});
        SetLayout(Column({Item(oneLine), Row({Item(paragraph, 1), Item(tipped)}), Item(plain)}));
    }
    Label oneLine{"lblOne", ShortText, Label::Look::Paragraph};
    Label paragraph{"lblMany", LongText, Label::Look::Paragraph};
    Button tipped{"cmdTipped", "Do it", {}};
    Button plain{"cmdPlain", "Plain", {}};
};

class NativeWordsTest : public NativeFormsTest {
  protected:
    NativeWordsTest() {
        forms.Define("pagWords", [] { return std::make_unique<PageOfWords>(); });
        forms.Unload("pagAll");
        words = static_cast<PageOfWords*>(forms.Show("pagWords", &main->host));
        desktop.YieldEvents();
    }

    int HeightOf(const char* name) const {
        RECT area{};
        GetClientRect(Window(name), &area);
        return area.bottom;
    }
    // As high as the label's text is where its lines are as long as the label is wide.
    int HeightOfText(const char* name, const std::string& text) const {
        const HWND label = Window(name);
        RECT area{};
        GetClientRect(label, &area);
        const HDC context = GetDC(label);
        const HGDIOBJ before =
            SelectObject(context, reinterpret_cast<HFONT>(SendMessageA(label, WM_GETFONT, 0, 0)));
        DrawTextA(context, text.c_str(), -1, &area, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
        SelectObject(context, before);
        ReleaseDC(label, context);
        return area.bottom;
    }

    static BOOL CALLBACK AddTip(HWND window, LPARAM tips) {
        char name[32] = "";
        GetClassNameA(window, name, 32);
        if (name == std::string(TOOLTIPS_CLASSA)) {
            reinterpret_cast<std::vector<HWND>*>(tips)->push_back(window);
        }
        return TRUE;
    }
    static std::vector<HWND> Tips() {
        std::vector<HWND> tips;
        EnumThreadWindows(GetCurrentThreadId(), AddTip, reinterpret_cast<LPARAM>(&tips));
        return tips;
    }
    // Of the control, by the one tip that there is; empty where it has none.
    std::string TipOf(const char* name) const {
        char text[256] = "";
        TOOLINFOA tool{};
        tool.cbSize = TTTOOLINFOA_V1_SIZE;
        tool.hwnd = GetParent(Window(name));
        tool.uId = reinterpret_cast<UINT_PTR>(Window(name));
        tool.lpszText = text;
        for (const HWND tip : Tips()) {
            SendMessageA(tip, TTM_GETTEXTA, 0, reinterpret_cast<LPARAM>(&tool));
        }
        return text;
    }

    PageOfWords* words = nullptr;
};

TEST_F(NativeWordsTest, ParagraphHasRoomForAllOfItsLines) {
    EXPECT_GE(HeightOf("lblMany"), HeightOfText("lblMany", LongText));
    EXPECT_GE(HeightOf("lblMany"), 3 * HeightOf("lblOne"));
    EXPECT_EQ(HeightOf("lblOne"), HeightOfText("lblOne", ShortText));
}

TEST_F(NativeWordsTest, ParagraphDoesNotMakeItsPageWider) {
    RECT whole{};
    RECT button{};
    GetWindowRect(Window("pagWords"), &whole);
    GetWindowRect(Window("cmdTipped"), &button);
    EXPECT_LE(button.right, whole.right);
}

TEST_F(NativeWordsTest, ControlHasItsWordsAndNoOtherControlHasAny) {
    ASSERT_EQ(Tips().size(), 1u);
    EXPECT_EQ(TipOf("cmdTipped"), "Click to do it ");
    EXPECT_EQ(TipOf("cmdPlain"), "");
}

TEST_F(NativeWordsTest, TheWordsComeUpWhereTheMouseRests) {
    const HWND button = Window("cmdTipped");
    ShowWindow(reinterpret_cast<HWND>(desktop.HandleOf(*main)), SW_SHOW);
    RECT area{};
    GetWindowRect(button, &area);
    SetCursorPos(area.left + 5, area.top + 5);
    ASSERT_EQ(Tips().size(), 1u);
    const HWND tip = Tips()[0];
    SendMessageA(tip, TTM_SETDELAYTIME, TTDT_INITIAL, MAKELPARAM(20, 0));
    SendMessageA(button, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    for (int i = 0; i < 100 && IsWindowVisible(tip) == FALSE; ++i) {
        Sleep(20);
        desktop.YieldEvents();
    }
    EXPECT_TRUE(IsWindowVisible(tip));
}

TEST_F(NativeWordsTest, TheWordsGoWithThePage) {
    forms.Unload("pagWords");
    desktop.YieldEvents();
    EXPECT_TRUE(Tips().empty());
}

}  // namespace
}  // namespace velkarix
