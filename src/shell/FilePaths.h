// Paths and folders: from what a registry value or a shortcut holds to a real file and its size.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Machine.h"

namespace velkarix {

// Whether the system takes a level of the path for a device, in whatever folder it stands and with
// whatever extension: looking into one may wait for ever, and the older systems break down over
// two of them in one path.
bool NamesDevice(std::string_view path);

// Whether there is a file or folder. A device is neither.
bool PathExists(FileSystem& files, const std::string& path);

// The file name: what stands behind the last backslash, or the whole path when that is its first
// character or missing.
std::string FileNameOf(std::string_view path);
// The path up to and with its last backslash.
std::string FolderOf(std::string_view path);

// Replaces %NAME%, then turns short levels (those with "~") into long ones. A path with neither
// sign comes back as it is.
std::string CleanPath(const Machine& machine, const std::string& path);
// Replaces %NAME% where NAME is set; empty when that can't be done.
std::string ExpandEnvPath(SystemFacts& system, const std::string& path);
// The path with the long name of each level; as it was when a level doesn't exist.
std::string GetLongPath(FileSystem& files, const std::string& path);
// The first file of this name in a folder of the variable "path"; empty when there is none.
std::string FindOnPath(const Machine& machine, const std::string& fileName);
// The names, without the folder, of the files that fit `pattern` (* and ?), hidden ones too.
std::vector<std::string> ListFolderFiles(FileSystem& files, const std::string& folder,
                                         const std::string& pattern);

// A file's length in bytes; nothing when there is no such file.
std::optional<std::uint64_t> FileLength(FileSystem& files, const std::string& path);
// Kilobytes with one digit behind the point: 1023 bytes are "1.0".
std::string SizeText(std::uint64_t length);
// The size of a file as SizeText gives it; empty when there is no such file.
std::string FileSizeText(FileSystem& files, const std::string& path);

// Shows the file in a window of its folder. The path goes into the command without quotes.
void ShowInExplorer(Shell& shell, WindowHandle mainWindow, const std::string& path);

}  // namespace velkarix
