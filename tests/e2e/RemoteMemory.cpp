#include "RemoteMemory.h"

namespace velkarix::e2e {

RemoteMemory::RemoteMemory(HWND window, std::size_t size) {
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    process_ = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id);
    address_ = VirtualAllocEx(process_, nullptr, size, MEM_COMMIT, PAGE_READWRITE);
}

RemoteMemory::~RemoteMemory() {
    if (address_ != nullptr) VirtualFreeEx(process_, address_, 0, MEM_RELEASE);
    if (process_ != nullptr) CloseHandle(process_);
}

bool RemoteMemory::Write(std::size_t offset, const void* bytes, std::size_t size) const {
    return WriteProcessMemory(process_, Address(offset), bytes, size, nullptr) != FALSE;
}

bool RemoteMemory::Read(std::size_t offset, void* bytes, std::size_t size) const {
    return ReadProcessMemory(process_, Address(offset), bytes, size, nullptr) != FALSE;
}

}  // namespace velkarix::e2e
