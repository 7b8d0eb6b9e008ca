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

void ShowFileFacts(const Machine& machine, ListRow& row, const FileColumns& columns,
                   const std::string& path) {
    // The facts' numbers are those of clsProcess.
    const std::pair<std::size_t, int> facts[] = {{columns.created, 12},
                                                 {columns.company, 7},
                                                 {columns.product, 0},
                                                 {columns.description, 2}};
    clsProcess file(machine);
    file.GetFileDescription(path);
    row.SetText(columns.size, FileSizeText(machine.files, path));
    for (const auto& [column, fact] : facts) row.SetText(column, file.getItem(fact));
}

}  // namespace velkarix
