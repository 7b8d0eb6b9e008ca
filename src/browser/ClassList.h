// The lists whose rows show a class and the file behind it. The class registration stays where it
// is when an item is switched off, so that a held row shows as much as a live one.
#pragma once

#include <optional>
#include <string>

#include "browser/ItemList.h"

namespace velkarix {

// What a row of such a list is made of.
struct ClassItem {
    std::string name;  // of the item's key or value: the row's text
    std::string clsid;
    std::string description;
    std::string path;  // of the file
    // The picture, where it isn't the file's own; a row whose file is gone doesn't show it.
    std::optional<std::size_t> image;
};

// The picture of rows whose file gives none.
inline constexpr const char* ClassPictures[] = {SoftwarePicture};

class ClassList : public ItemList {
  protected:
    ClassList(Application& application, Form& page, const ItemListShape& shape);

    // The row of an item that is named by its class.
    void AddRow(const ItemPlace& place, const std::string& holder, const std::string& name,
                bool enabled) override;
    void AddClassRow(const ItemPlace& place, const ClassItem& item, bool enabled);

    // The description that the class is registered with.
    std::string ClassDescription(const std::string& clsid);
    // The path of the file that the class is registered with.
    std::string ClassFile(const std::string& clsid);

  private:
    bool IsSuspicious(const ClassItem& item, bool fileExists);
};

}  // namespace velkarix
