// What holds for every form of the program.
#include "DefineForms.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>

#include "forms/ControlVisitor.h"
#include "tests/machine/TestProgram.h"

namespace velkarix {
namespace {

// Sizes near those of a real font: eight pixels a character.
class PlainMetrics : public LayoutMetrics {
  public:
    Size PreferredSize(Control& control) override {
        if (auto* box = dynamic_cast<TextBox*>(&control)) {
            return {box->BoxShape().widthInCharacters * 8, box->BoxShape().lines * 20};
        }
        if (dynamic_cast<ListView*>(&control) != nullptr) return {300, 100};
        return {static_cast<int>(control.Text().size()) * 8, 20};
    }
    Insets GroupInsets(Control&) override { return {8, 20, 8, 8}; }
    int Gap() override { return 6; }
};

bool IsInside(const Rect& inner, const Rect& outer) {
    return inner.x >= outer.x && inner.y >= outer.y &&
           inner.x + inner.width <= outer.x + outer.width &&
           inner.y + inner.height <= outer.y + outer.height;
}

bool Overlap(const Rect& a, const Rect& b) {
    return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height &&
           b.y < a.y + a.height;
}

bool IsGroup(const Control* control) {
    return dynamic_cast<const Frame*>(control) != nullptr ||
           dynamic_cast<const Panel*>(control) != nullptr;
}

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
        const Size least = MinimumSize(form.FormLayout(), metrics);
        const Rect all{0, 0, least.width, least.height};
        std::multiset<const Control*> placed;
        for (const Placement& each : Arrange(form.FormLayout(), all, metrics)) {
            placed.insert(each.control);
            EXPECT_TRUE(IsInside(each.area, all)) << each.control->Name();
        }
        for (const Control* control : form.Controls()) {
            EXPECT_EQ(placed.count(control), 1u) << control->Name();
        }
        EXPECT_EQ(placed.size(), form.Controls().size());
    });
}

TEST_P(EveryForm, LetsNoTwoControlsOverlap) {
    Look([](Form& form) {
        PlainMetrics metrics;
        const auto placements = Arrange(form.FormLayout(), {0, 0, 800, 600}, metrics);
        for (std::size_t i = 0; i < placements.size(); ++i) {
            for (std::size_t j = i + 1; j < placements.size(); ++j) {
                if (IsGroup(placements[i].control)) continue;
                if (!placements[i].control->Shown() || !placements[j].control->Shown()) continue;
                EXPECT_FALSE(Overlap(placements[i].area, placements[j].area))
                    << placements[i].control->Name() << placements[j].control->Name();
            }
        }
    });
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
