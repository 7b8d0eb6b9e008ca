// What holds for every form of the program.
#include "DefineForms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "tests/forms/LayoutLint.h"
#include "tests/machine/TestProgram.h"

namespace velkarix {
namespace {

class EveryForm : public testing::TestWithParam<const char*> {
  protected:
    // Runs `look` on the loaded form.
    void Look(const std::function<void(Form&)>& look) {
        program.Start();
        const std::string name = GetParam();
        Form* main = program.application.forms.Loaded("frmMain");
        if (name == "frmMain") return look(*main);
        program.desktop.onModal = look;
        program.application.forms.ShowModal(name, *main);
        if (Form* page = program.application.forms.Loaded(name)) look(*page);
    }
    TestProgram program;
};

TEST_P(EveryForm, HasANameAndACaption) {
    int looked = 0;
    Look([&](Form& form) {
        ++looked;
        EXPECT_EQ(form.Name(), GetParam());
        EXPECT_NE(form.Caption(), "");
    });
    EXPECT_EQ(looked, 1);
}

TEST_P(EveryForm, NamesItsControlsUniquely) {
    Look([](Form& form) {
        std::set<std::string> names;
        for (const Control* control : form.Controls()) {
            EXPECT_TRUE(names.insert(control->Name()).second) << control->Name();
        }
        EXPECT_FALSE(names.empty());
    });
}

// A label is its words, which may be a fact that isn't there.
TEST_P(EveryForm, GivesItsControlsWordsForAScreenReader) {
    Look([](Form& form) {
        for (const Control* control : form.Controls()) {
            const bool isLabel = dynamic_cast<const Label*>(control) != nullptr;
            EXPECT_TRUE(isLabel || !control->Text().empty()) << control->Name();
        }
    });
}

// What a screen reader says of a control, with what it stands in.
std::string SpokenName(const Control& control) {
    const std::string around = control.Around() != nullptr ? SpokenName(*control.Around()) : "";
    return around + "/" + control.Text();
}

TEST_P(EveryForm, CallsNoTwoOfItsControlsTheSame) {
    Look([](Form& form) {
        std::set<std::string> names;
        const Control* before = nullptr;
        for (const Control* control : form.Controls()) {
            if (!TakesFocus(*control)) continue;
            std::string name = SpokenName(*control);
            // A button behind a box does something to that box, which was spoken of just before.
            if (dynamic_cast<const TextBox*>(before) != nullptr) name += ", " + before->Text();
            EXPECT_TRUE(names.insert(name).second) << name;
            before = control;
        }
    });
}

// Forms whose tab order isn't that of reading.
struct OtherOrder {
    const char* form;
    std::vector<std::string> begins;  // what stands first in the order of reading and comes last
};
const OtherOrder OtherOrders[] = {
    // Who comes to the window wants a page: the links of the banner are behind all of them.
    {"frmMain", {"lblHelp", "lblAbout"}},
};

TEST_P(EveryForm, HasATabOrderThatIsTheOrderOfReading) {
    Look([](Form& form) {
        std::vector<std::string> expected;
        AddReadingOrder(form.FormLayout(), expected);
        for (const OtherOrder& other : OtherOrders) {
            if (form.Name() != other.form) continue;
            const auto count = static_cast<std::ptrdiff_t>(other.begins.size());
            ASSERT_TRUE(std::equal(other.begins.begin(), other.begins.end(), expected.begin()));
            std::rotate(expected.begin(), expected.begin() + count, expected.end());
        }
        EXPECT_EQ(TabOrder(form), expected);
    });
}

TEST_P(EveryForm, PlacesEveryControlOnceInsideTheForm) {
    Look([](Form& form) {
        PlainMetrics metrics;
        std::multiset<const Control*> placed;
        for (const Placement& each : Arrange(form.FormLayout(), {0, 0, 800, 600}, metrics)) {
            placed.insert(each.control);
        }
        for (const Control* control : form.Controls()) {
            EXPECT_EQ(placed.count(control), 1u) << control->Name();
        }
        EXPECT_EQ(placed.size(), form.Controls().size());
        ExpectInside(form);
    });
}

TEST_P(EveryForm, LetsNoTwoControlsOverlap) {
    Look(ExpectNoOverlap);
}

TEST_P(EveryForm, HasAHandlerForEachOfItsKeys) {
    Look([](Form& form) {
        for (const Accelerator& key : form.Accelerators()) {
            EXPECT_NE(key.handler.empty(), key.command == nullptr);
            if (key.command) continue;
            const std::string control = key.handler.substr(0, key.handler.rfind('_'));
            EXPECT_NE(form.Find(control), nullptr) << key.handler;
        }
    });
}

INSTANTIATE_TEST_SUITE_P(AllForms, EveryForm,
                         testing::Values("frmMain", "frmProcess", "frmIE", "frmStartup",
                                         "frmAddRemove", "frmOptions", "frmUtilities", "frmAbout",
                                         "frmviewInfo"));

}  // namespace
}  // namespace velkarix
