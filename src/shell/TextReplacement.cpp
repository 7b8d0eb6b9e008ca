#include "shell/TextReplacement.h"

#include <optional>

#include "shell/TextFile.h"

namespace velkarix {

namespace {

// A text beside the file that ends so was written whole.
constexpr std::string_view EndMark = "\x1A\r\n";

std::string BesideOf(const std::string& path) {
    return path + ".new";
}

// `cut` tells whether the file was opened, and so isn't what it was before.
ErrorCode WriteAndCompare(FileSystem& files, const std::string& path, const std::string& text,
                          bool& cut) {
    FileHandle file = 0;
    const ErrorCode opened = files.CreateFileA(path, FileUse::Replace, file);
    cut = opened == error::Success;
    if (!cut) return opened;
    const ErrorCode written = WriteThrough(files, file, text);
    if (written != error::Success) return written;
    return ReadTextFile(files, path) == text ? error::Success : error::WriteFault;
}

// Finishes a replacement that was cut short, if there is one; `text` is what it was to write then.
// It stands beside the file until the file holds it. The code of what failed, or Success.
ErrorCode FinishEarlier(FileSystem& files, const std::string& path,
                        std::optional<std::string>& text) {
    std::string beside;
    const ErrorCode read = ReadTextFile(files, BesideOf(path), beside);
    if (read == error::FileNotFound || read == error::PathNotFound) return error::Success;
    if (read != error::Success) return read;
    if (!beside.ends_with(EndMark)) {
        // It broke off before the file was touched.
        files.DeleteFileA(BesideOf(path));
        return error::Success;
    }
    text = beside.substr(0, beside.size() - EndMark.size());
    bool cut = false;
    const ErrorCode written = WriteAndCompare(files, path, *text, cut);
    if (written == error::Success) files.DeleteFileA(BesideOf(path));
    return written;
}

}  // namespace

ErrorCode ReplaceTextFile(FileSystem& files, const std::string& path, std::string_view text) {
    // What an earlier one has left beside may be the only whole text.
    std::optional<std::string> earlier;
    const ErrorCode finished = FinishEarlier(files, path, earlier);
    if (finished != error::Success) return finished;
    const std::string whole(text);
    bool cut = false;
    ErrorCode written = WriteAndCompare(files, BesideOf(path), whole + std::string(EndMark), cut);
    if (written != error::Success) {
        files.DeleteFileA(BesideOf(path));
        return written;
    }
    written = WriteAndCompare(files, path, whole, cut);
    // A file that couldn't even be opened for writing is as it was, and stays the one that counts.
    if (written == error::Success || !cut) files.DeleteFileA(BesideOf(path));
    return written;
}

ErrorCode ReadReplacedTextFile(FileSystem& files, const std::string& path, std::string& text) {
    std::optional<std::string> earlier;
    const ErrorCode finished = FinishEarlier(files, path, earlier);
    text = earlier.value_or("");
    if (earlier) return error::Success;
    // What stands beside and can't be read may be all that is left.
    return finished == error::Success ? ReadTextFile(files, path, text) : finished;
}

}  // namespace velkarix
