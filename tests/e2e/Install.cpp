#include "Install.h"

#include <windows.h>

#include <filesystem>
#include <fstream>

#include "Setup.h"

namespace velkarix::e2e {

namespace fs = std::filesystem;

namespace {

// By the system's own copying: that of the standard library takes a file in small bites, which is
// most of the time that a short test takes.
void CopyFolder(const std::string& from, const std::string& to) {
    CreateDirectoryA(to.c_str(), nullptr);
    WIN32_FIND_DATAA entry{};
    const HANDLE search = FindFirstFileA((from + "\\*").c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
        const std::string name = entry.cFileName;
        if (name == "." || name == "..") continue;
        const std::string source = from + "\\" + name;
        const std::string copy = to + "\\" + name;
        if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
            CopyFolder(source, copy);
        } else {
            CopyFileA(source.c_str(), copy.c_str(), TRUE);
        }
    } while (FindNextFileA(search, &entry));
    FindClose(search);
}

}  // namespace

std::string ReadWholeFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    const auto size = static_cast<std::streamsize>(file.tellg());
    if (size <= 0) return {};
    std::string bytes(static_cast<std::size_t>(size), '\0');
    file.seekg(0);
    file.read(bytes.data(), size);
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

Install::Install(const std::string& title) {
    static int count = 0;
    folder_ = ScratchFolder() + "\\" + std::to_string(++count) + title;
    CopyFolder(PreparedFolder(), folder_);
}

Install::~Install() {
    std::error_code failure;
    fs::remove_all(folder_, failure);
}

bool Install::Exists(const std::string& name) const {
    return GetFileAttributesA(Path(name).c_str()) != INVALID_FILE_ATTRIBUTES;
}

void Install::Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(Path(name), std::ios::binary) << bytes;
}

void Install::Remove(const std::string& name) const {
    DeleteFileA(Path(name).c_str());
}

std::string Install::Ini(const std::string& name, const std::string& section,
                         const std::string& key) const {
    char value[1024] = "";
    GetPrivateProfileStringA(section.c_str(), key.c_str(), "", value, sizeof value,
                             Path(name).c_str());
    return value;
}

}  // namespace velkarix::e2e
