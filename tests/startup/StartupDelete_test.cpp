// Deleting startup items for good: what is kept of them first, and what fails.
#include "tests/machine/RegistryFileMerge.h"
#include "tests/startup/StartupPage.h"

namespace velkarix {
namespace {

class StartupDelete : public StartupPage {
  protected:
    StartupDelete() { Machine().AddFile("C:\\a.exe"); }
    // Deletes the row of that name and answers the question.
    void Delete(const std::string& name, MessageAnswer answer = MessageAnswer::Yes) {
        Select(name);
        program.desktop.answers = {answer};
        Machine().Journal().Clear();
        Click("cmdDelete");
    }
    static std::string Question(const std::string& name) {
        return "Are you sure you want to delete the selected item: \r\n\r\n" + name;
    }
    std::string KeptRegistryText() { return TextOf(std::string(KeptStem) + "Startup.reg"); }
};

TEST_F(StartupDelete, AsksWithTheRowsText) {
    SetRun(Hive::LocalMachine, "Agent", "C:\\a.exe");
    Open();
    Delete("Agent", MessageAnswer::No);
    EXPECT_EQ(Messages(), (RowTexts{Question("Agent")}));
    EXPECT_EQ(program.desktop.messages.at(0).icon, MessageIcon::Question);
    EXPECT_EQ(program.desktop.messages.at(0).buttons, MessageButtons::YesNo);
    EXPECT_EQ(program.desktop.messages.at(0).title, "Velkarix");
    EXPECT_EQ(Machine().Journal().Calls().size(), 0u);
    EXPECT_EQ(List().SelectedRow(), RowNamed("Agent"));
}

TEST_F(StartupDelete, DoesNothingWithoutASelectedRow) {
    SetRun(Hive::LocalMachine, "Agent", "");
    Open();
    TickAll();
    List().UserSelect(nullptr);
    Machine().Journal().Clear();
    Click("cmdDelete");
    EXPECT_EQ(Messages(), RowTexts());
    EXPECT_EQ(Machine().Journal().Calls().size(), 0u);
}

TEST_F(StartupDelete, KeepsAValueInARegistryFileBeforeItIsRemoved) {
    for (const RunKey& key : RunKeys) {
        for (const char* base : {LiveRun, HeldRun}) {
            SCOPED_TRACE(std::string(key.location) + " " + base);
            TestProgram other;
            const std::string path = std::string(base) + key.suffix;
            const Bytes data = {'%', 'a', '%', 0};
            other.machine.registry.SetRaw(key.hive, path, "It", registryType::ExpandSz, data);
            other.machine.SetValue(key.hive, path, "Other", "stays");
            other.Start();
            other.application.forms.Show("frmStartup");
            other.desktop.answers = {MessageAnswer::Yes};
            other.machine.Journal().Clear();
            Form& page = *other.application.forms.Loaded("frmStartup");
            page.Run("cmdDelete_Click");
            MemoryHives kept;
            const std::string text = other.InstalledText("Backup\\6_1_153_12_0_0_Startup.reg");
            EXPECT_EQ(text.substr(0, 12), "REGEDIT4\r\n\r\n");
            EXPECT_TRUE(MergeRegistryFile(kept, text));
            EXPECT_EQ(kept.ValueAt(key.hive, path, "It"),
                      (MemoryValue{"It", registryType::ExpandSz, data}));
            EXPECT_EQ(kept.ValueNamesOf(key.hive, path).size(), 1u);
            EXPECT_FALSE(other.machine.registry.ValueAt(key.hive, path, "It"));
            EXPECT_TRUE(other.machine.registry.ValueAt(key.hive, path, "Other"));
            auto& list = other.Get<ListView>("frmStartup", "lstvStartup");
            ASSERT_EQ(list.RowCount(), 1u);
            EXPECT_EQ(list.Row(0).Text(0), "Other");
        }
    }
}

TEST_F(StartupDelete, TakesTheOneOfTwoNamesakesThatIsSelected) {
    SetRun(Hive::LocalMachine, "a", "");
    SetRun(Hive::CurrentUser, "a", "");
    SetHeld(Hive::CurrentUser, "a", "");
    Open();
    List().UserSelect(&List().Row(2));
    ASSERT_EQ(Items()[2], "a, HKCU\\Run, False");
    program.desktop.answers = {MessageAnswer::Yes};
    Click("cmdDelete");
    EXPECT_EQ(Items(), (RowTexts{"a, HKLM\\Run, True", "a, HKCU\\Run, True"}));
}

TEST_F(StartupDelete, CopiesAShortcutBeforeItIsRemoved) {
    struct {
        const char* folder;
        const char* name;
    } const shortcuts[] = {
        {LiveLM, "a.lnk"}, {LiveCU, "b.lnk"}, {HeldLM, "c.lnk"}, {HeldCU, "d.lnk"}};
    for (const auto& each : shortcuts) {
        PutShortcut(Machine(), each.folder, each.name, "C:\\a.exe", each.name);
    }
    Open();
    for (const auto& each : shortcuts) {
        const std::string path = std::string(each.folder) + "\\" + each.name;
        const std::string copy = KeptStem + std::string(each.name);
        const std::string content = TextOf(path);
        Delete(each.name);
        EXPECT_FALSE(HasFile(path));
        EXPECT_EQ(TextOf(copy), content);
        EXPECT_EQ(RowNamed(each.name), nullptr);
        const RowTexts changes = Changes();
        ASSERT_GE(changes.size(), 2u);
        EXPECT_EQ(changes.end()[-2], "CopyFileA " + path + ", " + copy);
        EXPECT_EQ(changes.end()[-1], "DeleteFileA " + path);
    }
    EXPECT_EQ(List().RowCount(), 0u);
    EXPECT_EQ(Messages().size(), 4u);
    EXPECT_TRUE(HasFile("C:\\a.exe"));
}

TEST_F(StartupDelete, RemovesNothingThatCanNotBeKept) {
    SetRun(Hive::LocalMachine, "Agent", "C:\\a.exe");
    PutShortcut(Machine(), LiveCU, "a.lnk", "C:\\a.exe");
    Machine().AddFile("C:\\Velkarix\\Backup").Content("in its place");
    Open();
    const RowTexts before = Items();
    for (const char* name : {"Agent", "a.lnk"}) {
        program.desktop.messages.clear();
        Delete(name);
        ASSERT_EQ(Messages().size(), 2u) << name;
        EXPECT_EQ(Messages().at(1).find("Error Occurred backupItem: \r\n"), 0u) << Messages().at(1);
        EXPECT_EQ(program.desktop.messages.at(1).icon, MessageIcon::Information);
    }
    EXPECT_EQ(Items(), before);
    EXPECT_EQ(Machine().registry.TextAt(Hive::LocalMachine, LiveRun, "Agent"), "C:\\a.exe");
}

TEST_F(StartupDelete, RemovesNoShortcutWhoseCopyIsShort) {
    PutShortcut(Machine(), LiveCU, "a.lnk", "C:\\a.exe");
    Open();
    Machine().disk.SetFreeBytes(20);
    Delete("a.lnk");
    EXPECT_EQ(Messages().at(1), "Error Occurred backupItem: \r\n" + ErrorText(error::DiskFull));
    EXPECT_EQ(Items(), (RowTexts{"a.lnk, Startup CU, True"}));
    EXPECT_FALSE(HasFile(std::string(KeptStem) + "a.lnk"));
}

TEST_F(StartupDelete, TellsWhatCanNotBeRemovedAndShowsItStill) {
    SetRun(Hive::LocalMachine, "Agent", "C:\\a.exe");
    PutShortcut(Machine(), LiveCU, "a.lnk", "C:\\a.exe").ReadOnly();
    Open();
    Delete("a.lnk");
    EXPECT_EQ(Messages().at(1),
              "Error Occurred Delete Startup: \r\n" + ErrorText(error::AccessDenied));
    Machine().FailNext("RegDeleteValueA");
    Delete("Agent");
    EXPECT_EQ(Messages().at(3).find("Following Key Value Could not be deleted: "), 0u);
    EXPECT_EQ(Items(), (RowTexts{"a.lnk, Startup CU, True", "Agent, HKLM\\Run, True"}));
}

TEST_F(StartupDelete, RefreshesWhereTheItemIsGoneAlready) {
    SetRun(Hive::LocalMachine, "Agent", "");
    Open();
    Machine().registry.RemoveValue(Hive::LocalMachine, LiveRun, "Agent");
    Delete("Agent");
    EXPECT_EQ(Messages(), (RowTexts{Question("Agent")}));
    EXPECT_EQ(List().RowCount(), 0u);
    EXPECT_EQ(KeptRegistryText(), "(no file)");
}

}  // namespace
}  // namespace velkarix
