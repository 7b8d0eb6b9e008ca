// Small text files, read and written whole.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileSystem.h"

namespace velkarix {

// Gives the code of what failed, FileNotFound when there is no such file; `text` is the file's
// bytes on Success, else those that were read before.
ErrorCode ReadTextFile(FileSystem& files, const std::string& path, std::string& text);
// The file's bytes; nothing when it can't be opened or read to its end.
std::optional<std::string> ReadTextFile(FileSystem& files, const std::string& path);
// The file's first line without its end; nothing when the file is empty or can't be read.
std::optional<std::string> ReadFirstLine(FileSystem& files, const std::string& path);
// Replaces the file. The code of what failed, or Success; a disk that takes less than all of the
// text is HandleDiskFull.
ErrorCode WriteTextFile(FileSystem& files, const std::string& path, std::string_view text);
// The same for a file that is open for writing: writes the text, has it put on the disk, and closes
// the file.
ErrorCode WriteThrough(FileSystem& files, FileHandle file, std::string_view text);
// Writes behind the file's end and makes it when missing; results as of WriteTextFile.
ErrorCode AppendTextFile(FileSystem& files, const std::string& path, std::string_view text);
// The lines of a text without their ends, which are CR LF, CR or LF. A last line without an end
// counts, an empty text has none.
std::vector<std::string> SplitLines(std::string_view text);

}  // namespace velkarix
