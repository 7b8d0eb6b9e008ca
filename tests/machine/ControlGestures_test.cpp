#include "tests/machine/ControlGestures.h"

#include <gtest/gtest.h>

#include "forms/ComboBox.h"
#include "forms/Controls.h"
#include "forms/TabStrip.h"
#include "forms/TreeView.h"

namespace velkarix {
namespace {

using Texts = std::vector<std::string>;

std::string TypeMore(const std::string& value) {
    return value + "x";
}

// Makes each gesture in each of its ways; tells what was made, and after it what was heard of it.
class ControlGestures : public testing::Test {
  protected:
    Texts Make(Control& control) {
        heard.clear();
        for (const auto& [event, ways] : GesturesOf(control, TypeMore)) {
            for (const auto& way : ways) {
                heard.push_back(event);
                if (!way(control)) heard.push_back("no handler");
            }
        }
        return heard;
    }
    Handler Hear(const std::string& word) {
        return [this, word] { heard.push_back(word); };
    }

    Texts heard;
};

TEST_F(ControlGestures, ClickEveryRowColumnAndBoxOfAList) {
    ListView list("lstvA", "A", {"Name", "Number"},
                  {[this](ListRow& row) { heard.push_back(row.Text(0)); },
                   [this](int column) { heard.push_back(std::to_string(column)); }, Hear("double"),
                   [this](MouseButton button) {
                       heard.push_back(button == MouseButton::Left ? "left" : "right");
                   }});
    list.Add("A", "a", 1);
    list.Add("B", "b", 1).SetChecked(true);
    EXPECT_EQ(Make(list), (Texts{"ItemClick", "a", "ItemClick", "b", "ItemClick", "ItemCheck",
                                 "ItemCheck", "ColumnClick", "1", "ColumnClick", "2", "DblClick",
                                 "double", "MouseUp", "left", "MouseUp", "right"}));
    EXPECT_EQ(list.SelectedRow(), nullptr);
    EXPECT_TRUE(list.Row(0).Checked());
    EXPECT_FALSE(list.Row(1).Checked());
}

TEST_F(ControlGestures, TickNoRowOfAListWithoutBoxes) {
    ListView list("lstvA", "A", {"Name"}, {});
    list.Add("A", "a", 1);
    list.SetCheckBoxes(false);
    TickAllRows(list);
    Make(list);
    EXPECT_FALSE(list.Row(0).Checked());
    list.SetCheckBoxes(true);
    TickAllRows(list);
    EXPECT_TRUE(list.Row(0).Checked());
}

TEST_F(ControlGestures, PassOverRowsThatAreGone) {
    ListView list("lstvA", "A", {"Name"}, {});
    list.Add("A", "a", 1);
    const std::vector<ControlGesture> gestures = GesturesOf(list, TypeMore);
    list.Clear();
    for (const ControlGesture& gesture : gestures) {
        for (const auto& way : gesture.ways) EXPECT_TRUE(way(list)) << gesture.event;
    }
    EXPECT_EQ(list.SelectedRow(), nullptr);
}

TEST_F(ControlGestures, ChooseEachEntryTabAndNode) {
    ComboBox combo("cmbA", "A", {"a", "b"}, [&] { heard.push_back(combo.SelectedText()); });
    EXPECT_EQ(Make(combo), (Texts{"Click", "a", "Click", "b"}));
    TabStrip tabs("tbA", "A", {"a", "b"},
                  [&] { heard.push_back(std::to_string(tabs.Selected())); });
    EXPECT_EQ(Make(tabs), (Texts{"Click", "1", "Click", "2"}));
    TreeView tree("tvwA", "A", [this](const TreeNode& node) { heard.push_back(node.key); });
    EXPECT_EQ(Make(tree), Texts());
    tree.Add("a", "A", "");
    tree.Add("b", "B", "", "a");
    EXPECT_EQ(Make(tree), (Texts{"NodeClick", "a", "NodeClick", "b"}));
}

TEST_F(ControlGestures, TypeIntoABoxThatTakesText) {
    TextBox box("txtA", "A", {}, Hear("changed"));
    box.SetValue("a");
    EXPECT_EQ(Make(box), (Texts{"Change", "changed"}));
    EXPECT_EQ(box.Value(), "ax");
    TextBox fixed("txtB", "B", {40, 1, true});
    EXPECT_EQ(Make(fixed), Texts());
}

TEST_F(ControlGestures, ReachADisabledButtonAndTellThatNobodyListens) {
    Button button("cmdA", "A", Hear("pressed"));
    button.SetEnabled(false);
    EXPECT_EQ(Make(button), (Texts{"Click", "pressed"}));
    Button deaf("cmdB", "B", {});
    EXPECT_EQ(Make(deaf), (Texts{"Click", "no handler"}));
    ColorBox color("picA", "A", Hear("asked"));
    EXPECT_EQ(Make(color), (Texts{"DblClick", "asked"}));
}

TEST_F(ControlGestures, TurnACheckBoxRoundWhoeverListens) {
    CheckBox box("chkA", "A", {});
    EXPECT_EQ(Make(box), Texts{"Click"});
    EXPECT_TRUE(box.Checked());
    CheckBox stubborn("chkB", "B", [&] { stubborn.SetChecked(false); });
    EXPECT_EQ(Make(stubborn), (Texts{"Click", "no handler"}));
}

TEST_F(ControlGestures, DoNothingWithWhatOnlyShowsSomething) {
    Label label("lblA", "A");
    EXPECT_EQ(Make(label), Texts());
}

}  // namespace
}  // namespace velkarix
