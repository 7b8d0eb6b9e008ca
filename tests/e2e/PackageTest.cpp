#include "PackageTest.h"

#include <windows.h>
#include <psapi.h>
#include <shlobj.h>
#include <tlhelp32.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "Install.h"
#include "Setup.h"
#include "Wait.h"

namespace velkarix::e2e {

namespace fs = std::filesystem;

namespace {

const std::string EntryKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Velkarix";
constexpr int MessageTextId = 65535;

// Where all of these tests install to.
std::string Place() {
    return ScratchFolder() + "\\Tools, old";
}

// The full path of a process's program, in lower case; empty when the system doesn't tell.
std::string PathOf(DWORD id) {
    char path[MAX_PATH] = "";
    const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, id);
    if (process == nullptr) return {};
    GetModuleFileNameExA(process, nullptr, path, sizeof path);
    CloseHandle(process);
    return CharLowerA(path);
}

// An uninstaller in the folder of these tests, or the copy of itself that does the work: it makes
// one in a folder of its own below that of temporary files.
bool IsUninstaller(const std::string& path) {
    char temporary[MAX_PATH] = "";
    GetTempPathA(sizeof temporary, temporary);
    const std::string place = Place() + "\\";
    const std::string copies = std::string(temporary) + "~nsu";
    const auto isBelow = [&path](std::string folder) {
        return path.starts_with(CharLowerA(folder.data()));
    };
    return (isBelow(place) && path.ends_with("\\uninstall.exe")) || isBelow(copies);
}

std::vector<DWORD> Uninstallers() {
    std::vector<DWORD> ids;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32 entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = Process32First(snapshot, &entry); more;
         more = Process32Next(snapshot, &entry)) {
        if (IsUninstaller(PathOf(entry.th32ProcessID))) ids.push_back(entry.th32ProcessID);
    }
    CloseHandle(snapshot);
    return ids;
}

void EndProcess(DWORD id) {
    const HANDLE process = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, id);
    if (process == nullptr) return;
    TerminateProcess(process, 99);
    WaitForSingleObject(process, Patience);
    CloseHandle(process);
}

bool IsInstallerWindow(const Window& window) {
    return window.Visible() && window.Class() == "#32770" &&
           window.Text().find("Velkarix") != std::string::npos;
}

// The first of the visible controls of a window for which that is so.
template <typename Condition>
Window VisibleChild(const Window& window, Condition isWanted) {
    for (const Window& child : window.Children()) {
        if (child.Visible() && isWanted(child)) return child;
    }
    return Window();
}

// The first installer window for which that is so, as soon as there is one.
template <typename Condition>
Window InstallerWindow(Condition isWanted) {
    return WaitFor(
        [&] {
            for (const Window& window : AllTopWindows()) {
                if (IsInstallerWindow(window) && isWanted(window)) return window;
            }
            return Window();
        },
        SetupPatience);
}

std::string MenuFolder() {
    char folder[MAX_PATH] = "";
    SHGetSpecialFolderPathA(nullptr, folder, CSIDL_COMMON_PROGRAMS, FALSE);
    return std::string(folder) + "\\Velkarix";
}

void Remove(const std::string& folder) {
    std::error_code failure;
    fs::remove_all(folder, failure);
}

}  // namespace

FolderFiles ReadFolder(const std::string& folder) {
    FolderFiles files;
    std::error_code failure;
    for (const auto& entry : fs::recursive_directory_iterator(folder, failure)) {
        if (!entry.is_regular_file()) continue;
        files[fs::relative(entry.path(), folder).string()] = ReadWholeFile(entry.path().string());
    }
    return files;
}

PackageTest::PackageTest() {
    static int count = 0;
    folder_ = Place() + "\\" + std::to_string(++count);
    DeleteTree(HKEY_LOCAL_MACHINE, EntryKey);
    Remove(MenuFolder());
    for (const HKEY hive : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER, HKEY_CLASSES_ROOT}) {
        held_.emplace_back(hive, ReadTree(hive, HoldingKey));
        DeleteTree(hive, HoldingKey);
    }
}

PackageTest::~PackageTest() {
    // What a failed test left open isn't to be in the way of the next one.
    for (const DWORD id : Uninstallers()) EndProcess(id);
    for (const auto& [hive, tree] : held_) RestoreTree(hive, HoldingKey, tree);
    DeleteTree(HKEY_LOCAL_MACHINE, EntryKey);
    Remove(MenuFolder());
    Remove(Place());
}

