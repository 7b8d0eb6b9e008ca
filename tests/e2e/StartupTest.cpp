#include "StartupTest.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "Input.h"
#include "Wait.h"

namespace velkarix::e2e {

namespace {

constexpr int EnabledColumn = 1;
constexpr int LocationColumn = 2;

std::vector<std::pair<HKEY, std::string>> StartupKeys() {
    std::vector<std::pair<HKEY, std::string>> keys;
    for (const HKEY hive : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
        for (const char* base : {LiveStartupKeys, HeldStartupKeys}) {
            for (const char* name : RunKeyNames) keys.emplace_back(hive, std::string(base) + name);
        }
    }
    return keys;
}

std::vector<std::string> FilesIn(const std::string& folder) {
    std::vector<std::string> paths;
    std::error_code failure;
    for (const auto& file : std::filesystem::directory_iterator(folder, failure)) {
        paths.push_back(file.path().string());
    }
    std::ranges::sort(paths);
    return paths;
}

void WriteWholeFile(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

}  // namespace

std::ostream& operator<<(std::ostream& stream, const StartupState& state) {
    for (const auto& [key, tree] : state.keys) {
        stream << "\n" << (key.first == HKEY_LOCAL_MACHINE ? "HKLM\\" : "HKCU\\") << key.second;
        if (tree) stream << *tree;
    }
    for (const auto& [path, bytes] : state.files) {
        stream << "\n" << path << ": " << bytes.size() << " bytes";
    }
    return stream;
}

StartupTest::StartupTest() {
    first_ = ReadState();
    for (const VolatileItem& item : VolatileItems) {
        WriteValue(HKEY_LOCAL_MACHINE, std::string(LiveStartupKeys) + item.key, item.name,
                   TextValue(item.command));
    }
    before_ = ReadState();
}

StartupTest::~StartupTest() {
    Restore(first_);
}

std::vector<std::string> StartupTest::Folders() const {
    return {StartupFolder(true), StartupFolder(false), install_.Path("DLMStartup"),
            install_.Path("DCUStartup")};
}

StartupState StartupTest::ReadState() const {
    StartupState state;
    for (const auto& key : StartupKeys()) state.keys[key] = ReadTree(key.first, key.second);
    for (const std::string& folder : Folders()) {
        for (const std::string& path : FilesIn(folder)) state.files[path] = ReadWholeFile(path);
    }
    return state;
}

void StartupTest::Restore(const StartupState& state) const {
    for (const auto& key : StartupKeys()) {
        const auto found = state.keys.find(key);
        const RegistryTree empty;
        RestoreTree(key.first, key.second, found == state.keys.end() ? empty : found->second);
    }
    for (const std::string& folder : Folders()) {
        for (const std::string& path : FilesIn(folder)) {
            if (!state.files.contains(path)) DeleteFileA(path.c_str());
        }
    }
    for (const auto& [path, bytes] : state.files) {
        if (ReadWholeFile(path) != bytes) WriteWholeFile(path, bytes);
    }
}

void StartupTest::OpenStartup() {
    Start();
    ASSERT_TRUE(Running().Press("cmdStartup"));
    ASSERT_TRUE(Items().Visible());
}

void StartupTest::ShowNode(const StartupNode& node) {
    BringToFront(Running().Main());
    ClickAt(Inside(Places().LabelArea(node.path)));
    EXPECT_TRUE(WaitUntil([&] { return Caption() == StartupCaption(node.selection); }))
        << node.path << " isn't shown";
}

std::optional<int> StartupTest::FindItem(const StartupItem& item, bool enabled) {
    const ListWindow list = Items();
    const std::vector<std::string> names = list.Column(0);
    for (int row = 0; row < static_cast<int>(names.size()); ++row) {
        if (names[static_cast<std::size_t>(row)] == item.name &&
            list.Text(row, EnabledColumn) == (enabled ? "True" : "False") &&
            list.Text(row, LocationColumn) == item.location) {
            return row;
        }
    }
    return std::nullopt;
}

int StartupTest::RowOfItem(const StartupItem& item, bool enabled) {
    const std::optional<int> row = FindItem(item, enabled);
    EXPECT_TRUE(row) << item.name << (enabled ? " isn't listed" : " isn't listed as disabled");
    return row.value_or(0);
}

bool StartupTest::IsListed(const StartupItem& item, bool enabled) {
    return FindItem(item, enabled).has_value();
}

void StartupTest::SelectItem(const StartupItem& item, bool enabled) {
    SelectRow(Items(), RowOfItem(item, enabled));
}

void StartupTest::TickItem(const StartupItem& item, bool enabled) {
    Tick(Items(), RowOfItem(item, enabled));
}

std::string StartupTest::FileOf(const StartupItem& item, bool enabled) const {
    return (enabled ? item.live : install_.Path(item.held)) + "\\" + item.name;
}

std::optional<RegistryValue> StartupTest::ReadItem(const StartupItem& item, bool enabled) const {
    if (item.hive != nullptr) {
        return ReadValue(item.hive, enabled ? item.live : item.held, item.name);
    }
    if (GetFileAttributesA(FileOf(item, enabled).c_str()) == INVALID_FILE_ATTRIBUTES) {
        return std::nullopt;
    }
    const std::string bytes = ReadWholeFile(FileOf(item, enabled));
    return RegistryValue{REG_NONE, {bytes.begin(), bytes.end()}};
}

void StartupTest::WriteItem(const StartupItem& item, bool enabled,
                            const RegistryValue& content) const {
    if (item.hive != nullptr) {
        WriteValue(item.hive, enabled ? item.live : item.held, item.name, content);
    } else {
        WriteWholeFile(FileOf(item, enabled), {content.data.begin(), content.data.end()});
    }
}

void StartupTest::RemoveItem(const StartupItem& item, bool enabled) const {
    if (item.hive != nullptr) {
        DeleteValue(item.hive, enabled ? item.live : item.held, item.name);
    } else {
        DeleteFileA(FileOf(item, enabled).c_str());
    }
}

std::vector<std::string> StartupTest::BackupFiles() const {
    std::vector<std::string> names;
    for (const std::string& path : FilesIn(install_.Path("Backup"))) {
        names.push_back(path.substr(path.rfind('\\') + 1));
    }
    return names;
}

std::string TitleOfStartupItem(const testing::TestParamInfo<StartupItem>& each) {
    return each.param.title;
}

RegistryValue TextValue(const std::string& text, DWORD type) {
    RegistryValue value{type, {text.begin(), text.end()}};
    value.data.push_back(0);
    return value;
}

}  // namespace velkarix::e2e
