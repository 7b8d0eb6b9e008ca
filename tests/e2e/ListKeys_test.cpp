// The keys that work on the list of any page: refreshing, reporting, deleting, copying, finding.
#include <optional>
#include <string>

#include "Input.h"
#include "ProgramTest.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class ListKeys : public ProgramTest {
  protected:
    ListKeys() {
        Start();
        BringToFront(Running().Main());
    }
    bool HasFocus(const std::string& name) {
        return WaitUntil([&] { return Running().Focus() == name; });
    }
    std::string Status() { return Running().Control("lblStatus").Text(); }
    RECT ListArea() { return Window(List()).Area(); }
    std::string SelectedName() {
        const std::optional<int> row = List().Selected();
        return row ? List().Text(*row, 0) : "";
    }
    void Type(const std::string& letters) {
        for (const char letter : letters) PressKey(static_cast<WORD>(letter));
    }
    static std::string Joined(const RowTexts& texts) {
        std::string line;
        for (const std::string& text : texts) line += (line.empty() ? "" : "\t") + text;
        return line;
    }
};

// The clipboard while it is open; nobody else can open it.
class OpenedClipboard {
  public:
    OpenedClipboard() {
        open_ = WaitUntil([] { return OpenClipboard(nullptr) != FALSE; });
    }
    ~OpenedClipboard() {
        if (open_) CloseClipboard();
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    std::string Text() const {
        const HANDLE data = GetClipboardData(CF_TEXT);
        if (data == nullptr) return {};
        const std::string text = static_cast<const char*>(GlobalLock(data));
        GlobalUnlock(data);
        return text;
    }

  private:
    bool open_ = false;
};

std::string ClipboardText() {
    return OpenedClipboard().Text();
}

void EmptyTheClipboard() {
    const OpenedClipboard opened;
    EmptyClipboard();
}

TEST_F(ListKeys, CtrlCCopiesTheSelectedRow) {
    SelectRow("SampleIdle.exe");
    EmptyTheClipboard();
    PressKey('C', {VK_CONTROL});
    const std::string expected = Joined(List().Row(RowOf("SampleIdle.exe")));
    EXPECT_TRUE(WaitUntil([&] { return ClipboardText() == expected; })) << ClipboardText();
    EXPECT_TRUE(WaitUntil([this] { return Status() == "The row was copied"; })) << Status();
}

TEST_F(ListKeys, CtrlShiftCCopiesAllRowsBelowTheirCaptions) {
    SelectRow("SampleIdle.exe");
    EmptyTheClipboard();
    PressKey('C', {VK_CONTROL, VK_SHIFT});
    std::string expected = Joined(List().ColumnCaptions()) + "\r\n";
    for (const RowTexts& row : List().Rows()) expected += Joined(row) + "\r\n";
    EXPECT_TRUE(WaitUntil([&] { return ClipboardText() == expected; })) << ClipboardText();
}

TEST_F(ListKeys, AHeldClipboardIsToldPlainly) {
    SelectRow("SampleIdle.exe");
    Window message;
    {
        const OpenedClipboard held;
        PressKey('C', {VK_CONTROL});
        message = Running().Message();
    }
    ASSERT_TRUE(message);
    EXPECT_EQ(MessageText(message),
              "Nothing was copied. Another program may be using the clipboard; please try again.");
    EXPECT_TRUE(Answer(message, IDOK));
}

TEST_F(ListKeys, F5ReadsTheListAnewAndCtrlPMakesItsReport) {
    SelectRow("SampleIdle.exe");
    Tick(List(), RowOf("SampleIdle.exe"));
    PressKey(VK_F5);
    EXPECT_TRUE(WaitUntil([this] { return !List().Checked(RowOf("SampleIdle.exe")); }));
    PressKey('P', {VK_CONTROL});
    const Window dialog = Running().SystemDialog();
    ASSERT_TRUE(dialog);
    BringToFront(dialog);
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(WaitUntil([&] { return !dialog; }));
}

TEST_F(ListKeys, DeleteAsksInTheListAndMeansNothingOnAButton) {
    SelectRow("SampleIdle.exe");
    ASSERT_TRUE(HasFocus("lstvProcess"));
    PressKey(VK_DELETE);
    const Window question = Running().Message();
    ASSERT_TRUE(question);
    EXPECT_NE(MessageText(question).find("delete the selected process"), std::string::npos);
    EXPECT_TRUE(Answer(question, IDNO));
    ASSERT_TRUE(TabTo("cmdReport"));
    PressKey(VK_DELETE);
    PressKey(VK_TAB);
    EXPECT_TRUE(WaitUntil([this] { return Running().Focus() != "cmdReport"; }));
    EXPECT_TRUE(Running().Main().Enabled()) << "it asks";
}

TEST_F(ListKeys, CtrlFFindsRowsByAnyColumnAndEscGoesBackToTheList) {
    SelectRow("SampleIdle.exe");
    const RECT before = ListArea();
    PressKey('F', {VK_CONTROL});
    ASSERT_TRUE(HasFocus("txtFind"));
    EXPECT_TRUE(WaitUntil([&] { return ListArea().top > before.top; }));
    EXPECT_EQ(ListArea().bottom, before.bottom);
    Type("SUSPECT");
    PressKey(VK_RETURN);
    EXPECT_TRUE(WaitUntil([this] { return SelectedName() == "SampleSuspect.exe"; }));
    EXPECT_EQ(Running().Focus(), "txtFind");
    PressKey(VK_F3);
    EXPECT_TRUE(WaitUntil([this] { return Status() == "Went on at the beginning of the list"; }))
        << Status();
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(HasFocus("lstvProcess"));
    EXPECT_TRUE(WaitUntil([&] { return ListArea().top == before.top; }));
    EXPECT_TRUE(WaitUntil([this] { return !Running().Control("txtFind").Visible(); }));
}

TEST_F(ListKeys, F3GoesToTheNextRowAndShiftF3ToTheOneBefore) {
    SelectRow("SampleIdle.exe");
    PressKey('F', {VK_CONTROL});
    ASSERT_TRUE(HasFocus("txtFind"));
    Type("SAMPLE");
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(HasFocus("lstvProcess"));
    const int row = RowOf("SampleIdle.exe");
    PressKey(VK_F3);
    ASSERT_TRUE(WaitUntil([&] { return List().Selected() != row; }));
    PressKey(VK_F3, {VK_SHIFT});
    EXPECT_TRUE(WaitUntil([&] { return List().Selected() == row; }));
    EXPECT_EQ(List().Focused(), row);
}

TEST_F(ListKeys, ABoxOfTextKeepsItsOwnKeys) {
    SelectRow("SampleIdle.exe");
    EmptyTheClipboard();
    PressKey('F', {VK_CONTROL});
    ASSERT_TRUE(HasFocus("txtFind"));
    Type("OLD");
    PressKey(VK_HOME, {VK_SHIFT});
    PressKey('C', {VK_CONTROL});
    EXPECT_TRUE(WaitUntil([] { return ClipboardText() == "old"; })) << ClipboardText();
    PressKey(VK_DELETE);
    EXPECT_TRUE(WaitUntil([this] { return Running().Control("txtFind").Text().empty(); }));
}

TEST_F(ListKeys, TabWalksFromThePageButtonsThroughTheStripIntoThePage) {
    SelectRow("SampleIdle.exe");
    PressKey('F', {VK_CONTROL});
    ASSERT_TRUE(HasFocus("txtFind"));
    for (const char* next : {"cmdFindNext", "cmdFindPrevious", "cmdFindClose", "lstvProcess"}) {
        PressKey(VK_TAB);
        EXPECT_TRUE(HasFocus(next)) << next;
    }
    for (const char* before : {"cmdFindClose", "cmdFindPrevious", "cmdFindNext", "txtFind"}) {
        PressKey(VK_TAB, {VK_SHIFT});
        EXPECT_TRUE(HasFocus(before)) << before;
    }
    PressKey(VK_TAB, {VK_SHIFT});
    EXPECT_TRUE(HasFocus("cmdUtilities"));
}

TEST_F(ListKeys, FindingWorksOnTheListOfEveryPage) {
    const struct {
        const char* button;
        const char* list;
    } pages[] = {{"cmdIE", "lstvBHO"},
                 {"cmdStartup", "lstvStartup"},
                 {"cmdAddremove", "lstvAddRemove"},
                 {"cmdProcess", "lstvProcess"}};
    for (const auto& [button, name] : pages) {
        ASSERT_TRUE(Running().Press(button));
        const ListWindow list = Running().List(name);
        const int last = list.RowCount() - 1;
        ASSERT_GT(last, 0) << name;
        PressKey('F', {VK_CONTROL});
        ASSERT_TRUE(HasFocus("txtFind")) << name;
        const std::string text = list.Text(last, 0);
        Running().Control("txtFind").Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
        PressKey(VK_RETURN, {VK_SHIFT});
        EXPECT_TRUE(WaitUntil([&] {
            const std::optional<int> selected = list.Selected();
            return selected && list.Text(*selected, 0) == text;
        })) << name;
    }
}

}  // namespace
}  // namespace velkarix::e2e
