// Where a report is saved: the system's dialog asks for it.
#include "Input.h"
#include "ProgramTest.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class SaveDialog : public ProgramTest {
  protected:
    Window Open() {
        EXPECT_TRUE(Running().Control("cmdReport").Click());
        return Running().SystemDialog();
    }
    // Gives the file's name as the user would.
    static void Give(const Window& dialog, const std::string& name) {
        BringToFront(dialog);
        const Window edit = WaitFor([&] {
            const Window focus = FocusOf(dialog.Thread());
            return focus && focus.Class() == "Edit" ? focus : Window();
        });
        ASSERT_TRUE(edit);
        edit.Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
        PressKey(VK_RETURN);
    }
};

TEST_F(SaveDialog, ANameWithoutAnEndingBecomesATextFile) {
    Start();
    const Window dialog = Open();
    ASSERT_TRUE(dialog);
    EXPECT_FALSE(Running().Main().Enabled());
    Give(dialog, install_.Path("Mine"));
    ASSERT_TRUE(WaitUntil([&] { return !dialog; }));
    EXPECT_TRUE(WaitUntil([this] { return install_.Exists("Mine.txt"); }));
    EXPECT_FALSE(install_.Exists("Mine"));
    EXPECT_TRUE(Running().Main().Enabled());
}

TEST_F(SaveDialog, AnExistingFileIsKeptUntilTheUserAgrees) {
    install_.Write("Mine.txt", "kept");
    Start();
    const Window dialog = Open();
    ASSERT_TRUE(dialog);
    Give(dialog, install_.Path("Mine.txt"));
    const Window question = WaitFor([&] {
        const Window top = Running().SystemDialog();
        return top == dialog ? Window() : top;
    });
    ASSERT_TRUE(question);
    EXPECT_TRUE(Answer(question, IDNO));
    EXPECT_EQ(install_.Read("Mine.txt"), "kept");
    BringToFront(dialog);
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(WaitUntil([&] { return !dialog; }));
    EXPECT_EQ(install_.Read("Mine.txt"), "kept");
}

}  // namespace
}  // namespace velkarix::e2e
