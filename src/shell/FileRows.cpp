#include "shell/FileRows.h"

#include <optional>
#include <utility>

#include "shell/FilePaths.h"
#include "shell/clsIcon.h"
#include "shell/clsProcess.h"

namespace velkarix {

void ClearRows(ListView& list, ImageList& images, std::span<const char* const> stockPictures) {
    list.Clear();
    list.SetImages(nullptr);
    images.Clear();
    for (const char* picture : stockPictures) images.Add(StockPicture{picture});
    if (!stockPictures.empty()) list.SetImages(&images);
}

std::size_t AddFileIcon(Shell& shell, ImageList& images, const std::string& path, int index) {
    std::optional<Picture> icon = clsIcon(shell).GetIconFromFile(path, index, false);
    return icon ? images.Add(std::move(*icon)) : DefaultImage;
}

FileFacts ReadFileFacts(const Machine& machine, const std::string& path) {
    clsProcess file(machine);
    file.GetFileDescription(path);
    return {FileSizeText(machine.files, path), file.getItem(12), file.getItem(7), file.getItem(0),
            file.getItem(2)};
}

void ShowFileFacts(ListRow& row, const FileColumns& columns, const FileFacts& facts) {
    row.SetText(columns.size, facts.size);
    row.SetText(columns.created, facts.created);
    row.SetText(columns.company, facts.company);
    row.SetText(columns.product, facts.product);
    row.SetText(columns.description, facts.description);
}

}  // namespace velkarix
