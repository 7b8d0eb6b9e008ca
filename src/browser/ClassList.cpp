#include "browser/ClassList.h"

#include "base/Text.h"
#include "shell/FilePaths.h"
#include "shell/ListServices.h"
#include "shell/Suspicion.h"
#include "shell/modMD5.h"

namespace velkarix {

ClassList::ClassList(Application& application, Form& page, const ItemListShape& shape)
    : ItemList(application, page, shape) {}

void ClassList::AddRow(const ItemPlace& place, const std::string&, const std::string& name,
                       bool enabled) {
    AddClassRow(place, {name, name, ClassDescription(name), ClassFile(name), {}}, enabled);
}

void ClassList::AddClassRow(const ItemPlace& place, const ClassItem& item, bool enabled) {
    const Machine& machine = application_.machine;
    const ItemColumns& columns = shape_.columns;
    const bool exists = PathExists(machine.files, item.path);
    const bool suspicious = IsSuspicious(item, exists);
    std::size_t image = DefaultImage;
    if (exists) image = item.image ? *item.image : AddFileIcon(machine.shell, images_, item.path);
    ListRow& row = AddItemRow(place, item.name, image, enabled);
    if (columns.clsid != 0) row.SetText(columns.clsid, item.clsid);
    row.SetText(columns.description, item.description);
    row.SetText(columns.file, FileNameOf(item.path));
    row.SetText(columns.folder, FolderOf(item.path));
    if (exists) ShowFileFacts(row, columns.facts, ReadFileFacts(machine, item.path));
    MarkRow(application_.appearance, row, enabled, suspicious);
}

// A file is hashed only where the class alone doesn't tell.
bool ClassList::IsSuspicious(const ClassItem& item, bool fileExists) {
    if (IsSuspiciousClsid(application_, ToLower(item.clsid))) return true;
    return fileExists &&
           IsSuspiciousFileHash(application_,
                                GetFileMD5(application_.machine, item.path, application_.progress));
}

std::string ClassList::ClassDescription(const std::string& clsid) {
    return application_.registry.GetStringValue(Hive::ClassesRoot, "CLSID\\" + clsid, "");
}

std::string ClassList::ClassFile(const std::string& clsid) {
    if (clsid.empty()) return {};
    return CleanPath(application_.machine,
                     application_.registry.GetStringValue(
                         Hive::ClassesRoot, "CLSID\\" + clsid + "\\InprocServer32", ""));
}

}  // namespace velkarix
