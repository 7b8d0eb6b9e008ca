#include "shell/TextFile.h"

#include <cstdint>
#include <span>

#include "base/Bytes.h"

namespace velkarix {

namespace {

ErrorCode WriteAll(FileSystem& files, FileHandle file, std::string_view text) {
    std::uint32_t written = 0;
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const ErrorCode result = files.WriteFile(file, std::span(bytes, text.size()), written);
    if (result != error::Success) return result;
    return written == text.size() ? error::Success : error::HandleDiskFull;
}

ErrorCode Write(FileSystem& files, const std::string& path, FileUse use, std::string_view text) {
    FileHandle file = 0;
    const ErrorCode opened = files.CreateFileA(path, use, file);
    if (opened != error::Success) return opened;
    const ErrorCode written = WriteAll(files, file, text);
    files.CloseFile(file);
    return written;
}

}  // namespace

ErrorCode ReadTextFile(FileSystem& files, const std::string& path, std::string& text) {
    constexpr std::size_t BlockSize = 64 * 1024;

    text.clear();
    FileHandle file = 0;
    const ErrorCode opened = files.CreateFileA(path, FileUse::Read, file);
    if (opened != error::Success) return opened;
    Bytes block(BlockSize);
    std::uint32_t read = 0;
    ErrorCode result = error::Success;
    do {
        result = files.ReadFile(file, block, read);
        if (result == error::Success) text.append(block.begin(), block.begin() + read);
    } while (result == error::Success && read > 0);
    files.CloseFile(file);
    return result;
}

std::optional<std::string> ReadTextFile(FileSystem& files, const std::string& path) {
    std::string text;
    if (ReadTextFile(files, path, text) != error::Success) return std::nullopt;
    return text;
}

std::optional<std::string> ReadFirstLine(FileSystem& files, const std::string& path) {
    const std::optional<std::string> text = ReadTextFile(files, path);
    if (!text || text->empty()) return std::nullopt;
    return text->substr(0, text->find_first_of("\r\n"));
}

ErrorCode WriteTextFile(FileSystem& files, const std::string& path, std::string_view text) {
    return Write(files, path, FileUse::Replace, text);
}

ErrorCode WriteThrough(FileSystem& files, FileHandle file, std::string_view text) {
    ErrorCode result = WriteAll(files, file, text);
    if (result == error::Success) result = files.FlushFileBuffers(file);
    files.CloseFile(file);
    return result;
}

ErrorCode AppendTextFile(FileSystem& files, const std::string& path, std::string_view text) {
    return Write(files, path, FileUse::Append, text);
}

std::vector<std::string> SplitLines(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = text.find_first_of("\r\n");
        lines.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos) break;
        const bool pair = text.substr(end, 2) == "\r\n";
        text.remove_prefix(end + (pair ? 2 : 1));
    }
    return lines;
}

}  // namespace velkarix
