#include "process/ProcessColumns.h"

namespace velkarix {

std::vector<std::string> ProcessColumnCaptions() {
    return {"EXE Name",     "File Size [Kb]", "Created On", "Company Name",
            "Prodcut Name", "Description",    "Path"};
}

std::string FullPath(const ListRow& row) {
    return row.Text(processColumn::Folder) + row.Text(processColumn::Name);
}

}  // namespace velkarix
