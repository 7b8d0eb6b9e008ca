#include "forms/FormSet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/machine/RecordingDesktop.h"

namespace velkarix {
namespace {

using Events = std::vector<std::string>;

class LoggedForm : public Form {
  public:
    LoggedForm(const std::string& name, FormKind kind, Events& events)
        : Form(name, name, kind),
          cmdGo("cmdGo", "Go", [this] { log.push_back("go"); }),
          log(events) {
        SetControls({&cmdGo});
        SetAccelerators({{{Key::F5}, "cmdGo_Click"}});
    }
    void Form_Load() override { log.push_back("load " + Name() + " " + property); }
    void Form_Unload() override { log.push_back("unload " + Name()); }

    std::string property;
    Button cmdGo;
    Events& log;
};

class FormSetTest : public testing::Test {
  protected:
    FormSetTest() {
        for (const char* name : {"frmMain", "frmA", "frmB"}) {
            forms.Define(name, [this, name] {
                return std::make_unique<LoggedForm>(name, FormKind::Page, desktop.events);
            });
        }
    }
    RecordingDesktop desktop;
    PageHost host{"picPage", ""};
    FormSet forms{desktop};
};

TEST_F(FormSetTest, LoadsAFormWithItsWindowThereAndShowsItAfterwards) {
    EXPECT_NE(forms.Show("frmA", &host), nullptr);
    EXPECT_EQ(desktop.events, (Events{"create frmA in picPage", "load frmA ", "show frmA"}));
}

TEST_F(FormSetTest, ShowsALoadedFormWithoutLoadingItAgain) {
    Form* first = forms.Show("frmA");
    desktop.events.clear();
    EXPECT_EQ(forms.Show("frmA"), first);
    EXPECT_EQ(desktop.events, (Events{"show frmA"}));
}

TEST_F(FormSetTest, LoadsAFormWithoutShowingIt) {
    Form* first = forms.Load("frmA", &host);
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(forms.Load("frmA", &host), first);
    EXPECT_EQ(forms.Load("frmC"), nullptr);
    EXPECT_EQ(desktop.events, (Events{"create frmA in picPage", "load frmA "}));
}

TEST_F(FormSetTest, LoadsAnUnloadedFormAfresh) {
    forms.Show("frmA");
    EXPECT_TRUE(forms.Unload("frmA"));
    EXPECT_EQ(forms.Loaded("frmA"), nullptr);
    desktop.events.clear();
    forms.Show("frmA");
    EXPECT_EQ(desktop.events, (Events{"create frmA", "load frmA ", "show frmA"}));
}

TEST_F(FormSetTest, KnowsNoFormThatIsNotDefined) {
    EXPECT_EQ(forms.Show("frmC"), nullptr);
    EXPECT_FALSE(forms.Unload("frmC"));
    EXPECT_TRUE(desktop.events.empty());
}

TEST_F(FormSetTest, UnloadsTheMainFormLast) {
    forms.Show("frmMain");
    forms.Show("frmB");
    forms.Show("frmA");
    desktop.events.clear();
    forms.UnloadAll("frmMain");
    EXPECT_EQ(desktop.events, (Events{"unload frmB", "destroy frmB", "unload frmA", "destroy frmA",
                                      "unload frmMain", "destroy frmMain"}));
}

TEST_F(FormSetTest, PreparesAModalFormBeforeItsLoadAndUnloadsItAfterwards) {
    Form* main = forms.Show("frmMain");
    desktop.events.clear();
    forms.ShowModal("frmA", *main,
                    [](Form& form) { static_cast<LoggedForm&>(form).property = "prepared"; });
    EXPECT_EQ(desktop.events, (Events{"create frmA", "load frmA prepared",
                                      "modal frmA above frmMain", "unload frmA", "destroy frmA"}));
    EXPECT_EQ(forms.Loaded("frmA"), nullptr);
}

TEST_F(FormSetTest, DoesNotNestAModalFormInItself) {
    Form* main = forms.Show("frmMain");
    desktop.onModal = [&](Form&) { forms.ShowModal("frmA", *main); };
    forms.ShowModal("frmA", *main);
    EXPECT_EQ(std::count(desktop.events.begin(), desktop.events.end(), "create frmA"), 1);
}

TEST_F(FormSetTest, UnloadsWhatIsLeftWhenItGoes) {
    {
        FormSet inner(desktop);
        inner.Define("frmC", [this] {
            return std::make_unique<LoggedForm>("frmC", FormKind::Page, desktop.events);
        });
        inner.Show("frmC");
        desktop.events.clear();
    }
    EXPECT_EQ(desktop.events, (Events{"unload frmC", "destroy frmC"}));
}

TEST_F(FormSetTest, RunsHandlersByTheirName) {
    Form& form = *forms.Show("frmA");
    desktop.events.clear();
    EXPECT_TRUE(form.Run("cmdGo_Click"));
    EXPECT_FALSE(form.Run("cmdGo_DblClick"));
    EXPECT_FALSE(form.Run("cmdGone_Click"));
    EXPECT_FALSE(form.Run(""));
    EXPECT_EQ(desktop.events, (Events{"go"}));
}

TEST_F(FormSetTest, RunsTheHandlerOfAKeyUnlessItsControlIsDisabled) {
    auto& form = static_cast<LoggedForm&>(*forms.Show("frmA"));
    desktop.events.clear();
    EXPECT_TRUE(form.RaiseKey({Key::F5}));
    EXPECT_FALSE(form.RaiseKey({Key::F5, true}));
    EXPECT_FALSE(form.RaiseKey({Key::Digit1}));
    form.cmdGo.SetEnabled(false);
    EXPECT_FALSE(form.RaiseKey({Key::F5}));
    EXPECT_EQ(desktop.events, (Events{"go"}));
}

}  // namespace
}  // namespace velkarix
