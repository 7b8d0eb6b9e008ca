// Pages that are loaded in the main window without being shown, and pages that go from it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shell/frmMain.h"
#include "tests/machine/TestProgram.h"

namespace velkarix {
namespace {

using Events = std::vector<std::string>;

class MainFormPages : public testing::Test {
  protected:
    MainFormPages() {
        program.Start();
        program.desktop.events.clear();
    }
    frmMain& Main() { return static_cast<frmMain&>(*program.application.forms.Loaded("frmMain")); }
    Form* Loaded(const char* page) { return program.application.forms.Loaded(page); }
    bool Pressed(const char* button) { return program.Get<Button>("frmMain", button).Pressed(); }
    void Click(const char* button) { program.Get<Button>("frmMain", button).Raise("Click"); }

    TestProgram program;
};

TEST_F(MainFormPages, LoadsAPageWithoutShowingIt) {
    const Form* page = Main().LoadPage("frmIE");
    EXPECT_NE(page, nullptr);
    EXPECT_EQ(Loaded("frmIE"), page);
    EXPECT_EQ(program.desktop.events, (Events{"create frmIE in picPage"}));
    EXPECT_TRUE(Pressed("cmdProcess"));
    EXPECT_FALSE(Pressed("cmdIE"));
}

TEST_F(MainFormPages, TakesAPageThatIsLoaded) {
    EXPECT_EQ(Main().LoadPage("frmProcess"), Loaded("frmProcess"));
    EXPECT_TRUE(program.desktop.events.empty());
}

TEST_F(MainFormPages, KnowsNoPageThatIsNotDefined) {
    EXPECT_EQ(Main().LoadPage("frmNone"), nullptr);
}

TEST_F(MainFormPages, ShowsALoadedPageWithoutLoadingItAgain) {
    const Form* page = Main().LoadPage("frmIE");
    program.desktop.events.clear();
    Click("cmdIE");
    EXPECT_EQ(Loaded("frmIE"), page);
    EXPECT_EQ(program.desktop.events,
              (Events{"destroy frmProcess", "show frmIE", "focus lstvBHO"}));
}

TEST_F(MainFormPages, UnloadsAPageBehindTheOneOnView) {
    Main().LoadPage("frmIE");
    Main().UnloadPage("frmIE");
    EXPECT_EQ(Loaded("frmIE"), nullptr);
    EXPECT_TRUE(Pressed("cmdProcess"));
    program.desktop.events.clear();
    Click("cmdProcess");
    EXPECT_TRUE(program.desktop.events.empty());
}

TEST_F(MainFormPages, LeavesAnEmptyPlaceForAPageOnViewUntilOneIsOpened) {
    Main().UnloadPage("frmProcess");
    EXPECT_FALSE(Pressed("cmdProcess"));
    program.desktop.events.clear();
    Click("cmdProcess");
    EXPECT_EQ(program.desktop.events,
              (Events{"create frmProcess in picPage", "show frmProcess", "focus lstvProcess"}));
    EXPECT_TRUE(Pressed("cmdProcess"));
    Main().UnloadPage("frmProcess");
    Click("cmdIE");
    EXPECT_NE(Loaded("frmIE"), nullptr);
    EXPECT_TRUE(Pressed("cmdIE"));
    EXPECT_FALSE(Pressed("cmdProcess"));
}

}  // namespace
}  // namespace velkarix
