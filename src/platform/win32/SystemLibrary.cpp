#include "platform/win32/SystemLibrary.h"

#include <string>

#include "platform/win32/WindowsHeaders.h"

namespace velkarix {

SystemLibrary::~SystemLibrary() {
    if (module_ != nullptr) ::FreeLibrary(static_cast<HMODULE>(module_));
}

SystemLibrary::AnyFunction SystemLibrary::Address(const char* name) {
    if (!isTried_) Load();
    if (module_ == nullptr) return nullptr;
    return reinterpret_cast<AnyFunction>(::GetProcAddress(static_cast<HMODULE>(module_), name));
}

// By its full path: a bare name would also be searched in the program's own folder and in the
// current one, where anybody may have put a library of that name.
void SystemLibrary::Load() {
    isTried_ = true;
    char folder[MAX_PATH];
    const UINT length = ::GetSystemDirectoryA(folder, MAX_PATH);
    if (length == 0 || length >= MAX_PATH) return;
    const std::string path = std::string(folder, length) + "\\" + fileName_;
    module_ = ::LoadLibraryA(path.c_str());
}

}  // namespace velkarix
