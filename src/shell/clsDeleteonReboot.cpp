#include "shell/clsDeleteonReboot.h"

#include <cstdint>

#include "base/Text.h"
#include "shell/TextFile.h"

namespace velkarix {

void clsDeleteonReboot::DestroyOnReboot(const std::string& path) {
    if (application_.machine.system.GetEnvironmentVariableA("OS") == "Windows_NT") {
        AskTheSystem(path);
    } else {
        NameInWinInit(path);
    }
}

std::string clsDeleteonReboot::ShortPath(const std::string& path) {
    constexpr std::uint32_t Capacity = 255;
    return application_.machine.files.GetShortPathNameA(path, Capacity);
}

void clsDeleteonReboot::AskTheSystem(const std::string& path) {
    if (application_.machine.files.MoveFileExA(ShortPath(path))) return;
    // The text is that of the call's own result, 0; the message only tells that it failed.
    application_.Tell(MessageIcon::None,
                      "Error occurred while adding to delete on reboot: " + std::string(LineBreak) +
                          path + application_.registry.GetSystemErrorText(0));
}

void clsDeleteonReboot::NameInWinInit(const std::string& path) {
    constexpr std::size_t MostOfTheFile = 32768;  // bytes; the system reads no more of it either

    FileSystem& files = application_.machine.files;
    const std::string windows = application_.machine.system.GetEnvironmentVariableA("WinDir");
    if (windows.empty()) return;
    const std::string winInit = windows + "\\WinInit.ini";
    const std::string line = "NUL=" + ShortPath(path) + std::string(LineBreak);
    std::string present;
    const ErrorCode read = ReadTextFile(files, winInit, present);
    if (read == error::FileNotFound) {
        WriteTextFile(files, winInit, "[Rename]" + std::string(LineBreak) + line);
        return;
    }
    // What can't be read must not be replaced: it may name other programs' files.
    if (read != error::Success) return;
    std::string text = TrimAtNull(std::string_view(present).substr(0, MostOfTheFile));
    const std::size_t kept = text.size();
    if (!text.ends_with(LineBreak)) text.append(LineBreak);
    text += line;
    if (kept == present.size()) {
        // The others' lines stay where they are, whatever becomes of this one.
        AppendTextFile(files, winInit, std::string_view(text).substr(kept));
    } else {
        WriteTextFile(files, winInit, text);
    }
}

void DeleteOnReboot(Application& application, const std::string& path) {
    clsDeleteonReboot(application).DestroyOnReboot(path);
}

}  // namespace velkarix
