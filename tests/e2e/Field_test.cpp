// What real machines hold that no program of ours would write: values of odd types, names that
// can't be asked for, broken shortcuts and version resources. Each shows its own facts or none,
// and nothing of it is lost.
#include <algorithm>
#include <filesystem>
#include <fstream>

#include "BrowserTest.h"
#include "RegistryMerge.h"
#include "StartupTest.h"
#include "Wait.h"
#include "tests/NtRegistry.h"

namespace velkarix::e2e {
namespace {

constexpr const char* RunKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const char* HeldRunKey = "Software\\Velkarix\\Disabled\\Run";
constexpr int CommandColumn = 3;
constexpr int FileColumn = 4;
constexpr int CompanyColumn = 7;
constexpr const char* Program = "C:\\Samples\\SampleIdle.exe";

std::vector<std::uint8_t> Bytes(const std::string& text) {
    return {text.begin(), text.end()};
}
// As the registry itself keeps a text.
std::vector<std::uint8_t> WideBytes(const std::string& text) {
    std::vector<std::uint8_t> bytes;
    for (const char c : text) bytes.insert(bytes.end(), {static_cast<std::uint8_t>(c), 0});
    return bytes;
}
std::u16string Wide(const std::string& text) {
    return {text.begin(), text.end()};
}

class OpenedKeyOf {
  public:
    OpenedKeyOf(HKEY hive, const char* path) { RegCreateKeyA(hive, path, &key_); }
    ~OpenedKeyOf() { RegCloseKey(key_); }
    OpenedKeyOf(const OpenedKeyOf&) = delete;
    OpenedKeyOf& operator=(const OpenedKeyOf&) = delete;
    HKEY Handle() const { return key_; }

  private:
    HKEY key_ = nullptr;
};

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
    const std::string path = Program;
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
        EXPECT_EQ(Items().Text(row, FileColumn), each.command == Program ? "SampleIdle.exe" : "");
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

// ---- Keys

class FieldKeys : public BrowserTest {
  protected:
    FieldKeys() {
        for (const std::string& item : {SampleItems[0].live, SampleItems[0].held}) {
            DeleteTree(HKEY_LOCAL_MACHINE, item.substr(0, item.rfind('\\')));
        }
    }
    static std::size_t HolderEnd() { return SampleItems[0].live.rfind('\\'); }
    std::string Holder() const { return SampleItems[0].live.substr(0, HolderEnd()); }
    void MakeKey(const std::u16string& name) {
        const OpenedKeyOf holder(HKEY_LOCAL_MACHINE, Holder().c_str());
        ASSERT_NE(named_.MakeKey(holder.Handle(), name), nullptr);
    }
    std::vector<std::string> Names() { return Running().List("lstvBHO").Column(0); }

