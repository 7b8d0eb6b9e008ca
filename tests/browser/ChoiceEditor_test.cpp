#include "browser/ChoiceEditor.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "ViewTest.h"
#include "browser/BrowserView.h"

namespace velkarix {
namespace {

constexpr ChoiceEditorTexts Texts = {
    "lstvTest", "txtTest", "cmbTest",         "cmdTest",       "Tests",
    "Thing",    "Colour",  "Pick one first.", "Not that one.", "Repaint: ",
};

// An editor alone in a view, which writes down what it is to store.
class EditorView : public BrowserView {
  public:
    explicit EditorView(Application& application)
        : editor(application, Texts, {"Red", "Green"}, [this](const ListRow& row, int position) {
              stored.emplace_back(row.Key(), position);
              return storing;
          }) {}
    std::vector<Control*> Controls() override {
        std::vector<Control*> controls = editor.EditControls();
        controls.insert(controls.begin(), &editor.List());
        return controls;
    }
    Layout ViewLayout() override { return Column({Item(editor.List()), editor.EditRow()}); }

    ChoiceEditor editor;
    std::vector<std::pair<std::string, int>> stored;
    bool storing = true;
};

class ChoiceEditorTest : public ViewTest<EditorView> {
  protected:
    ChoiceEditorTest() {
        view.editor.AddRow("A", "Door", "Red");
        view.editor.AddRow("B", "Wall", "Unknown");
        view.editor.ShowRows();
    }
    ListView& List() { return view.editor.List(); }
    ComboBox& Combo() { return Get<ComboBox>("cmbTest"); }
    void Select(std::size_t row) { List().UserSelect(&List().Row(row)); }
    void Answer(MessageAnswer answer) { program.desktop.answers.push_back(answer); }

