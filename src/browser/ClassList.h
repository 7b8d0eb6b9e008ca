// The lists whose rows show a class and the file behind it. The class registration stays where it
// is when an item is switched off, so that a held row shows as much as a live one.
#pragma once

#include <algorithm>
#include <array>
#include <iterator>
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

// All these lists end with the columns of the file. Each of the functions below gives a list's own
// beginning with that end.
inline constexpr std::size_t FileColumnCount = 7;

template <std::size_t Own>
constexpr std::array<const char*, Own + FileColumnCount> WithFileCaptions(
    const char* const (&own)[Own]) {
    constexpr const char* File[] = {"File Name",    "Size (KB)",    "Created On",
                                    "Company Name", "Prodcut Name", "File Description",
                                    "Path"};
    std::array<const char*, Own + FileColumnCount> all{};
    std::copy(std::begin(own), std::end(own), all.begin());
    std::copy(std::begin(File), std::end(File), all.begin() + Own);
    return all;
}

// `first` is the column of the file's name.
constexpr ItemColumns WithFileColumns(ItemColumns own, std::size_t first) {
    own.file = first;
    own.facts = {first + 1, first + 2, first + 3, first + 4, first + 5};
    own.folder = first + 6;
    return own;
}

template <std::size_t Own>
constexpr std::array<ReportLine, Own + FileColumnCount> WithFileLines(const ReportLine (&own)[Own],
                                                                      int first) {
    constexpr const char* Labels[] = {
        "File Name         : ", "Size (Kb)         : ", "Created on        : ",
        "Company Name      : ", "Product Name      : ", "Description       : ",
        "Path              : "};
    std::array<ReportLine, Own + FileColumnCount> all{};
    std::copy(std::begin(own), std::end(own), all.begin());
    for (int i = 0; const char* label : Labels) {
        all[Own + static_cast<std::size_t>(i)] = {label, ReportValue::Column, first + i};
        ++i;
    }
    return all;
}

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
