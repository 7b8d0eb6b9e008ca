#include "HostFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

namespace velkarix {
namespace {

// 0 is no handle, but may be a descriptor.
FileHandle HandleOf(int descriptor) {
    return static_cast<FileHandle>(descriptor) + 1;
}

int DescriptorOf(FileHandle file) {
    return static_cast<int>(file - 1);
}

}  // namespace

SearchHandle HostFiles::FindFirstFileA(const std::string& pattern, FoundFile& found) {
    const std::filesystem::path path(pattern);
    std::error_code failure;
    if (!std::filesystem::exists(path, failure)) return 0;
    found.attributes = GetFileAttributesA(pattern);
    found.size = std::filesystem::file_size(path, failure);
    found.name = path.filename().string();
    return 1;
}

bool HostFiles::FindNextFileA(SearchHandle, FoundFile&) {
    return false;
}

bool HostFiles::FindClose(SearchHandle) {
    return true;
}

std::optional<bool> HostFiles::PathFileExistsA(const std::string& path) {
    std::error_code failure;
    return std::filesystem::exists(path, failure);
}

std::uint32_t HostFiles::GetFileAttributesA(const std::string& path) {
    std::error_code failure;
    const std::filesystem::file_status status = std::filesystem::status(path, failure);
    if (!std::filesystem::exists(status)) return fileAttribute::Invalid;
    return std::filesystem::is_directory(status) ? fileAttribute::Directory : 0;
}

ErrorCode HostFiles::CreateDirectoryA(const std::string&) {
    return error::AccessDenied;
}

ErrorCode HostFiles::CopyFileA(const std::string&, const std::string&) {
    return error::AccessDenied;
}

ErrorCode HostFiles::DeleteFileA(const std::string&) {
    return error::AccessDenied;
}

std::string HostFiles::GetShortPathNameA(const std::string&, std::uint32_t) {
    return {};
}

bool HostFiles::MoveFileExA(const std::string&) {
    return false;
}

ErrorCode HostFiles::CreateFileA(const std::string& path, FileUse use, FileHandle& file) {
    if (use != FileUse::Read) return error::AccessDenied;
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) return error::FileNotFound;
    file = HandleOf(descriptor);
    return error::Success;
}

std::optional<std::uint64_t> HostFiles::GetFileSize(FileHandle file) {
    struct stat status = {};
    if (fstat(DescriptorOf(file), &status) != 0) return std::nullopt;
    return static_cast<std::uint64_t>(status.st_size);
}

ErrorCode HostFiles::ReadFile(FileHandle file, std::span<std::uint8_t> buffer,
                              std::uint32_t& read) {
    const ssize_t count = ::read(DescriptorOf(file), buffer.data(), buffer.size());
    if (count < 0) return error::AccessDenied;
    read = static_cast<std::uint32_t>(count);
    return error::Success;
}

ErrorCode HostFiles::WriteFile(FileHandle, std::span<const std::uint8_t>, std::uint32_t&) {
    return error::AccessDenied;
}

ErrorCode HostFiles::FlushFileBuffers(FileHandle) {
    return error::AccessDenied;
}

bool HostFiles::CloseFile(FileHandle file) {
    return close(DescriptorOf(file)) == 0;
}

}  // namespace velkarix