    static constexpr int Green = 1;
    static constexpr int Unknown = 2;
    const std::vector<std::pair<std::string, int>> nothing;
};

TEST_F(ChoiceEditorTest, NamesItsControlsAndHasNothingToTick) {
    EXPECT_EQ(TabOrder(), (std::vector<std::string>{"lstvTest", "txtTest", "cmbTest", "cmdTest"}));
    EXPECT_EQ(List().Columns(), (std::vector<std::string>{"Thing", "Colour"}));
    EXPECT_EQ(List().ColumnShares(), (std::vector<int>{2, 1}));
    EXPECT_FALSE(List().CheckBoxes());
    EXPECT_TRUE(Get<TextBox>("txtTest").BoxShape().readOnly);
    EXPECT_EQ(page.Find("cmdTest")->Text(), "Apply");
    EXPECT_EQ(Combo().Entries(), (std::vector<std::string>{"Red", "Green", "Unknown!"}));
    for (const Control* control : page.Controls()) EXPECT_NE(control->Text(), "");
    ExpectEachControlPlacedOnce();
}

TEST_F(ChoiceEditorTest, TreatsTheFirstRowAsClickedAndFocusesTheListOnView) {
    EXPECT_EQ(List().SelectedRow(), &List().Row(0));
    EXPECT_EQ(Value("txtTest"), "Door");
    EXPECT_EQ(Combo().SelectedText(), "Red");
    EXPECT_FALSE(IsEnabled("cmdTest"));
    EXPECT_EQ(program.desktop.events, std::vector<std::string>{"focus lstvTest"});
}

TEST_F(ChoiceEditorTest, LeavesTheFocusWhereTheListIsHidden) {
    Frame around("fmTest", "");
    List().StandIn(&around);
    around.SetVisible(false);
    program.desktop.events.clear();
    view.editor.ShowRows();
    EXPECT_EQ(program.desktop.events, std::vector<std::string>());
    EXPECT_EQ(List().SelectedRow(), &List().Row(0));
    List().StandIn(nullptr);
}

TEST_F(ChoiceEditorTest, ShowsAClickedRow) {
    Combo().UserSelect(Green);
    EXPECT_TRUE(IsEnabled("cmdTest"));
    Select(1);
    EXPECT_EQ(Value("txtTest"), "Wall");
    EXPECT_EQ(Combo().SelectedText(), "Unknown!");
    EXPECT_FALSE(IsEnabled("cmdTest"));
}

TEST_F(ChoiceEditorTest, ShowsNothingOfAListWithoutRowsButFocusesIt) {
    List().Clear();
    view.editor.ClearEdit();
    program.desktop.events.clear();
    view.editor.ShowRows();
    EXPECT_EQ(Value("txtTest"), "");
    EXPECT_EQ(Combo().Selected(), ComboBox::NoSelection);
    EXPECT_FALSE(IsEnabled("cmdTest"));
    EXPECT_EQ(program.desktop.events, std::vector<std::string>{"focus lstvTest"});
}

TEST_F(ChoiceEditorTest, OffersToApplyAnotherChoiceAndKeepsOfferingTheOwn) {
    Combo().UserSelect(0);
    EXPECT_FALSE(IsEnabled("cmdTest"));
    Combo().UserSelect(Green);
    EXPECT_TRUE(IsEnabled("cmdTest"));
    Combo().UserSelect(0);
    EXPECT_TRUE(IsEnabled("cmdTest"));
}

TEST_F(ChoiceEditorTest, NeverOffersToApplyTheUnknownOne) {
    Combo().UserSelect(Green);
    Combo().UserSelect(Unknown);
    EXPECT_FALSE(IsEnabled("cmdTest"));
    Select(1);
    Combo().UserSelect(Unknown);
    EXPECT_FALSE(IsEnabled("cmdTest"));
    Combo().UserSelect(0);
    EXPECT_TRUE(IsEnabled("cmdTest"));
}

TEST_F(ChoiceEditorTest, OffersNothingWithoutASelectedRow) {
    Combo().UserSelect(Green);
    List().UserSelect(nullptr);
    Combo().UserSelect(Green);
    EXPECT_FALSE(IsEnabled("cmdTest"));
}

TEST_F(ChoiceEditorTest, OffersNothingWhileNoSettingIsShown) {
    view.editor.ClearEdit();
    Combo().UserSelect(Green);
    EXPECT_FALSE(IsEnabled("cmdTest"));
}

TEST_F(ChoiceEditorTest, AsksThenStoresThenShowsTheChoice) {
    Combo().UserSelect(Green);
    Answer(MessageAnswer::Yes);
    EXPECT_TRUE(Click("cmdTest"));
    EXPECT_EQ(Told().size(), 1u);
    ExpectTold("Repaint: Door?", MessageIcon::Question, MessageButtons::YesNo);
    EXPECT_EQ(view.stored, (std::vector<std::pair<std::string, int>>{{"A", Green}}));
    EXPECT_EQ(List().Row(0).Text(1), "Green");
    EXPECT_TRUE(IsEnabled("cmdTest"));
}

TEST_F(ChoiceEditorTest, StoresNothingOnANo) {
    Combo().UserSelect(Green);
    Answer(MessageAnswer::No);
    Click("cmdTest");
    EXPECT_EQ(view.stored, nothing);
    EXPECT_EQ(List().Row(0).Text(1), "Red");
}

TEST_F(ChoiceEditorTest, LeavesTheRowAsItWasWhereStoringFails) {
    view.storing = false;
    Combo().UserSelect(Green);
    Answer(MessageAnswer::Yes);
    Click("cmdTest");
    EXPECT_EQ(List().Row(0).Text(1), "Red");
    EXPECT_EQ(Told().size(), 1u);
}

TEST_F(ChoiceEditorTest, StoresTheRowsOwnChoiceAgainWhenAskedTo) {
    Combo().UserSelect(Green);
    Combo().UserSelect(0);
    Answer(MessageAnswer::Yes);
    Click("cmdTest");
    EXPECT_EQ(view.stored, (std::vector<std::pair<std::string, int>>{{"A", 0}}));
}

TEST_F(ChoiceEditorTest, RefusesNoChoiceAndTheUnknownOne) {
    const std::pair<int, const char*> refused[] = {{ComboBox::NoSelection, "Pick one first."},
                                                   {Unknown, "Not that one."}};
    for (const auto& [position, message] : refused) {
        Combo().Select(position);
        page.Run("cmdTest_Click");
        ExpectTold(message, MessageIcon::Information);
        EXPECT_EQ(program.desktop.events.back(), "focus cmbTest");
    }
    EXPECT_EQ(Told().size(), 2u);
    EXPECT_EQ(view.stored, nothing);
}

TEST_F(ChoiceEditorTest, DoesNothingWithoutASelectedRow) {
    Combo().UserSelect(Green);
    List().UserSelect(nullptr);
    EXPECT_TRUE(Click("cmdTest"));
    EXPECT_EQ(Told(), std::vector<std::string>());
    EXPECT_EQ(view.stored, nothing);
}

}  // namespace
}  // namespace velkarix
