// Replacing a small text file of the program's own so that wherever the program ends, and whatever
// fails, one whole text stands: the old one or the new one.
#pragma once

#include <string>
#include <string_view>

#include "platform/FileSystem.h"

namespace velkarix {

// The new text is first written beside the file, under its name and ".new", with an end mark, put
// on the disk and read back; only then the file itself is written over, and what stands beside goes
// when that is on the disk too, or the file couldn't be opened for writing. The code of what
// failed, or Success: after a failure the next read gives the old text, or the new one where the
// file had been opened. Nothing is written while an earlier replacement can't be finished.
ErrorCode ReplaceTextFile(FileSystem& files, const std::string& path, std::string_view text);

// The file's text, after a replacement that was cut short has been finished; its new text also
// where that fails. Results as of ReadTextFile.
ErrorCode ReadReplacedTextFile(FileSystem& files, const std::string& path, std::string& text);

}  // namespace velkarix
