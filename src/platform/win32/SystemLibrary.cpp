#include "platform/win32/SystemLibrary.h"

#include <string>

#include "platform/win32/WindowsHeaders.h"

namespace velkarix {
namespace {

// The function of a library that is always loaded, which not every Windows has; null without it.
template <typename Function>
Function KernelCall(const char* name) {
    const FARPROC found = ::GetProcAddress(::GetModuleHandleA("kernel32.dll"), name);
    return reinterpret_cast<Function>(reinterpret_cast<void*>(found));
}

// Whether the program's manifest has the system take this library from the folder of its versions.
// It does so by the bare name only, and searches nowhere else then.
bool IsNamedByManifest(const char* fileName) {
    const auto find = KernelCall<decltype(&::FindActCtxSectionStringA)>("FindActCtxSectionStringA");
    ACTCTX_SECTION_KEYED_DATA found{};
    found.cbSize = sizeof(found);
    return find != nullptr &&
           find(0, nullptr, ACTIVATION_CONTEXT_SECTION_DLL_REDIRECTION, fileName, &found) != FALSE;
}

// By its full path: a bare name would also be searched in the program's own folder and in the
// current one, where anybody may have put a library of that name. The flag has the libraries that
// it needs itself searched beside it, and not beside the program.
HMODULE LoadFromSystemFolder(const char* fileName) {
    char folder[MAX_PATH];
    const UINT length = ::GetSystemDirectoryA(folder, MAX_PATH);
    if (length == 0 || length >= MAX_PATH) return nullptr;
    const std::string path = std::string(folder, length) + "\\" + fileName;
    return ::LoadLibraryExA(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

}  // namespace

SystemLibrary::AnyFunction SystemLibrary::Address(const char* name) {
    if (!isTried_) {
        isTried_ = true;
        module_ = IsNamedByManifest(fileName_) ? ::LoadLibraryA(fileName_)
                                               : LoadFromSystemFolder(fileName_);
    }
    if (module_ == nullptr) return nullptr;
    return reinterpret_cast<AnyFunction>(::GetProcAddress(static_cast<HMODULE>(module_), name));
}

void SearchLibrariesInSystemFolderOnly() {
    constexpr DWORD SystemFolder = 0x800;  // LOAD_LIBRARY_SEARCH_SYSTEM32, newer than our headers
    using Folders = BOOL(WINAPI*)(DWORD);
    if (const auto call = KernelCall<Folders>("SetDefaultDllDirectories")) call(SystemFolder);
    using Folder = BOOL(WINAPI*)(LPCSTR);
    if (const auto call = KernelCall<Folder>("SetDllDirectoryA")) call("");
}

}  // namespace velkarix
