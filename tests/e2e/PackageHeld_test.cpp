// What is switched off when the program is uninstalled: it stays where it is, and the user is told
// before.
#include <filesystem>

#include "PackageTest.h"
#include "Program.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

namespace fs = std::filesystem;

const std::string Class = "{0B100002-52C4-4D18-9F3A-6E1C2A7750B0}";

void Hold(HKEY hive, const std::string& list, const std::string& name) {
    WriteValue(hive, HoldingKey + "\\Disabled\\" + list, name, {REG_SZ, {'a', 0}});
}

// What is left of a list whose last item was switched on again.
void HoldNothing(HKEY hive, const std::string& list) {
    Hold(hive, list, "Mine");
    DeleteValue(hive, HoldingKey + "\\Disabled\\" + list, "Mine");
}

class PackageHeld : public PackageTest {
  protected:
    // Starts the uninstaller and expects that it warns; changes the mind.
    void ExpectWarning() const {
        StartUninstaller(Folder());
        const Window question = Question();
        ASSERT_TRUE(question);
        EXPECT_NE(MessageText(question).find("still switched off"), std::string::npos);
        ASSERT_TRUE(Answer(question, IDCANCEL));
        ASSERT_TRUE(WaitUntil(UninstallerHasEnded));
        EXPECT_TRUE(Exists("Velkarix.exe"));
        EXPECT_TRUE(Entry());
    }
};
class EverySystemPackageHeld : public PackageHeld {};

TEST_F(EverySystemPackageHeld, StaysWhereItIsWithoutAWord) {
    InstallHere();
    Hold(HKEY_LOCAL_MACHINE, "Run", "Mine");
    Hold(HKEY_CURRENT_USER, "Menu", "");  // the value without a name
    Hold(HKEY_CURRENT_USER, "BHO\\" + Class, "");
    Hold(HKEY_CLASSES_ROOT, "Protocols\\mine", "CLSID");
    const auto machine = ReadTree(HKEY_LOCAL_MACHINE, HoldingKey);
    const auto user = ReadTree(HKEY_CURRENT_USER, HoldingKey);
    const auto classes = ReadTree(HKEY_CLASSES_ROOT, HoldingKey);
    Uninstall(Folder());
    EXPECT_EQ(ReadTree(HKEY_LOCAL_MACHINE, HoldingKey), machine);
    EXPECT_EQ(ReadTree(HKEY_CURRENT_USER, HoldingKey), user);
    EXPECT_EQ(ReadTree(HKEY_CLASSES_ROOT, HoldingKey), classes);
}

// ---- In the registry

struct Hive {
    const char* title;
    HKEY key;
};
const Hive Hives[] = {
    {"Machine", HKEY_LOCAL_MACHINE}, {"User", HKEY_CURRENT_USER}, {"Classes", HKEY_CLASSES_ROOT}};

class PackageHeldIn : public PackageHeld, public testing::WithParamInterface<Hive> {
  protected:
    HKEY Key() const { return GetParam().key; }
};

TEST_P(PackageHeldIn, AnEmptyListGoesAndAnotherStays) {
    InstallHere();
    for (const char* list : {"BHO", "Menu", "Toolbar"}) HoldNothing(Key(), list);
    Hold(Key(), "Run", "Mine");
    Uninstall(Folder());
    const std::optional<RegistryTree> held = ReadTree(Key(), HoldingKey + "\\Disabled");
    ASSERT_TRUE(held);
    ASSERT_EQ(held->keys.size(), 1u) << *held;
    EXPECT_EQ(held->keys.at("Run").values.size(), 1u);
}

TEST_P(PackageHeldIn, NoEmptyPlaceIsLeft) {
    InstallHere();
    for (const char* list : {"Run", "RunOnce", "Toolbar"}) HoldNothing(Key(), list);
    ASSERT_TRUE(ReadTree(Key(), HoldingKey));
    Uninstall(Folder());
    EXPECT_FALSE(ReadTree(Key(), HoldingKey));
}

TEST_P(PackageHeldIn, AnEmptyListIsNoReasonToWarn) {
    InstallHere();
    HoldNothing(Key(), "Run");
    StartUninstaller(Folder());
    const Window confirm = Page("Uninstall Velkarix");
    ASSERT_TRUE(confirm);
    ASSERT_TRUE(Press(confirm, IDCANCEL));
    ASSERT_TRUE(WaitUntil(UninstallerHasEnded));
}

// What is held stands behind a list that holds nothing.

TEST_P(PackageHeldIn, AValueIsWarnedOf) {
    InstallHere();
    HoldNothing(Key(), "BHO");
    Hold(Key(), "Run", "Mine");
    ExpectWarning();
}

TEST_P(PackageHeldIn, AValueWithoutANameIsWarnedOf) {
    InstallHere();
    HoldNothing(Key(), "BHO");
    Hold(Key(), "Menu", "");
    ExpectWarning();
}

TEST_P(PackageHeldIn, AKeyIsWarnedOf) {
    InstallHere();
    HoldNothing(Key(), "BHO");
    Hold(Key(), "Toolbar\\" + Class, "");
    ExpectWarning();
}

INSTANTIATE_TEST_SUITE_P(Each, PackageHeldIn, testing::ValuesIn(Hives),
                         [](const auto& each) { return each.param.title; });

// ---- In the folders of shortcuts

class PackageHeldFiles : public PackageHeld, public testing::WithParamInterface<const char*> {};

TEST_P(PackageHeldFiles, AShortcutIsWarnedOf) {
    InstallHere();
    Write(std::string(GetParam()) + "\\Mine.lnk", "link");
    ExpectWarning();
}

TEST_P(PackageHeldFiles, AShortcutStays) {
    InstallHere();
    const std::string name = std::string(GetParam()) + "\\Mine.lnk";
    Write(name, "link");
    Uninstall(Folder());
    EXPECT_EQ(Files(), (FolderFiles{{name, "link"}}));
}

TEST_P(PackageHeldFiles, AnEmptyFolderGoes) {
    InstallHere();
    ASSERT_TRUE(fs::create_directory(Path(GetParam())));
    Uninstall(Folder());
    EXPECT_FALSE(fs::exists(Folder()));
}

INSTANTIATE_TEST_SUITE_P(Each, PackageHeldFiles, testing::Values("DLMStartup", "DCUStartup"),
                         [](const auto& each) { return std::string(each.param); });

}  // namespace
}  // namespace velkarix::e2e
