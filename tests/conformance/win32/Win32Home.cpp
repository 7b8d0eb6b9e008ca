// The suite's home on the real system: a scratch folder and a scratch key that each test gets
// empty, and files, windows and the like made by direct calls.
#include <windows.h>

#include <array>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "platform/win32/Win32Machine.h"
#include "tests/NtRegistry.h"
#include "tests/conformance/Home.h"
#include "tests/conformance/win32/SaveShortcut.h"

namespace velkarix {
namespace {

constexpr const char* scratchKey = "Software\\VelkarixConformance";
constexpr int iconSize = 32;           // pixels
constexpr DWORD longestMerge = 60000;  // milliseconds

void DeleteKeyTree(HKEY parent, const std::string& path) {
    HKEY key = nullptr;
    if (RegOpenKeyExA(parent, path.c_str(), 0, KEY_ALL_ACCESS, &key) != ERROR_SUCCESS) {
        return;
    }
    char name[256];
    while (RegEnumKeyA(key, 0, name, sizeof(name)) == ERROR_SUCCESS) {
        DeleteKeyTree(key, name);
    }
    RegCloseKey(key);
    RegDeleteKeyA(parent, path.c_str());
}

void DeleteFolderTree(const std::string& folder) {
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA((folder + "\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return;
    }
    do {
        const std::string name = found.cFileName;
        const std::string path = folder + "\\" + name;
        if (name == "." || name == "..") {
            continue;
        }
        SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
            DeleteFolderTree(path);
        } else {
            DeleteFileA(path.c_str());
        }
    } while (FindNextFileA(search, &found) != 0);
    FindClose(search);
    RemoveDirectoryA(folder.c_str());
}

template <typename Part>
void Append(std::string& bytes, const Part& part) {
    bytes.append(reinterpret_cast<const char*>(&part), sizeof(part));
}

// An icon file of one opaque red square, 32 bits a pixel.
std::string RedIcon() {
    constexpr std::uint32_t pixelBytes = iconSize * iconSize * 4;
    constexpr std::uint32_t maskBytes = iconSize * iconSize / 8;
    BITMAPINFOHEADER header = {};
    header.biSize = sizeof(header);
    header.biWidth = iconSize;
    header.biHeight = iconSize * 2;  // the picture and its mask
    header.biPlanes = 1;
    header.biBitCount = 32;
    header.biSizeImage = pixelBytes + maskBytes;

    std::string bytes;
    for (const auto field :
         std::to_array<std::uint16_t>({0, 1, 1})) {  // reserved, an icon, one of them
        Append(bytes, field);
    }
    for (const auto field : std::to_array<std::uint8_t>({iconSize, iconSize, 0, 0})) {
        Append(bytes, field);
    }
    Append(bytes, header.biPlanes);
    Append(bytes, header.biBitCount);
    Append(bytes, std::uint32_t{sizeof(header) + pixelBytes + maskBytes});
    Append(bytes, std::uint32_t{22});  // where the picture begins
    Append(bytes, header);
    for (int pixel = 0; pixel < iconSize * iconSize; ++pixel) {
        Append(bytes, std::uint32_t{0xFFFF0000});
    }
    bytes.append(maskBytes, '\0');
    return bytes;
}

class Win32Home : public Home {
  public:
    Win32Home() {
        char temporary[MAX_PATH];
        GetTempPathA(sizeof(temporary), temporary);
        folder_ = std::string(temporary) + "VelkarixConformance";
        DeleteFolderTree(folder_);
        ::CreateDirectoryA(folder_.c_str(), nullptr);
        DeleteKeyTree(HKEY_CURRENT_USER, scratchKey);
        HKEY key = nullptr;
        ::RegCreateKeyA(HKEY_CURRENT_USER, scratchKey, &key);
        ::RegCloseKey(key);
    }
    ~Win32Home() override {
        if (!formerShortDate_.empty()) {
            SetShortDate(formerShortDate_);
        }
        for (const HANDLE child : children_) {
            ::TerminateProcess(child, 0);
            ::CloseHandle(child);
        }
        for (const HANDLE handle : handles_) {
            ::CloseHandle(handle);
        }
        for (const HWND window : windows_) {
            DestroyWindow(window);
        }
        SetCurrentDirectoryA(SystemFolder().c_str());  // a current folder can't be removed
        DeleteFolderTree(folder_);
        named_.Clear();  // by their names they couldn't be deleted
        DeleteKeyTree(HKEY_CURRENT_USER, scratchKey);
    }

    Machine Parts() override { return win32_.Parts(); }
    std::string ScratchFolder() override { return folder_; }
    std::string ScratchKey() override { return scratchKey; }

    void MakeUnendedText(const std::string& name, const std::string& text) override {
        // A NUL behind the bytes would be stored with them, so another letter stands there.
        const std::string padded = text + "x";
        HKEY key = nullptr;
        RegOpenKeyExA(HKEY_CURRENT_USER, scratchKey, 0, KEY_ALL_ACCESS, &key);
        ::RegSetValueExA(key, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(padded.data()),
                         static_cast<DWORD>(text.size()));
        ::RegCloseKey(key);
    }

    void MakeNamedKey(const std::u16string& name) override {
        HKEY key = nullptr;
        RegOpenKeyExA(HKEY_CURRENT_USER, scratchKey, 0, KEY_ALL_ACCESS, &key);
        EXPECT_NE(named_.MakeKey(key, name), nullptr);
        ::RegCloseKey(key);
    }
    void MakeNamedValue(const std::u16string& name, std::uint32_t type,
                        const Bytes& data) override {
        HKEY key = nullptr;
        RegOpenKeyExA(HKEY_CURRENT_USER, scratchKey, 0, KEY_ALL_ACCESS, &key);
        EXPECT_TRUE(NtRegistry::SetValue(key, name, type, data));
        ::RegCloseKey(key);
    }

