#include "process/ProcessColumns.h"

namespace velkarix {

std::vector<std::string> ProcessColumnCaptions() {
    return {"EXE Name",     "File Size [Kb]", "Created On", "Company Name",
            "Prodcut Name", "Description",    "Path"};
}

std::string ProcessName(std::string_view path) {
    const std::size_t last = path.rfind('\\');
    if (last == std::string_view::npos || last == 0) return std::string(path);
    return std::string(path.substr(last + 1));
}

std::string ProcessFolder(std::string_view path) {
    return std::string(path.substr(0, path.rfind('\\') + 1));
}

std::string FullPath(const ListRow& row) {
    return row.Text(processColumn::Folder) + row.Text(processColumn::Name);
}

}  // namespace velkarix
