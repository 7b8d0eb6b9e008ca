// The backup of a deleted program file: a copy of it, and a line that says where it was. Both lie
// in the backup folder beside the program, under one stem.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Clock.h"

namespace velkarix {

// Separates the fields of the line.
inline constexpr char FieldMark = '\x01';

inline constexpr const char* BackupCopyExtension = ".bup";
inline constexpr const char* BackupRecordExtension = ".prc";

// With a backslash at its end.
std::string BackupFolder(const std::string& installFolder);

// The stem of a backup of this moment: month, day, day of the year, hour, minute and second, joined
// by underscores. Two backups in one second share it.
std::string BackupStem(const SystemTime& now);

struct BackupRecord {
    std::string path;  // of the file that was deleted
    std::string date;  // in the user's short form
};

std::string BackupLine(const BackupRecord& record);
// Nothing when the line isn't one of a backup.
std::optional<BackupRecord> ParseBackupLine(std::string_view line);

}  // namespace velkarix
