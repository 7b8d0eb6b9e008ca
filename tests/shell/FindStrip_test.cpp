// The strip of finding, on the whole program.
#include "shell/FindStrip.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/forms/CountingView.h"
#include "tests/machine/TestProgram.h"

namespace velkarix {
namespace {

class FindStripTest : public testing::Test {
  protected:
    FindStripTest() {
        for (int i = 1; const char* name : {"beta", "Lathe", "slate", "zeta"}) {
            const std::string path = std::string("C:\\") + name + ".exe";
            program.machine.AddFile(path).Content(name);
            program.machine.AddProcess(static_cast<ProcessId>(i++), path);
        }
        program.Start();
        program.desktop.events.clear();
    }
    Form& Main() { return *program.application.forms.Loaded("frmMain"); }
    bool Press(const KeyStroke& stroke, const char* focus = nullptr) {
        return Main().RaiseKey(stroke, focus == nullptr ? nullptr : Main().Find(focus));
    }
    // Opens the strip and looks for the text.
    void Find(const std::string& text) {
        EXPECT_TRUE(Press({Key::F, true}));
        Text().TakeInput(text);
        EXPECT_TRUE(Press({Key::Enter}, "txtFind"));
    }
    TextBox& Text() { return program.Get<TextBox>("frmMain", "txtFind"); }
    bool Open() { return program.Get<Panel>("frmMain", "picFind").Visible(); }
    std::string Status() { return program.Get<Label>("frmMain", "lblStatus").Text(); }
    ListView& List() { return program.Get<ListView>("frmProcess", "lstvProcess"); }
    std::string Selected() {
        const ListRow* row = List().SelectedRow();
        return row == nullptr ? "" : row->Text(0);
    }
    using Names = std::vector<std::string>;
    const Names& Events() { return program.desktop.events; }

    TestProgram program;
};

TEST_F(FindStripTest, IsHiddenUntilItIsAskedFor) {
    EXPECT_FALSE(Open());
    EXPECT_FALSE(Text().Shown());
    EXPECT_TRUE(Press({Key::F, true}));
    EXPECT_TRUE(Open());
    EXPECT_TRUE(Text().Shown());
    EXPECT_EQ(Events(), Names{"focus txtFind"});
}

TEST_F(FindStripTest, FindsTheNextRowWhateverTheCase) {
    Find("LAT");
    EXPECT_EQ(Selected(), "Lathe.exe");
    EXPECT_TRUE(Press({Key::F3}));
    EXPECT_EQ(Selected(), "slate.exe");
    EXPECT_EQ(Status(), "4 rows");
}

TEST_F(FindStripTest, FindsTheRowBefore) {
    Find("ta.exe");
    EXPECT_EQ(Selected(), "zeta.exe");
    EXPECT_TRUE(Press({Key::F3, false, true}));
    EXPECT_EQ(Selected(), "beta.exe");
    EXPECT_TRUE(Press({Key::Enter, false, true}, "txtFind"));
    EXPECT_EQ(Selected(), "zeta.exe");
    EXPECT_EQ(Status(), "Went on at the end of the list");
}

TEST_F(FindStripTest, SaysWhenItWentOnAtTheBeginningUntilTheNextRowIsFound) {
    Find("lat");
    program.Get<Button>("frmMain", "cmdFindNext").Raise("Click");
    program.Get<Button>("frmMain", "cmdFindNext").Raise("Click");
    EXPECT_EQ(Selected(), "Lathe.exe");
    EXPECT_EQ(Status(), "Went on at the beginning of the list");
    program.Get<Button>("frmMain", "cmdFindNext").Raise("Click");
    EXPECT_EQ(Status(), "4 rows");
    program.Get<Button>("frmMain", "cmdFindPrevious").Raise("Click");
    EXPECT_EQ(Selected(), "Lathe.exe");
}

TEST_F(FindStripTest, SaysWhenThereIsNoSuchRowAndKeepsTheSelection) {
    Find("absent");
    EXPECT_EQ(Selected(), "beta.exe");
    EXPECT_EQ(Status(), "\"absent\" was not found");
    EXPECT_TRUE(program.desktop.messages.empty());
}

TEST_F(FindStripTest, SelectsTheRowAsTheUserWould) {
    program.machine.disk.Remove("C:\\slate.exe");
    Find("slate");
    EXPECT_FALSE(program.Get<Button>("frmProcess", "cmdDelete").Enabled());
    Press({Key::F3, false, true});
    Find("zeta");
    EXPECT_TRUE(program.Get<Button>("frmProcess", "cmdDelete").Enabled());
}

TEST_F(FindStripTest, ShowsTheRowThatIsFound) {
    CountingView view;
    List().AttachView(&view);
    Find("zeta");
    EXPECT_EQ(view.Times(Aspect::Selection), 1);
    List().AttachView(nullptr);
}

TEST_F(FindStripTest, LeavesEnterToWhateverElseHasTheFocus) {
    Find("zeta");
    EXPECT_FALSE(Press({Key::Enter}, "cmdFindPrevious"));
    EXPECT_FALSE(Press({Key::Enter, false, true}, "cmdProcess"));
    EXPECT_EQ(Selected(), "zeta.exe");
}

TEST_F(FindStripTest, CountsAgainWhenItIsClosed) {
    Find("absent");
    Press({Key::Escape}, "txtFind");
    EXPECT_EQ(Status(), "4 rows");
}

TEST_F(FindStripTest, ClosesAndGivesTheKeyboardBackToTheList) {
    Find("zeta");
    program.desktop.events.clear();
    EXPECT_FALSE(Press({Key::Escape}, "cmdProcess"));
    EXPECT_TRUE(Press({Key::Escape}, "cmdFindNext"));
    EXPECT_FALSE(Open());
    EXPECT_EQ(Events(), Names{"focus lstvProcess"});
    Press({Key::F, true});
    program.Get<Button>("frmMain", "cmdFindClose").Raise("Click");
    EXPECT_FALSE(Open());
}

TEST_F(FindStripTest, GoesOnWithItsTextWhenItIsClosed) {
    Find("lat");
    Press({Key::Escape}, "txtFind");
    EXPECT_TRUE(Press({Key::F3}));
    EXPECT_EQ(Selected(), "slate.exe");
    EXPECT_FALSE(Open());
}

TEST_F(FindStripTest, OpensWhereThereIsNothingToLookForYet) {
    EXPECT_TRUE(Press({Key::F3}));
    EXPECT_TRUE(Open());
    EXPECT_EQ(Selected(), "beta.exe");
}

TEST_F(FindStripTest, WorksOnTheListOfWhicheverPageIsOnView) {
    Find("tool");
    program.machine.SetValue(Hive::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Run",
                             "Item", "C:\\Tool.exe");
    program.Get<Button>("frmMain", "cmdStartup").Raise("Click");
    ListView& items = program.Get<ListView>("frmStartup", "lstvStartup");
    items.Select(nullptr);
    EXPECT_TRUE(Press({Key::F3}));
    ASSERT_NE(items.SelectedRow(), nullptr);
    EXPECT_EQ(items.SelectedRow()->Text(0), "Item");
}

TEST_F(FindStripTest, SaysThatThereIsNoListWhereThereIsNone) {
    program.Get<Button>("frmMain", "cmdUtilities").Raise("Click");
    EXPECT_TRUE(Press({Key::F, true}));
    EXPECT_FALSE(Open());
    EXPECT_EQ(Status(), "There is no list here to find anything in");
}

}  // namespace
}  // namespace velkarix