bool PackageTest::Exists(const std::string& name) const {
    return GetFileAttributesA(Path(name).c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::string PackageTest::Read(const std::string& name) const {
    return ReadWholeFile(Path(name));
}

void PackageTest::Write(const std::string& name, const std::string& bytes) const {
    std::error_code failure;
    fs::create_directories(fs::path(Path(name)).parent_path(), failure);
    std::ofstream(Path(name), std::ios::binary) << bytes;
}

FolderFiles PackageTest::PortableFiles() {
    return ReadFolder(Environment("VELKARIX_PORTABLE"));
}

const FolderFiles& PackageTest::UsersFiles() {
    static const FolderFiles files = {
        {"Settings.ini", "[Main]\r\nFirstRun=1\r\nSusColor=4242\r\n"},
        {"SafeProcess.vkl", "0123456789abcdef0123456789abcdef\r\n"},
        {"SusProcess.vkl", "fedcba9876543210fedcba9876543210\r\n"},
        {"database.ini", "[Database]\r\nVersion=7\r\n"},
        {"backup\\10_5_279_9_30_12.bup", std::string("MZ\0\x01\xff", 5)},
        {"backup\\10_5_279_9_30_12.prc", "C:\\Gone.exe\00110/5/2004\r\n"},
        {"DLMStartup\\Switched off.lnk", "link"},
        {"Notes of mine.txt", "mine"},
    };
    return files;
}

void PackageTest::WriteUsersFiles() const {
    for (const auto& [name, bytes] : UsersFiles()) Write(name, bytes);
}

Process PackageTest::StartSetup(const std::string& arguments) {
    return Process(Environment("VELKARIX_SETUP"), "", arguments);
}

std::optional<DWORD> PackageTest::Install(const std::string& folder) {
    // It takes the rest of its command line for the folder, blanks and all.
    const Process setup = StartSetup("/S /D=" + folder);
    WaitForSingleObject(setup.Handle(), SetupPatience);
    return setup.WaitForExit();
}

Window PackageTest::Page(const std::string& heading) {
    return InstallerWindow(
        [&](const Window& window) { return static_cast<bool>(ChildOfText(window, heading)); });
}

Window PackageTest::ChildOfClass(const Window& page, const std::string& name) {
    return VisibleChild(page, [&](const Window& child) { return child.Class() == name; });
}

Window PackageTest::ChildOfText(const Window& page, const std::string& text) {
    return VisibleChild(page, [&](const Window& child) { return child.Text() == text; });
}

Window PackageTest::Question() {
    return InstallerWindow(
        [](const Window& window) { return GetDlgItem(window.Handle(), MessageTextId) != nullptr; });
}

bool PackageTest::Press(const Window& page, int button) {
    const Window control(GetDlgItem(page.Handle(), button));
    return WaitUntil([&] { return control.Enabled(); }) && control.Click();
}

void PackageTest::StartUninstaller(const std::string& folder, const std::string& arguments) {
    ASSERT_EQ(Process(folder + "\\Uninstall.exe", "", arguments).WaitForExit(), 0u);
}

void PackageTest::Uninstall(const std::string& folder) {
    StartUninstaller(folder, "/S");
    ASSERT_TRUE(WaitUntil(UninstallerHasEnded, SetupPatience));
}

bool PackageTest::UninstallerHasEnded() {
    return Uninstallers().empty();
}

std::optional<RegistryTree> PackageTest::Entry() {
    return ReadTree(HKEY_LOCAL_MACHINE, EntryKey);
}

std::string PackageTest::EntryText(const std::string& name) {
    const std::optional<RegistryValue> value = ReadValue(HKEY_LOCAL_MACHINE, EntryKey, name);
    if (!value || value->type != REG_SZ) return {};
    const std::string text(value->data.begin(), value->data.end());
    return text.substr(0, text.find('\0'));
}

std::vector<std::string> PackageTest::MenuEntries() {
    std::vector<std::string> names;
    for (const auto& [name, bytes] : ReadFolder(MenuFolder())) names.push_back(name);
    return names;
}

void PackageTest::RemoveMenuEntries() {
    Remove(MenuFolder());
}

}  // namespace velkarix::e2e
