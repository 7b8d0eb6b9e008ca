#include "platform/win32/ShellLinkReader.h"

#include <string>
#include <utility>

#include "platform/win32/ComObjects.h"
#include "platform/win32/SystemText.h"
#include "platform/win32/WideText.h"

// The header of the shell's objects needs the system's before it.
#include <shlobj.h>

namespace velkarix {
namespace {

// Longer arguments can't be started with anyway.
constexpr int ArgumentCapacity = 32768;  // bytes, with the NUL

ComPointer<IShellLinkA> MakeLink() {
    return CreateObject<IShellLinkA>(__uuidof(ShellLink));
}

// A link to what is no file succeeds without a path.
bool ReadTarget(IShellLinkA& link, std::string& target) {
    char path[MAX_PATH] = "";
    WIN32_FIND_DATAA found = {};
    if (FAILED(link.GetPath(path, MAX_PATH, &found, 0))) return false;
    target = TextOf(path, MAX_PATH);
    return true;
}

bool ReadArguments(IShellLinkA& link, std::string& arguments) {
    std::string buffer(ArgumentCapacity, '\0');
    if (FAILED(link.GetArguments(buffer.data(), ArgumentCapacity))) return false;
    arguments = TextOf(buffer.data(), buffer.size());
    return true;
}

bool ReadIconLocation(IShellLinkA& link, std::string& iconLocation) {
    char file[MAX_PATH] = "";
    int index = 0;
    if (FAILED(link.GetIconLocation(file, MAX_PATH, &index))) return false;
    iconLocation = TextOf(file, MAX_PATH) + "," + std::to_string(index);
    return true;
}

class ShellLinkReader : public ShortcutReader {
  public:
    bool CanRead() const { return MakeLink() != nullptr; }

    // Every file gets a link of its own: a second one would leave parts of the first in it.
    bool Read(const std::string& path, Shortcut& shortcut) override {
        if (path.size() >= MAX_PATH) return false;
        const ComPointer<IShellLinkA> link = MakeLink();
        const auto file = link ? QueryObject<IPersistFile>(*link) : nullptr;
        // Only S_OK has a link: some shells call an empty file a false success.
        if (!file || file->Load(ToWide(path).c_str(), STGM_READ) != S_OK) return false;
        Shortcut read;
        if (!ReadTarget(*link, read.targetPath) || !ReadArguments(*link, read.arguments) ||
            !ReadIconLocation(*link, read.iconLocation)) {
            return false;
        }
        shortcut = std::move(read);
        return true;
    }

  private:
    ComSession session_;
};

}  // namespace

std::unique_ptr<ShortcutReader> MakeShellLinkReader() {
    auto reader = std::make_unique<ShellLinkReader>();
    if (!reader->CanRead()) return nullptr;
    return reader;
}

}  // namespace velkarix
