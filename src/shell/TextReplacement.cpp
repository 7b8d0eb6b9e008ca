#include "shell/TextReplacement.h"

#include "shell/TextFile.h"

namespace velkarix {

namespace {

// A text beside the file that ends so was written whole.
constexpr std::string_view EndMark = "\x1A\r\n";

std::string BesideOf(const std::string& path) {
    return path + ".new";
}

ErrorCode WriteAndCompare(FileSystem& files, const std::string& path, const std::string& text) {
    const ErrorCode written = WriteTextFile(files, path, text);
    if (written != error::Success) return written;
    return ReadTextFile(files, path) == text ? error::Success : error::WriteFault;
}

// Writes the file over, while the new text stands beside it.
ErrorCode Finish(FileSystem& files, const std::string& path, const std::string& text) {
    const auto before = ReadTextFile(files, path);
    const ErrorCode written = WriteAndCompare(files, path, text);
    // A file that couldn't even be opened for writing is as it was, and stays the one that counts.
    if (written == error::Success || (before && ReadTextFile(files, path) == before)) {
        files.DeleteFileA(BesideOf(path));
    }
    return written;
}

}  // namespace

ErrorCode ReplaceTextFile(FileSystem& files, const std::string& path, std::string_view text) {
    const std::string whole(text);
    const ErrorCode beside = WriteAndCompare(files, BesideOf(path), whole + std::string(EndMark));
    if (beside == error::Success) return Finish(files, path, whole);
    files.DeleteFileA(BesideOf(path));
    return beside;
}

ErrorCode ReadReplacedTextFile(FileSystem& files, const std::string& path, std::string& text) {
    std::string beside;
    const ErrorCode read = ReadTextFile(files, BesideOf(path), beside);
    // What stands there may be all that is left.
    if (read != error::Success && read != error::FileNotFound && read != error::PathNotFound) {
        text.clear();
        return read;
    }
    if (!beside.ends_with(EndMark)) {
        // It broke off before the file was touched.
        if (read == error::Success) files.DeleteFileA(BesideOf(path));
        return ReadTextFile(files, path, text);
    }
    text = beside.substr(0, beside.size() - EndMark.size());
    Finish(files, path, text);
    return error::Success;
}

}  // namespace velkarix
