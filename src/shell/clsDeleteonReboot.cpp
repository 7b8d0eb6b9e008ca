#include "shell/clsDeleteonReboot.h"

#include <cstdint>

#include "base/Text.h"
#include "shell/FilePaths.h"
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
    const std::string winInit =
        application_.machine.system.GetEnvironmentVariableA("WinDir") + "\\WinInit.ini";
    const std::string line = "NUL=" + ShortPath(path) + std::string(LineBreak);
    if (!PathExists(files, winInit)) {
        WriteTextFile(files, winInit, "[Rename]" + std::string(LineBreak) + line);
        return;
    }
    const auto present = ReadTextFile(files, winInit);
    // What can't be read must not be replaced: it may name other programs' files.
    if (!present) return;
    std::string text = TrimAtNull(std::string_view(*present).substr(0, MostOfTheFile));
    if (!text.ends_with(LineBreak)) text.append(LineBreak);
    files.DeleteFileA(winInit);
    WriteTextFile(files, winInit, text + line);
}

void DeleteOnReboot(Application& application, const std::string& path) {
    clsDeleteonReboot(application).DestroyOnReboot(path);
}

}  // namespace velkarix
