// The shell of the machine in memory: nothing starts, everything that would is written down.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "platform/Shell.h"
#include "tests/machine/CallJournal.h"
#include "tests/machine/MemoryDisk.h"

namespace velkarix {

// One call of ShellExecuteA.
struct ShellOpening {
    WindowHandle parent = 0;
    std::string verb;
    std::string file;
    std::string parameters;
    std::string folder;
    int showCommand = 0;

    friend bool operator==(const ShellOpening&, const ShellOpening&) = default;
};

// One call of WinExec.
struct Launch {
    std::string commandLine;
    int showCommand = 0;

    friend bool operator==(const Launch&, const Launch&) = default;
};

class MemoryShell : public Shell {
  public:
    MemoryShell(CallJournal& journal, MemoryDisk& disk) : journal_(journal), disk_(disk) {}

    // Everything that was asked for, also what failed. A file or program must be on the disk to
    // succeed (else the call gives 2, or 3 when its folder is missing): by its full path, or by
    // its name alone when it is in the program's folder, in C:\WINDOWS or in C:\WINDOWS\SYSTEM32,
    // with ".exe" understood. A web address always succeeds.
    const std::vector<ShellOpening>& Opened() const { return opened_; }
    const std::vector<Launch>& Launched() const { return launched_; }
    // Icons that weren't destroyed. What icons a file has is said with MemoryEntry::Icon.
    std::size_t OpenIconCount() const { return icons_.size(); }

    // ---- Shell
    std::uint32_t ShellExecuteA(WindowHandle parent, const std::string& verb,
                                const std::string& file, const std::string& parameters,
                                const std::string& folder, int showCommand) override;
    std::uint32_t WinExec(const std::string& commandLine, int showCommand) override;
    ExtractedIcons ExtractIconExA(const std::string& path, int index) override;
    std::optional<Picture> DrawIconEx(IconHandle icon) override;
    bool DestroyIcon(IconHandle icon) override;

  private:
    // What starting or opening `file` gives: above 32 is success.
    std::uint32_t Start(const std::string& file) const;
    IconHandle OpenIcon(const Picture& picture);

    CallJournal& journal_;
    MemoryDisk& disk_;
    std::vector<ShellOpening> opened_;
    std::vector<Launch> launched_;
    std::map<IconHandle, Picture> icons_;
    IconHandle nextIcon_ = 0x10001;
};

}  // namespace velkarix
