#include "Install.h"

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "Setup.h"

namespace velkarix::e2e {

namespace fs = std::filesystem;

std::string ReadWholeFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

Install::Install(const std::string& title) {
    static int count = 0;
    folder_ = ScratchFolder() + "\\" + std::to_string(++count) + title;
    std::error_code failure;
    fs::copy(PreparedFolder(), folder_, fs::copy_options::recursive, failure);
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
