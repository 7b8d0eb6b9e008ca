// The shell of the running system, and icons of files.
#pragma once

#include "platform/Shell.h"
#include "platform/win32/SystemLibrary.h"

namespace velkarix {

class Win32Shell : public Shell {
  public:
    std::uint32_t ShellExecuteA(WindowHandle parent, const std::string& verb,
                                const std::string& file, const std::string& parameters,
                                const std::string& folder, int showCommand) override;
    std::uint32_t WinExec(const std::string& commandLine, int showCommand) override;
    ExtractedIcons ExtractIconExA(const std::string& path, int index) override;
    std::optional<Picture> DrawIconEx(IconHandle icon) override;
    bool DestroyIcon(IconHandle icon) override;

  private:
    SystemLibrary shell_{"shell32.dll"};
};

}  // namespace velkarix
