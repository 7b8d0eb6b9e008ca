// Files as real machines hold them: broken shortcuts and version resources, and names of devices.
// What can be read of them is shown, and they stay as they are.
#include <fstream>

#include "FieldParts.h"
#include "StartupTest.h"

namespace velkarix::e2e {
namespace {

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
    const std::string whole = ReadWholeFile(SampleProgram);
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
