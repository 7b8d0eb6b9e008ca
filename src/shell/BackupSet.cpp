#include "shell/BackupSet.h"

#include "base/Dates.h"
#include "base/Text.h"

namespace velkarix {

std::string BackupFolder(const std::string& installFolder) {
    return installFolder + "\\Backup\\";
}

std::string BackupStem(const SystemTime& now) {
    const int dayOfYear = DayNumber(now.year, now.month, now.day) - DayNumber(now.year, 1, 1) + 1;
    std::string stem = std::to_string(now.month);
    for (const int number : {now.day, dayOfYear, now.hour, now.minute, now.second}) {
        stem += "_" + std::to_string(number);
    }
    return stem;
}

std::string BackupLine(const BackupRecord& record) {
    return record.path + FieldMark + record.date + std::string(LineBreak);
}

std::optional<BackupRecord> ParseBackupLine(std::string_view line) {
    const std::size_t mark = line.find(FieldMark);
    if (mark == std::string_view::npos) return std::nullopt;
    std::string_view date = line.substr(mark + 1);
    date = date.substr(0, date.find(FieldMark));
    return BackupRecord{std::string(line.substr(0, mark)), std::string(date)};
}

}  // namespace velkarix