    NtRegistry named_;  // what it made goes before the registry is restored
};

TEST_F(FieldKeys, AreListedUpTo254Bytes) {
    MakeKey(std::u16string(254, u'a'));
    MakeKey(std::u16string(255, u'b'));
    MakeKey(u"c");
    OpenBrowser();
    const ListWindow list = Show(BHOs);
    ASSERT_EQ(list.RowCount(), 1);
    EXPECT_EQ(list.Text(0, 0), std::string(254, 'a'));
    Tick(list, 0);
    ASSERT_TRUE(Running().Press(BHOs.disable));
    EXPECT_EQ(list.Column(1).back(), "False");
    // What couldn't be listed before is where it was.
    const std::optional<RegistryTree> left = ReadTree(HKEY_LOCAL_MACHINE, Holder());
    ASSERT_TRUE(left);
    EXPECT_FALSE(left->keys.contains(std::string(254, 'a')));
    EXPECT_TRUE(left->keys.contains(std::string(255, 'b')));
    EXPECT_TRUE(left->keys.contains("c"));
}

TEST_F(FieldKeys, ShowNoFactsOfAnotherThatTheirNameLeadsTo) {
    const SampleItem& item = SampleItems[0];
    const std::string name = item.live.substr(HolderEnd() + 1);
    std::u16string hidden = Wide(name);
    hidden += u'\0';
    hidden += u'x';
    MakeKey(Wide(name));
    MakeKey(hidden);
    OpenBrowser();
    const ListWindow list = Show(BHOs);
    ASSERT_EQ(list.RowCount(), 2);
    int facts = 0;
    int bare = 0;
    for (int row = 0; row < 2; ++row) {
        EXPECT_EQ(list.Text(row, 0), name);
        if (list.Text(row, 3).empty()) bare = row;
        facts += list.Text(row, 3).empty() ? 0 : 1;
    }
    ASSERT_EQ(facts, 1);
    Tick(list, bare);
    ASSERT_TRUE(Running().Control(BHOs.disable).Click());
    const Window message = Running().Message();
    ASSERT_TRUE(message);
    EXPECT_NE(MessageText(message).find("Error Occurred backupItem: "), std::string::npos);
    ASSERT_TRUE(Answer(message, IDOK));
    EXPECT_EQ(list.RowCount(), 2);
    EXPECT_TRUE(ReadTree(HKEY_LOCAL_MACHINE, item.live));
    EXPECT_FALSE(ReadTree(HKEY_LOCAL_MACHINE, item.held));
}

// ---- Files

class FieldFiles : public StartupTest {
  protected:
    FieldFiles() { EmptyAllPlaces(); }
    ~FieldFiles() override {
        for (const std::string& path : made_) DeleteFileA(path.c_str());
    }
    void Write(const std::string& path, const std::string& bytes) {
        std::ofstream(path, std::ios::binary) << bytes;
        made_.push_back(path);
    }
    std::vector<std::string> made_;
};

TEST_F(FieldFiles, ThatAreBrokenShortcutsMakeNoRowsAndStay) {
    const std::string good = [this] {
        std::string bytes;
        for (const auto& [path, content] : StateBefore().files) {
            if (path.ends_with(".lnk") && path.find("Lost") == std::string::npos) bytes = content;
        }
        return bytes;
    }();
    ASSERT_GT(good.size(), 0x60u);
    const std::string folder = StartupFolder(false);
    const auto with = [&](std::size_t at, char byte, std::size_t count) {
        std::string bytes = good;
        bytes.replace(at, count, count, byte);
        return bytes;
    };
    const std::pair<const char*, std::string> files[] = {
        {"empty", ""},
        {"byte", "L"},
        {"header", good.substr(0, 0x4C)},
        {"cut", good.substr(0, good.size() / 2)},
        {"long", with(0x4C, '\xFF', 2)},
        {"longer", with(0x4C, '\xFF', 4)},
        {"class", with(4, '\0', 16)},
        {"text", "[InternetShortcut]\r\nURL=http://example.com/\r\n"},
    };
    for (const auto& [name, bytes] : files) Write(folder + "\\" + name + ".lnk", bytes);
    Write(folder + "\\good.lnk", good);
    OpenStartup();
    EXPECT_EQ(Items().Column(0), std::vector<std::string>{"good.lnk"});
    Tick(Items(), 0);
    ASSERT_TRUE(Running().Press("cmdDisable"));
    EXPECT_EQ(Items().Column(0), std::vector<std::string>{"good.lnk"});
    for (const auto& [name, bytes] : files) {
        EXPECT_EQ(ReadWholeFile(folder + "\\" + name + ".lnk"), bytes) << name;
    }
}

TEST_F(FieldFiles, WithBrokenVersionResourcesShowWhatCanBeRead) {
    const std::string whole = ReadWholeFile(Program);
    const auto find = [&](const char* name) {
        const std::vector<std::uint8_t> wanted = WideBytes(name);
        return whole.find(std::string(wanted.begin(), wanted.end())) - 6;
    };
    const auto with = [&](const char* node, std::uint16_t length) {
        std::string bytes = whole;
        bytes[find(node)] = static_cast<char>(length);
        bytes[find(node) + 1] = static_cast<char>(length >> 8);
        return bytes;
    };
    const struct {
        const char* name;
        std::string bytes;
        const char* company;
    } cases[] = {
        {"whole", whole, "Sample Works"},
        {"no strings", with("StringFileInfo", 0), ""},
        {"no table", with("040904E4", 0), ""},
        {"no company", with("CompanyName", 0), ""},
        {"long company", with("CompanyName", 0xFFFF), "Sample Works"},
        {"no translation", with("Translation", 0), ""},
        {"long root", with("VS_VERSION_INFO", 0xFFFF), "Sample Works"},
    };
    for (const auto& each : cases) {
        const std::string path = std::string("C:\\Samples\\odd ") + each.name + ".exe";
        Write(path, each.bytes);
        WriteValue(HKEY_CURRENT_USER, RunKey, each.name, TextValue(path));
    }
    OpenStartup();
    ASSERT_EQ(Items().RowCount(), static_cast<int>(std::size(cases)));
    for (const auto& each : cases) {
        const std::optional<int> row = Items().Find(each.name);
        ASSERT_TRUE(row) << each.name;
        EXPECT_EQ(Items().Text(*row, CompanyColumn), each.company) << each.name;
        EXPECT_EQ(Items().Text(*row, FileColumn), std::string("odd ") + each.name + ".exe");
    }
}

// A device isn't looked into, which might wait for ever.
TEST_F(FieldFiles, ThatAreDevicesAreNone) {
    for (const char* path : {"C:\\con.exe", "C:\\Samples\\NUL", "COM1.exe", "C:\\aux\\con.dll"}) {
        WriteValue(HKEY_CURRENT_USER, RunKey, path + 3, TextValue(path));
    }
    OpenStartup();
    ASSERT_EQ(Items().RowCount(), 4);
    for (int row = 0; row < 4; ++row) EXPECT_EQ(Items().Text(row, FileColumn), "") << row;
}

}  // namespace
}  // namespace velkarix::e2e
