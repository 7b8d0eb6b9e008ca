// The columns of the process list, and what its rows tell by them.
#pragma once

#include <string>
#include <vector>

#include "forms/ListView.h"

namespace velkarix {

namespace processColumn {
constexpr std::size_t Name = 0;
constexpr std::size_t Size = 1;
constexpr std::size_t Created = 2;
constexpr std::size_t Company = 3;
constexpr std::size_t Product = 4;
constexpr std::size_t Description = 5;
constexpr std::size_t Folder = 6;  // with its last backslash
}  // namespace processColumn

std::vector<std::string> ProcessColumnCaptions();

// The path of a row's file: its folder, then its name.
std::string FullPath(const ListRow& row);

}  // namespace velkarix