    bool MergeRegistryFile(const std::string& path) override {
        std::string command = "regedit /s \"" + path + "\"";
        STARTUPINFOA startup = {};
        startup.cb = sizeof(startup);
        PROCESS_INFORMATION process = {};
        if (CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                           &startup, &process) == 0) {
            return false;
        }
        const DWORD ended = ::WaitForSingleObject(process.hProcess, longestMerge);
        ::CloseHandle(process.hThread);
        ::CloseHandle(process.hProcess);
        return ended == WAIT_OBJECT_0;
    }

    void MakeFile(const std::string& path, const std::string& content,
                  std::uint32_t attributes) override {
        std::ofstream(path, std::ios::binary) << content;
        if (attributes != 0) {
            SetFileAttributesA(path.c_str(), attributes);
        }
    }
    std::string ContentOf(const std::string& path) override {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::string ShortPathOf(const std::string& path) override {
        char shortPath[MAX_PATH] = "";
        GetShortPathNameA(path.c_str(), shortPath, sizeof(shortPath));
        const std::string all = shortPath;
        return path.substr(0, path.find_last_of('\\')) + all.substr(all.find_last_of('\\'));
    }
    void Lock(const std::string& path) override {
        handles_.push_back(::CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                         FILE_ATTRIBUTE_NORMAL, nullptr));
    }
    void MakeIconFile(const std::string& path) override { MakeFile(path, RedIcon(), 0); }
    void MakeShortcut(const std::string& path, const Shortcut& shortcut) override {
        SaveShortcut(path, shortcut);
    }
    bool ScriptShellReads() override {
        return GetProcAddress(GetModuleHandleA("ntdll.dll"), "wine_get_version") == nullptr;
    }
    bool KeepsReadOnly() override {
        const std::string path = folder_ + "\\readonly";
        MakeFile(path, "", FILE_ATTRIBUTE_READONLY);
        const HANDLE file = ::CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                          FILE_ATTRIBUTE_NORMAL, nullptr);
        return file == INVALID_HANDLE_VALUE || ::CloseHandle(file) == 0;
    }
    void SetCurrentFolder(const std::string& path) override { SetCurrentDirectoryA(path.c_str()); }
    std::string VersionedFile() override { return SystemFolder() + "\\kernel32.dll"; }
    std::string MissingDrive() override {
        const std::uint32_t drives = GetLogicalDrives();
        char letter = 'D';
        while ((drives >> (letter - 'A') & 1) != 0) {
            ++letter;
        }
        return std::string(1, letter) + ":";
    }

    void SetShortDate(const std::string& form) override {
        if (formerShortDate_.empty()) {
            char former[128] = "";
            GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SSHORTDATE, former, sizeof(former));
            formerShortDate_ = former;
        }
        SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SSHORTDATE, form.c_str());
    }
    void SetVariable(const std::string& name, const std::string& value) override {
        SetEnvironmentVariableA(name.c_str(), value.c_str());
    }
    ProcessId OwnProcessId() override { return GetCurrentProcessId(); }
    ProcessId StartProcess() override {
        STARTUPINFOA startup = {};
        startup.cb = sizeof(startup);
        PROCESS_INFORMATION process = {};
        // Suspended, it runs for as long as anybody lets it.
        CreateProcessA(QuietProgram().c_str(), nullptr, nullptr, nullptr, FALSE, CREATE_SUSPENDED,
                       nullptr, nullptr, &startup, &process);
        ::CloseHandle(process.hThread);
        children_.push_back(process.hProcess);
        return process.dwProcessId;
    }
    std::string QuietProgram() override { return SystemFolder() + "\\rundll32.exe"; }

    void MakeMutex(const std::string& name) override {
        handles_.push_back(::CreateMutexA(nullptr, FALSE, name.c_str()));
    }
    WindowHandle MakeWindow(const std::string& windowClass, const std::string& caption) override {
        WNDCLASSA description = {};
        description.lpfnWndProc = DefWindowProcA;
        description.hInstance = GetModuleHandleA(nullptr);
        description.lpszClassName = windowClass.c_str();
        RegisterClassA(&description);  // fails from the second window on, which is no harm
        windows_.push_back(CreateWindowExA(0, windowClass.c_str(), caption.c_str(),
                                           WS_OVERLAPPEDWINDOW, 0, 0, 200, 100, nullptr, nullptr,
                                           description.hInstance, nullptr));
        return reinterpret_cast<WindowHandle>(windows_.back());
    }

  private:
    static std::string SystemFolder() {
        char folder[MAX_PATH];
        GetSystemDirectoryA(folder, sizeof(folder));
        return folder;
    }

    Win32Machine win32_;
    NtRegistry named_;
    std::string folder_;
    std::string formerShortDate_;  // empty as long as it is the user's own
    std::vector<HANDLE> children_;
    std::vector<HANDLE> handles_;
    std::vector<HWND> windows_;
};

}  // namespace

std::vector<Family> FamiliesOfHome() {
    return {(GetVersion() & 0x80000000) == 0 ? Family::WindowsNt : Family::Windows95};
}

std::unique_ptr<Home> MakeHome(Family /*family*/) {
    return std::make_unique<Win32Home>();
}

}  // namespace velkarix
