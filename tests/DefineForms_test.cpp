// What holds for every form of the program.
#include "DefineForms.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>

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

TEST_P(EveryForm, GivesItsControlsWordsForAScreenReader) {
    Look([](Form& form) {
        for (const Control* control : form.Controls()) {
            const bool needsWords = dynamic_cast<const Button*>(control) != nullptr ||
                                    dynamic_cast<const ListView*>(control) != nullptr ||
                                    dynamic_cast<const TextBox*>(control) != nullptr ||
                                    dynamic_cast<const OptionButton*>(control) != nullptr ||
                                    dynamic_cast<const PictureBox*>(control) != nullptr;
            EXPECT_TRUE(!needsWords || !control->Text().empty()) << control->Name();
        }
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
