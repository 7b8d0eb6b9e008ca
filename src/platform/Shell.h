// The shell: opening documents, starting programs, icons of files.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/Picture.h"
#include "platform/WindowSystem.h"

namespace velkarix {

using IconHandle = std::uintptr_t;  // 0 is none

struct ExtractedIcons {
    std::uint32_t count = 0;  // how many icons the call reports; 0 is none
    IconHandle largeIcon = 0;
    IconHandle smallIcon = 0;
};

class Shell {
  public:
    virtual ~Shell() = default;

    // Above 32 is success, as the system says it. Launches are asynchronous.
    virtual std::uint32_t ShellExecuteA(WindowHandle parent, const std::string& verb,
                                        const std::string& file, const std::string& parameters,
                                        const std::string& folder, int showCommand) = 0;
    // Starts a command line; above 31 is success. Doesn't wait.
    virtual std::uint32_t WinExec(const std::string& commandLine, int showCommand) = 0;

    // One icon of a file at `index`, in both sizes. The caller destroys both handles.
    virtual ExtractedIcons ExtractIconExA(const std::string& path, int index) = 0;
    // The icon's pixels at its own size; nothing on failure.
    virtual std::optional<Picture> DrawIconEx(IconHandle icon) = 0;
    virtual bool DestroyIcon(IconHandle icon) = 0;
};

}  // namespace velkarix
