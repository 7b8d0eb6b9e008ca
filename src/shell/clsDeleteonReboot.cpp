#include "shell/clsDeleteonReboot.h"

#include <cstdint>
#include <optional>

#include "base/Text.h"
#include "shell/TextFile.h"

namespace velkarix {

namespace {

constexpr std::size_t MostOfTheFile = 32768;  // bytes; the system reads no more of it either
constexpr const char* Heading = "[Rename]\r\n";

// Puts the line behind the text of a file that holds `present`.
ErrorCode AddLine(FileSystem& files, const std::string& path, const std::string& present,
                  const std::string& line) {
    std::string text = TrimAtNull(std::string_view(present).substr(0, MostOfTheFile));
    const std::size_t kept = text.size();
    if (!text.ends_with(LineBreak)) text.append(LineBreak);
    text += line;
    // The others' lines stay where they are, whatever becomes of this one.
    return kept == present.size() ? AppendTextFile(files, path, std::string_view(text).substr(kept))
                                  : WriteTextFile(files, path, text);
}

}  // namespace

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
    FileSystem& files = application_.machine.files;
    const std::string windows = application_.machine.system.GetEnvironmentVariableA("WinDir");
    if (windows.empty()) return;
    const std::string winInit = windows + "\\WinInit.ini";
    const std::string line = "NUL=" + ShortPath(path) + std::string(LineBreak);
    std::string present;
    const ErrorCode read = ReadTextFile(files, winInit, present);
    // What can't be read must not be replaced: it may name other programs' files.
    if (read != error::Success && read != error::FileNotFound) return;
    const ErrorCode written = read == error::Success
                                  ? AddLine(files, winInit, present, line)
                                  : WriteTextFile(files, winInit, Heading + line);
    if (written == error::Success) return;
    // Half a line may name another file.
    const std::optional<std::string> standing = ReadTextFile(files, winInit);
    if (standing && *standing != present) WriteTextFile(files, winInit, present);
}

void DeleteOnReboot(Application& application, const std::string& path) {
    clsDeleteonReboot(application).DestroyOnReboot(path);
}

}  // namespace velkarix
