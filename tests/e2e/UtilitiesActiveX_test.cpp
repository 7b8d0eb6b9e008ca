// The protection from ActiveX controls, on the registry that the browser reads.
#include "ActiveXKeys.h"
#include "Setup.h"
#include "TargetTest.h"
#include "UtilitiesTest.h"

namespace velkarix::e2e {
namespace {

constexpr const char* Protected = "Protection activated Successfully.";
constexpr const char* Removed = "Protection removed Successfully.";

class UtilitiesActiveX : protected ActiveXKeys, public UtilitiesTest {
  protected:
    // A failure of the test when it isn't done as the message says.
    void Protect() {
        ClickOn("cmdActiveXProtect");
        ExpectMessage(Protected, Icon::Information);
    }
    void Remove() {
        ClickOn("cmdActiveXRemove");
        ExpectMessage(Removed, Icon::Information);
    }
    void ExpectNotDeleted(const std::string& name, DWORD code = ERROR_FILE_NOT_FOUND) {
        ExpectMessage("Following Key Could not be deleted: \r\n" + KeyOf(name) + "\r\n\r\n" +
                          SystemErrorText(code),
                      Icon::Critical);
    }
};

class EverySystemUtilitiesActiveX : public UtilitiesActiveX {};

TEST_F(UtilitiesActiveX, EachListedControlGetsTheFlag) {
    const std::vector<std::string> names = ListedControls(install_);
    ASSERT_EQ(names.size(), 3u);
    OpenUtilities();
    Protect();
    EXPECT_EQ(ReadKeys(), WithFlags(names));
}

TEST_F(UtilitiesActiveX, ASecondClickChangesNothing) {
    OpenUtilities();
    Protect();
    const RegistryTree once = ReadKeys();
    Protect();
    EXPECT_EQ(ReadKeys(), once);
}

TEST_F(UtilitiesActiveX, TheProtectionIsTakenBack) {
    OpenUtilities();
    Protect();
    Remove();
    EXPECT_EQ(ReadKeys(), KeysBefore());
}

TEST_F(UtilitiesActiveX, LinesAreNamesOfKeysAsTheyStand) {
    install_.Write("MalActivex.scl", "\r\n {AC000004} \r\n\r\nAny name\r\n{AC000005}");
    OpenUtilities();
    Protect();
    EXPECT_EQ(ReadKeys(), WithFlags({" {AC000004} ", "Any name", "{AC000005}"}));
    Remove();
    EXPECT_EQ(ReadKeys(), KeysBefore());
}

TEST_F(UtilitiesActiveX, OtherControlsAndOtherValuesStayAsTheyAre) {
    const std::string listed = ListedControls(install_).front();
    const RegistryValue other{REG_SZ, {'x', 0}};
    WriteValue(HKEY_LOCAL_MACHINE, KeyOf("{AC000009}"), FlagsValue, {REG_DWORD, {1, 0, 0, 0}});
    WriteValue(HKEY_LOCAL_MACHINE, KeyOf(listed), FlagsValue, {REG_DWORD, {1, 0, 0, 0}});
    WriteValue(HKEY_LOCAL_MACHINE, KeyOf(listed), "Other", other);
    const RegistryTree found = ReadKeys();
    OpenUtilities();
    Protect();
    RegistryTree expected = WithFlags(ListedControls(install_));
    expected.keys["{AC000009}"] = found.keys.at("{AC000009}");
    expected.keys[listed].values["Other"] = other;
    EXPECT_EQ(ReadKeys(), expected);
    Remove();
    expected = KeysBefore();
    expected.keys["{AC000009}"] = found.keys.at("{AC000009}");
    EXPECT_EQ(ReadKeys(), expected);
}

TEST_F(UtilitiesActiveX, TakingBackWhatIsNotThereIsToldForEachLine) {
    OpenUtilities();
    ClickOn("cmdActiveXRemove");
    for (const std::string& name : ListedControls(install_)) ExpectNotDeleted(name);
    ExpectMessage(Removed, Icon::Information);
    EXPECT_EQ(ReadKeys(), KeysBefore());
}

// A control's key goes by one call, which takes the keys below along or is refused.
TEST_F(EverySystemUtilitiesActiveX, AControlWithKeysBelowGoesOnTheOlderFamilyAndIsToldOnTheOther) {
    const std::string listed = ListedControls(install_).front();
    OpenUtilities();
    Protect();
    WriteValue(HKEY_LOCAL_MACHINE, KeyOf(listed) + "\\Below", "Value", {REG_SZ, {'x', 0}});
    RegistryTree expected = KeysBefore();
    if (!IsSystemOf95Family()) expected.keys[listed] = ReadKeys().keys.at(listed);
    ClickOn("cmdActiveXRemove");
    if (!IsSystemOf95Family()) ExpectNotDeleted(listed, ERROR_ACCESS_DENIED);
    ExpectMessage(Removed, Icon::Information);
    EXPECT_EQ(ReadKeys(), expected);
}

TEST_F(UtilitiesActiveX, WithoutAListNothingIsChanged) {
    install_.Remove("MalActivex.scl");
    OpenUtilities();
    Protect();
    Remove();
    EXPECT_EQ(ReadKeys(), KeysBefore());
}

}  // namespace
}  // namespace velkarix::e2e
