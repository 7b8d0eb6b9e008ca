#include "Setup.h"

#include <windows.h>

#include <vector>

namespace velkarix::e2e {

std::string Environment(const char* name) {
    std::vector<char> value(32767);
    const DWORD length =
        GetEnvironmentVariableA(name, value.data(), static_cast<DWORD>(value.size()));
    return {value.data(), length};
}

std::string PreparedFolder() {
    const std::string program = Environment("VELKARIX_EXE");
    return program.substr(0, program.find_last_of("\\/"));
}

std::string SystemUnderTest() {
    const std::string system = Environment("VELKARIX_SYSTEM");
    return system.empty() ? "winxp" : system;
}

bool IsSystemOf95Family() {
    const std::string system = SystemUnderTest();
    return system == "win95" || system == "win98" || system == "winme";
}

bool ListsFolders() {
    return !IsSystemOf95Family();
}

std::string SamplePath(const std::string& name) {
    return "C:\\Samples\\" + name;
}

const std::string& ScratchFolder() {
    static const std::string folder = [] {
        const std::string made = "C:\\VelkarixTest." + std::to_string(GetCurrentProcessId());
        CreateDirectoryA(made.c_str(), nullptr);
        return made;
    }();
    return folder;
}

}  // namespace velkarix::e2e
