#include "shell/ShellOpen.h"

namespace velkarix {

void ShellOpen(Shell& shell, const std::string& path) {
    shell.ShellExecuteA(0, "Open", path, "", "", ShowNormal);
}

}  // namespace velkarix
