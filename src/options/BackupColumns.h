// The columns of the list of backups.
#pragma once

#include <cstddef>

namespace velkarix::backupColumn {

constexpr std::size_t DeletedOn = 0;
constexpr std::size_t FileName = 1;
constexpr std::size_t Folder = 2;  // with its last backslash

}  // namespace velkarix::backupColumn
