// Puts the shortcuts of the sample machine where Windows starts them from, and disabled ones into
// the folder of Velkarix, which is its only argument.
#include <windows.h>

// The header of the shell's objects needs the system's before it.
#include <shlobj.h>

#include <string>

namespace {

// Where a shortcut lies: a folder of the system, or one of Velkarix.
struct Place {
    int systemFolder;
    const char* heldFolder;
};
constexpr Place AllUsers{CSIDL_COMMON_STARTUP, nullptr};
constexpr Place AllUsersHeld{0, "DLMStartup"};
constexpr Place User{CSIDL_STARTUP, nullptr};
constexpr Place UserHeld{0, "DCUStartup"};

constexpr const char* Idle = "C:\\Samples\\SampleIdle.exe";
constexpr const char* Safe = "C:\\Samples\\SampleSafe.exe";
constexpr const char* Suspect = "C:\\Samples\\SampleSuspect.exe";
constexpr const char* Gone = "C:\\Program Files\\Sample Gone\\gone.exe";

struct Entry {
    Place place;
    const char* name;
    const char* target;
    const char* arguments;
    const char* iconFile;  // null where the target's own is shown
};
constexpr Entry Entries[] = {
    {AllUsers, "Sample Office Bar", Idle, "/bar \"C:\\Sample Office\"",
     "C:\\Samples\\SampleRecorder.exe"},
    {AllUsers, "Sample Casino", Suspect, "", nullptr},
    {AllUsers, "Sample Gone", Gone, "", nullptr},
    {AllUsersHeld, "Sample Dialler", Suspect, "/dial", nullptr},
    {User, "Sample Notes", Safe, "", nullptr},
    {UserHeld, "Sample Radio", Idle, "/mute", nullptr},
    {UserHeld, "Sample Lost", Gone, "", nullptr},
};

std::string FolderOf(const Place& place, const std::string& velkarix) {
    if (place.heldFolder != nullptr) {
        const std::string folder = velkarix + "\\" + place.heldFolder;
        CreateDirectoryA(folder.c_str(), nullptr);
        return folder;
    }
    char folder[MAX_PATH] = "";
    SHGetSpecialFolderPathA(nullptr, folder, place.systemFolder, TRUE);
    return folder;
}

bool SaveTo(IShellLinkA* link, const std::string& path) {
    IPersistFile* file = nullptr;
    if (FAILED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file)))) {
        return false;
    }
    WCHAR wide[MAX_PATH] = L"";
    MultiByteToWideChar(CP_ACP, 0, path.c_str(), -1, wide, MAX_PATH);
    const HRESULT saved = file->Save(wide, TRUE);
    file->Release();
    return SUCCEEDED(saved);
}

bool Make(const Entry& entry, const std::string& velkarix) {
    IShellLinkA* link = nullptr;
    if (FAILED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkA,
                                reinterpret_cast<void**>(&link)))) {
        return false;
    }
    link->SetPath(entry.target);
    link->SetArguments(entry.arguments);
    if (entry.iconFile != nullptr) link->SetIconLocation(entry.iconFile, 0);
    const bool saved = SaveTo(link, FolderOf(entry.place, velkarix) + "\\" + entry.name + ".lnk");
    link->Release();
    return saved;
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR velkarix, int) {
    bool made = SUCCEEDED(CoInitialize(nullptr));
    for (const Entry& entry : Entries) made = made && Make(entry, velkarix);
    CoUninitialize();
    return made ? 0 : 1;
}
