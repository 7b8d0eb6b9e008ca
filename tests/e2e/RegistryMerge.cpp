#include "RegistryMerge.h"

#include "Process.h"

namespace velkarix::e2e {

bool MergeRegistryFile(const std::string& path) {
    return Process("regedit.exe", "", "/S \"" + path + "\"").WaitForExit() == 0u;
}

}  // namespace velkarix::e2e
