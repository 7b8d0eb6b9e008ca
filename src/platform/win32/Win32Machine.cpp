#include "platform/win32/Win32Machine.h"

namespace velkarix {

Machine Win32Machine::Parts() {
    return {registry_, profileFiles_, versionResources_, files_,  clock_,   processes_,
            token_,    shell_,        shortcuts_,        system_, windows_, cryptography_};
}

}  // namespace velkarix
