#include "startup/frmStartup.h"

#include "tests/forms/CountingView.h"
#include "tests/startup/StartupPage.h"

namespace velkarix {
namespace {

class StartupForm : public StartupPage {
  protected:
    // One item of the same name in each place, live and held: a sorted list keeps such rows in the
    // order that they were read in.
    void PutOneInEachPlace() {
        Machine().AddFile("C:\\a.exe");
        for (const RunKey& key : RunKeys) {
            for (const char* base : {LiveRun, HeldRun}) {
                Machine().SetValue(key.hive, std::string(base) + key.suffix, "a.lnk", "C:\\a.exe");
            }
        }
        for (const char* folder : {LiveLM, LiveCU, HeldLM, HeldCU}) {
            PutShortcut(Machine(), folder, "a.lnk", "C:\\a.exe");
        }
    }
    // "location, enabled" of rows in which live ones come before held ones.
    static RowTexts PlacesOf(const std::string& hive) {
        RowTexts places;
        for (const char* enabled : {"True", "False"}) {
            for (const char* suffix : {"", "Once", "OnceEx", "Services", "ServicesOnce"}) {
                places.push_back("a.lnk, " + hive + "\\Run" + suffix + ", " + enabled);
            }
        }
        return places;
    }
    static RowTexts FolderPlaces(const std::string& location) {
        return {"a.lnk, " + location + ", True", "a.lnk, " + location + ", False"};
    }
    static RowTexts Joined(const std::vector<RowTexts>& parts) {
        RowTexts all;
        for (const RowTexts& part : parts) all.insert(all.end(), part.begin(), part.end());
        return all;
    }
};

TEST_F(StartupForm, HasATreeOfThePlaces) {
    Open();
    struct Node {
        const char* key;
        const char* text;
        const char* parent;
        bool expanded;
    };
    const Node nodes[] = {
        {"All", "All Items", nullptr, true},         {"LM", "Local Machine", "All", true},
        {"HKLM", "Registry", "LM", false},           {"LMStartup", "Startup Folder", "LM", false},
        {"CU", "Current User", "All", true},         {"HKCU", "Registry", "CU", false},
        {"CUStartup", "Startup Folder", "CU", false}};
    ASSERT_EQ(Tree().Nodes().size(), std::size(nodes));
    for (std::size_t i = 0; i < std::size(nodes); ++i) {
        const TreeNode& node = *Tree().Nodes()[i];
        EXPECT_EQ(node.key, nodes[i].key);
        EXPECT_EQ(node.text, nodes[i].text);
        EXPECT_EQ(node.parent, nodes[i].parent ? Tree().Find(nodes[i].parent) : nullptr);
        EXPECT_EQ(node.expanded, nodes[i].expanded) << node.key;
        EXPECT_NE(node.picture, "");
    }
}

TEST_F(StartupForm, HasTheColumnsAndButtonsOfItsDesign) {
    Open();
    EXPECT_EQ(List().Columns(),
              (RowTexts{"Name", "Enabled", "Location", "Command", "File Name", "File Size [Kb]",
                        "Created On", "Company Name", "Prodcut Name", "Description", "Path"}));
    const std::pair<const char*, const char*> buttons[] = {
        {"cmdDisable", "Disable Checked Items"},
        {"cmdEnable", "Enable Checked Items"},
        {"cmdDelete", "Delete Selected item"},
        {"cmdViewInformation", "View Information"},
        {"cmdReport", "Generate Report"},
        {"cmdFolder", "Open Folder"},
        {"cmdRefresh", "Refresh"}};
    for (const auto& [name, caption] : buttons) {
        EXPECT_EQ(Page().Find(name)->Text(), caption);
        EXPECT_EQ(Page().Find(name)->SkinElement(), "button") << name;
    }
}

TEST_F(StartupForm, MakesTheHoldingFoldersThatAreMissing) {
    Machine().AddFolder(HeldLM);
    Open();
    EXPECT_TRUE(HasFile(HeldCU));
    EXPECT_EQ(Machine().Journal().ArgumentsOf("CreateDirectoryA"), (RowTexts{HeldCU}));
    LeaveAndComeBack();
    EXPECT_EQ(Machine().Journal().CountOf("CreateDirectoryA"), 1u);
}

TEST_F(StartupForm, ReadsNothingInARootFolderWhereTheProgramDoesNotKnowItsOwn) {
    PutShortcut(Machine(), "C:\\DLMStartup", "a.lnk", "C:\\a.exe");
    Machine().AddFile("C:\\a.exe");
    program.Start();
    Machine().FailAlways("GetModuleFileNameA");
    program.Get<Button>("frmMain", "cmdStartup").Raise("Click");
    EXPECT_EQ(Items(), RowTexts());
    EXPECT_FALSE(HasFile("C:\\DCUStartup"));
    Machine().FailAlways("GetModuleFileNameA", error::Success);
}

TEST_F(StartupForm, ShowsAllItemsAtFirstWithTheFirstOneSelected) {
    SetRun(Hive::LocalMachine, "b", "");
    SetRun(Hive::CurrentUser, "a", "");
    SetHeld(Hive::CurrentUser, "C", "");
    Open();
    EXPECT_EQ(Names(), (RowTexts{"a", "b", "C"}));
    EXPECT_EQ(List().SelectedRow(), &List().Row(0));
    EXPECT_TRUE(List().Sorted());
    EXPECT_EQ(List().SortKey(), 0u);
    EXPECT_EQ(List().Order(), SortOrder::Ascending);
    EXPECT_EQ(Tree().SelectedNode(), Tree().Find("All"));
    EXPECT_EQ(Caption(), "Startup Items (Current Selection: All Items)");
}

TEST_F(StartupForm, OpensOnAMachineThatStartsNothing) {
    for (const char* key : {ShellFoldersKey}) {
        Machine().registry.RemoveKey(Hive::LocalMachine, key);
        Machine().registry.RemoveKey(Hive::CurrentUser, key);
    }
    Open();
    EXPECT_EQ(List().RowCount(), 0u);
    EXPECT_EQ(List().SelectedRow(), nullptr);
    EXPECT_EQ(Messages(), RowTexts());
}

TEST_F(StartupForm, ReadsThePlacesOfEachNodeInTheirOrder) {
    PutOneInEachPlace();
    Open();
    const RowTexts machine = PlacesOf("HKLM");
    const RowTexts user = PlacesOf("HKCU");
    const RowTexts machineFolder = FolderPlaces("Startup LM");
    const RowTexts userFolder = FolderPlaces("Startup CU");
    EXPECT_EQ(Items(), Joined({machine, user, userFolder, machineFolder}));
    struct Node {
        const char* key;
        RowTexts items;
        const char* caption;
    };
    const Node nodes[] = {
        {"LM", Joined({machine, machineFolder}), "Local Machine"},
        {"HKLM", machine, "Local Machine Regitry"},
        {"LMStartup", machineFolder, "Local Machine Startup Folder"},
        {"CU", Joined({user, userFolder}), "Current User"},
        {"HKCU", user, "Current User Registry"},
        {"CUStartup", userFolder, "Current User Startup Folder"},
        {"All", Joined({machine, user, userFolder, machineFolder}), "All Items"},
    };
    for (const Node& node : nodes) {
        ClickNode(node.key);
        EXPECT_EQ(Items(), node.items) << node.key;
        EXPECT_EQ(Caption(),
                  std::string("Startup Items (Current Selection: ") + node.caption + ")");
    }
}

TEST_F(StartupForm, ReadsNothingAgainAtAnotherClickOnTheSameNode) {
    SetRun(Hive::LocalMachine, "a", "");
    Open();
    for (const char* key : {"All", "HKLM"}) {
        ClickNode(key);
        List().UserCheck(List().Row(0), true);
        SetRun(Hive::LocalMachine, std::string("of ") + key, "");
        const std::size_t rows = List().RowCount();
        Machine().Journal().Clear();
        ClickNode(key);
        EXPECT_EQ(Machine().Journal().Calls().size(), 0u);
        EXPECT_EQ(List().RowCount(), rows);
        EXPECT_TRUE(List().Row(0).Checked());
    }
}

TEST_F(StartupForm, FitsTheColumnsAtEachReading) {
    Open();
    CountingView view;
    List().AttachView(&view);
    ClickNode("HKLM");
    EXPECT_EQ(view.Times(Aspect::ColumnWidths), 1);
    Click("cmdRefresh");
    EXPECT_EQ(view.Times(Aspect::ColumnWidths), 2);
    List().AttachView(nullptr);
}

TEST_F(StartupForm, RefreshesTheNodeThatIsSelected) {
    Open();
    ClickNode("HKLM");
    SetRun(Hive::LocalMachine, "a", "");
    SetRun(Hive::CurrentUser, "b", "");
    Click("cmdRefresh");
    EXPECT_EQ(Names(), (RowTexts{"a"}));
    EXPECT_EQ(Caption(), "Startup Items (Current Selection: Local Machine Regitry)");
    EXPECT_TRUE(Page().RaiseKey({Key::F5}));
}

TEST_F(StartupForm, RefreshesAllItemsWhereNoNodeIsSelected) {
    Open();
    ClickNode("HKLM");
    Tree().Select(nullptr);
    SetRun(Hive::CurrentUser, "b", "");
    Click("cmdRefresh");
    EXPECT_EQ(Names(), (RowTexts{"b"}));
    EXPECT_EQ(Tree().SelectedNode(), Tree().Find("All"));
    EXPECT_EQ(Caption(), "Startup Items (Current Selection: All Items)");
}

TEST_F(StartupForm, ReadsAnewWhenItIsEnteredAgain) {
    Open();
    ClickNode("HKLM");
    SetRun(Hive::CurrentUser, "b", "");
    LeaveAndComeBack();
    EXPECT_EQ(Names(), (RowTexts{"b"}));
    EXPECT_EQ(Tree().SelectedNode(), Tree().Find("All"));
}

TEST_F(StartupForm, ReportsByKeyAndDeletesByKeyWhereTheListHasTheFocus) {
    SetRun(Hive::CurrentUser, "a", "");
    Open();
    EXPECT_TRUE(Page().RaiseKey({Key::P, true}));
    EXPECT_EQ(program.desktop.saveRequests.size(), 1u);
    EXPECT_FALSE(Page().RaiseKey({Key::Delete}, Page().Find("tvwStartup")));
    program.desktop.answers = {MessageAnswer::Yes};
    EXPECT_TRUE(Page().RaiseKey({Key::Delete}, &List()));
    EXPECT_EQ(Names(), RowTexts{});
}

}  // namespace
}  // namespace velkarix
