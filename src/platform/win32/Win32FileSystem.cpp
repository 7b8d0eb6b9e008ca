#include "platform/win32/Win32FileSystem.h"

#include "platform/win32/FileTimes.h"
#include "platform/win32/SystemText.h"
#include "platform/win32/WindowsHeaders.h"

namespace velkarix {
namespace {

FileHandle Number(HANDLE handle) {
    return handle == INVALID_HANDLE_VALUE ? 0 : reinterpret_cast<FileHandle>(handle);
}

HANDLE HandleOf(FileHandle number) {
    return reinterpret_cast<HANDLE>(number);
}

FoundFile Facts(const WIN32_FIND_DATAA& data) {
    return {data.dwFileAttributes, WholeOf(data.ftCreationTime),
            std::uint64_t{data.nFileSizeHigh} << 32 | data.nFileSizeLow,
            TextOf(data.cFileName, sizeof(data.cFileName))};
}

// The 95 family doesn't know sharing with those who delete, and refuses it.
DWORD ReaderShare() {
    const bool isNt = (::GetVersion() & 0x80000000) == 0;
    return FILE_SHARE_READ | FILE_SHARE_WRITE | (isNt ? FILE_SHARE_DELETE : 0U);
}

HANDLE Open(const std::string& path, FileUse use) {
    if (use == FileUse::Read) {
        return ::CreateFileA(path.c_str(), GENERIC_READ, ReaderShare(), nullptr, OPEN_EXISTING,
                             FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
    }
    const DWORD disposition = use == FileUse::Replace ? CREATE_ALWAYS : OPEN_ALWAYS;
    return ::CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, disposition,
                         FILE_ATTRIBUTE_NORMAL, nullptr);
}

// A name like COM1 opens a device in any folder, and reading from that could wait for ever.
ErrorCode CheckedForDevice(HANDLE file) {
    return ::GetFileType(file) == FILE_TYPE_DISK ? error::Success : error::FileNotFound;
}

ErrorCode MovedToEnd(HANDLE file) {
    LONG high = 0;
    ::SetLastError(error::Success);
    const DWORD low = ::SetFilePointer(file, 0, &high, FILE_END);
    return low == INVALID_SET_FILE_POINTER ? ::GetLastError() : error::Success;
}

}  // namespace

SearchHandle Win32FileSystem::FindFirstFileA(const std::string& pattern, FoundFile& found) {
    WIN32_FIND_DATAA data;
    const HANDLE search = ::FindFirstFileA(pattern.c_str(), &data);
    if (search != INVALID_HANDLE_VALUE) found = Facts(data);
    return Number(search);
}

bool Win32FileSystem::FindNextFileA(SearchHandle search, FoundFile& found) {
    WIN32_FIND_DATAA data;
    if (!::FindNextFileA(HandleOf(search), &data)) return false;
    found = Facts(data);
    return true;
}

bool Win32FileSystem::FindClose(SearchHandle search) {
    return search != 0 && ::FindClose(HandleOf(search)) != FALSE;
}

std::optional<bool> Win32FileSystem::PathFileExistsA(const std::string& path) {
    using Call = BOOL(WINAPI*)(LPCSTR);
    const auto call = shlwapi_.Find<Call>("PathFileExistsA");
    if (call == nullptr) return std::nullopt;
    return call(path.c_str()) != FALSE;
}

std::uint32_t Win32FileSystem::GetFileAttributesA(const std::string& path) {
    return ::GetFileAttributesA(path.c_str());
}

ErrorCode Win32FileSystem::CreateDirectoryA(const std::string& path) {
    return ::CreateDirectoryA(path.c_str(), nullptr) ? error::Success : ::GetLastError();
}

ErrorCode Win32FileSystem::CopyFileA(const std::string& from, const std::string& to) {
    return ::CopyFileA(from.c_str(), to.c_str(), FALSE) ? error::Success : ::GetLastError();
}

ErrorCode Win32FileSystem::DeleteFileA(const std::string& path) {
    return ::DeleteFileA(path.c_str()) ? error::Success : ::GetLastError();
}

std::string Win32FileSystem::GetShortPathNameA(const std::string& path, std::uint32_t capacity) {
    std::string buffer(capacity, '\0');
    const DWORD length = ::GetShortPathNameA(path.c_str(), buffer.data(), capacity);
    // A buffer that is too small isn't filled, and the call tells the size that it wants.
    return length < capacity ? TextOf(buffer.data(), length) : std::string();
}

bool Win32FileSystem::MoveFileExA(const std::string& path) {
    using Call = BOOL(WINAPI*)(LPCSTR, LPCSTR, DWORD);
    const auto call = kernel_.Find<Call>("MoveFileExA");
    return call != nullptr && call(path.c_str(), nullptr, MOVEFILE_DELAY_UNTIL_REBOOT) != FALSE;
}

ErrorCode Win32FileSystem::CreateFileA(const std::string& path, FileUse use, FileHandle& file) {
    const HANDLE opened = Open(path, use);
    if (opened == INVALID_HANDLE_VALUE) return ::GetLastError();
    ErrorCode result = CheckedForDevice(opened);
    if (result == error::Success && use == FileUse::Append) result = MovedToEnd(opened);
    if (result == error::Success) {
        file = Number(opened);
    } else {
        ::CloseHandle(opened);
    }
    return result;
}

std::optional<std::uint64_t> Win32FileSystem::GetFileSize(FileHandle file) {
    DWORD high = 0;
    ::SetLastError(error::Success);
    const DWORD low = ::GetFileSize(HandleOf(file), &high);
    if (low == INVALID_FILE_SIZE && ::GetLastError() != error::Success) return std::nullopt;
    return std::uint64_t{high} << 32 | low;
}

ErrorCode Win32FileSystem::ReadFile(FileHandle file, std::span<std::uint8_t> buffer,
                                    std::uint32_t& read) {
    DWORD count = 0;
    const BOOL done = ::ReadFile(HandleOf(file), buffer.data(), static_cast<DWORD>(buffer.size()),
                                 &count, nullptr);
    const ErrorCode result = done ? error::Success : ::GetLastError();
    read = count;
    return result;
}

ErrorCode Win32FileSystem::WriteFile(FileHandle file, std::span<const std::uint8_t> data,
                                     std::uint32_t& written) {
    DWORD count = 0;
    const BOOL done =
        ::WriteFile(HandleOf(file), data.data(), static_cast<DWORD>(data.size()), &count, nullptr);
    const ErrorCode result = done ? error::Success : ::GetLastError();
    written = count;
    return result;
}

ErrorCode Win32FileSystem::FlushFileBuffers(FileHandle file) {
    return ::FlushFileBuffers(HandleOf(file)) ? error::Success : ::GetLastError();
}

bool Win32FileSystem::CloseFile(FileHandle file) {
    return ::CloseHandle(HandleOf(file)) != FALSE;
}

}  // namespace velkarix
