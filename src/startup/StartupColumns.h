// The columns of the startup list.
#pragma once

#include <string>

#include "forms/ListView.h"
#include "shell/FileRows.h"

namespace velkarix {

namespace startupColumn {
constexpr std::size_t Name = 0;
constexpr std::size_t Enabled = 1;
constexpr std::size_t Location = 2;
constexpr std::size_t Command = 3;
constexpr std::size_t File = 4;
constexpr FileColumns Facts = {5, 6, 7, 8, 9};
constexpr std::size_t Folder = 10;  // with its last backslash
}  // namespace startupColumn

inline constexpr const char* StartupColumnCaptions[] = {
    "Name",       "Enabled",      "Location",     "Command",     "File Name", "File Size [Kb]",
    "Created On", "Company Name", "Prodcut Name", "Description", "Path"};

// The path of a row's file; empty when the row has none.
inline std::string StartupFile(const ListRow& row) {
    return row.Text(startupColumn::Folder) + row.Text(startupColumn::File);
}

}  // namespace velkarix
