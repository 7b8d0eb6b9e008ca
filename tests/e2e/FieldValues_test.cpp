// What real machines hold that no program of ours would write: values of odd types, and of names
// that can't be asked for. Each shows its own facts or none, and nothing of it is lost.
#include "FieldParts.h"
#include "RegistryMerge.h"
#include "StartupTest.h"
#include "tests/NtRegistry.h"

namespace velkarix::e2e {
namespace {

constexpr const char* HeldRunKey = "Software\\Velkarix\\Disabled\\Run";

struct OddValue {
    std::string name;
    DWORD type;
    std::vector<std::uint8_t> stored;  // as the registry keeps it
    std::string command;               // as the list shows it
    std::string text;                  // up to the first NUL
};

// A list control shows texts up to their first NUL.
std::vector<OddValue> OddValues() {
    using namespace std::string_literals;
    const std::string path = SampleProgram;
    std::vector<OddValue> values = {
        {"Empty text", REG_SZ, WideBytes("\0"s), "", ""},
        {"Text of no bytes", REG_SZ, {}, "", ""},
        {"Unended text", REG_SZ, WideBytes(path), path.substr(0, path.size() - 1), path},
        {"Longest text", REG_SZ, WideBytes(std::string(5000, 'x')), std::string(4999, 'x'),
         std::string(5000, 'x')},
        {"Several texts", REG_MULTI_SZ, WideBytes(path + "\0second\0\0"s), path, path},
        {"None", REG_NONE, Bytes(path + "\0"s), "", path},
        {"Long number", REG_QWORD, Bytes("abcdefgh"), "", "abcdefgh"},
        {"Bytes", REG_BINARY, Bytes(path), "", path},
        {"Number", REG_DWORD, {65, 0, 0, 0}, "", "A"},
    };
    for (DWORD type = 0x12; type <= 0x19; ++type) {
        values.push_back({"Unknown " + std::to_string(type), type, Bytes(path), "", path});
    }
    return values;
}

class FieldRunKey : public StartupTest {
  protected:
    FieldRunKey() { EmptyAllPlaces(); }
    ~FieldRunKey() override {
        for (const std::u16string& name : hidden_) NtRegistry::DeleteValue(run_.Handle(), name);
    }
    void Put(const std::string& name, DWORD type, const std::vector<std::uint8_t>& stored) {
        ASSERT_TRUE(NtRegistry::SetValue(run_.Handle(), Wide(name), type, stored)) << name;
        if (name.find('\0') != std::string::npos) hidden_.push_back(Wide(name));
    }
    int RowNamed(const std::string& name, const std::string& enabled) {
        for (int row = 0; row < Items().RowCount(); ++row) {
            if (Items().Text(row, 0) == name && Items().Text(row, 1) == enabled) return row;
        }
        ADD_FAILURE() << name << " isn't listed";
        return 0;
    }
    // Has the system's own editor merge all that the program kept.
    void MergeKept() {
        for (const std::string& file : BackupFiles()) {
            ASSERT_TRUE(MergeRegistryFile(install_.Path("Backup\\" + file)));
        }
    }

    const OpenedKeyOf run_{HKEY_CURRENT_USER, RunKey};
    std::vector<std::u16string> hidden_;
};

TEST_F(FieldRunKey, ShowsValuesOfEveryTypeAndLosesNoByteOfThem) {
    const std::vector<OddValue> values = OddValues();
    std::vector<std::optional<RegistryValue>> before;
    for (const OddValue& each : values) {
        Put(each.name, each.type, each.stored);
        before.push_back(ReadValue(HKEY_CURRENT_USER, RunKey, each.name));
    }
    OpenStartup();
    ASSERT_EQ(Items().RowCount(), static_cast<int>(values.size()));
    for (const OddValue& each : values) {
        const int row = RowNamed(each.name, "True");
        const std::string shown = Items().Text(row, CommandColumn);
        // A list's cell tells no more of a text than this.
        EXPECT_EQ(shown.substr(0, 250), each.command.substr(0, 250)) << each.name;
        EXPECT_EQ(Items().Text(row, FileColumn),
                  each.command == SampleProgram ? "SampleIdle.exe" : "");
        Tick(Items(), row);
    }
    ASSERT_TRUE(Running().Press("cmdDisable"));
    for (const OddValue& each : values) {
        EXPECT_FALSE(ReadValue(HKEY_CURRENT_USER, RunKey, each.name)) << each.name;
        EXPECT_EQ(ReadValue(HKEY_CURRENT_USER, HeldRunKey, each.name), TextValue(each.text))
            << each.name;
    }
    MergeKept();
    for (std::size_t i = 0; i < before.size(); ++i) {
        const OddValue& each = values[i];
        std::optional<RegistryValue> wanted = before[i];
        if (wanted == TextValue(each.text)) continue;  // moved as it was
        // The editor ends the texts that it merges.
        const bool isUnended = wanted->type == REG_SZ && !wanted->data.empty();
        if (isUnended) wanted->data.push_back(0);
        EXPECT_EQ(ReadValue(HKEY_CURRENT_USER, RunKey, each.name), wanted) << each.name;
    }
}

TEST_F(FieldRunKey, MovesNoValueInPlaceOfOneThatCanNotBeAskedFor) {
    using namespace std::string_literals;
    Put("Odd", REG_SZ, WideBytes("C:\\other.exe\0"s));
    Put("Odd\0hidden"s, REG_SZ, WideBytes("C:\\hidden.exe\0"s));
    const std::optional<RegistryValue> before = ReadValue(HKEY_CURRENT_USER, RunKey, "Odd");
    OpenStartup();
    ASSERT_EQ(Items().RowCount(), 2);
    for (int row = 0; row < 2; ++row) {
        if (Items().Text(row, CommandColumn) == "C:\\hidden.exe") Tick(Items(), row);
    }
    ASSERT_TRUE(Running().Control("cmdDisable").Click());
    const Window message = Running().Message();
    ASSERT_TRUE(message);
    EXPECT_NE(MessageText(message).find("Key Value Could not be deleted"), std::string::npos);
    ASSERT_TRUE(Answer(message, IDOK));
    EXPECT_EQ(ReadValue(HKEY_CURRENT_USER, RunKey, "Odd"), before);
    EXPECT_FALSE(ReadValue(HKEY_CURRENT_USER, HeldRunKey, "Odd"));
    EXPECT_EQ(Items().RowCount(), 2);
}

TEST_F(FieldRunKey, MovesNoValueInPlaceOfOneOfAnotherCodePage) {
    using namespace std::string_literals;
    hidden_.push_back(u"\u0430\u0431");
    ASSERT_TRUE(
        NtRegistry::SetValue(run_.Handle(), hidden_[0], REG_SZ, WideBytes("C:\\foreign.exe\0"s)));
    OpenStartup();
    ASSERT_EQ(Items().RowCount(), 1);
    EXPECT_EQ(Items().Text(0, 0), "??");
    EXPECT_EQ(Items().Text(0, CommandColumn), "C:\\foreign.exe");
    Tick(Items(), 0);
    ASSERT_TRUE(Running().Control("cmdDisable").Click());
    const Window message = Running().Message();
    ASSERT_TRUE(message);
    ASSERT_TRUE(Answer(message, IDOK));
    EXPECT_EQ(Items().RowCount(), 1);
    EXPECT_FALSE(ReadValue(HKEY_CURRENT_USER, HeldRunKey, "??"));
}

}  // namespace
}  // namespace velkarix::e2e
