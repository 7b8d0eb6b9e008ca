// Rows that stand for a file: the pictures and the facts that all lists show of one.
#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "forms/ImageList.h"
#include "forms/ListView.h"
#include "platform/Machine.h"

namespace velkarix {

// The image of a row whose file gave none.
inline constexpr std::size_t DefaultImage = 1;

// The columns in which a list shows the facts of a row's file.
struct FileColumns {
    std::size_t size;
    std::size_t created;
    std::size_t company;
    std::size_t product;
    std::size_t description;
};

// The stock picture of a row that stands for a program or library without an icon of its own.
inline constexpr const char* SoftwarePicture = "Software";

// Empties the list, and its pictures but for those stock pictures. Without any the list shows none.
void ClearRows(ListView& list, ImageList& images, std::span<const char* const> stockPictures);
// Adds the file's small icon at `index`. Gives the image, which is the default one when there is
// no such icon.
std::size_t AddFileIcon(Shell& shell, ImageList& images, const std::string& path, int index = 0);
// The texts of those columns; what can't be read is empty.
struct FileFacts {
    std::string size;
    std::string created;
    std::string company;
    std::string product;
    std::string description;
};

FileFacts ReadFileFacts(const Machine& machine, const std::string& path);
void ShowFileFacts(ListRow& row, const FileColumns& columns, const FileFacts& facts);

}  // namespace velkarix
