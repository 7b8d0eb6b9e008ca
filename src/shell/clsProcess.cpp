#include "shell/clsProcess.h"

#include <cstdint>
#include <cstdio>
#include <optional>

#include "base/Bytes.h"
#include "base/Text.h"
#include "shell/DirectorySearch.h"

namespace velkarix {
namespace {

// By row.
constexpr const char* FieldNames[] = {
    "ProductName",    "ProductVersion",   "FileDescription", "FileVersion",
    "InternalName",   "OriginalFilename", "Comments",        "CompanyName",
    "LegalCopyright", "LegalTrademarks",  "PrivateBuild",    "SpecialBuild",
};
constexpr std::size_t CreationDateRow = std::size(FieldNames);

// All lengths inside a resource have 16 bits, so that a size far beyond that is made up.
constexpr std::uint32_t LargestResource = 1024 * 1024;

// The name of the table of strings for a translation, whose bytes are two little-endian words:
// 09 04 B0 04 is "040904B0".
std::string LanguageKey(const Bytes& translation) {
    char key[9];
    std::snprintf(key, sizeof key, "%02X%02X%02X%02X", translation[1], translation[0],
                  translation[3], translation[2]);
    return key;
}

}  // namespace

void clsProcess::GetFileDescription(const std::string& path) {
    values_.fill({});
    ReadVersion(path);
    values_[CreationDateRow] = CreationDate(path);
}

void clsProcess::ReadVersion(const std::string& path) {
    VersionResources& resources = machine_.versionResources;
    const std::uint32_t size = resources.GetFileVersionInfoSizeA(path);
    if (size < 1 || size > LargestResource) return;
    const std::optional<Bytes> block = resources.GetFileVersionInfoA(path, size);
    if (!block) return;
    // The fixed block holds nothing that is shown.
    resources.VerQueryValueA(*block, "\\");
    const std::optional<Bytes> translation =
        resources.VerQueryValueA(*block, "\\VarFileInfo\\Translation");
    if (!translation || translation->size() < 4) return;
    // The first translation alone counts, also when there are no strings for it.
    const std::string table = "\\StringFileInfo\\" + LanguageKey(*translation) + "\\";
    for (std::size_t row = 0; row < std::size(FieldNames); ++row) {
        const std::optional<Bytes> text = resources.VerQueryValueA(*block, table + FieldNames[row]);
        if (text) values_[row] = TrimAtNull(std::string(text->begin(), text->end()));
    }
}

std::string clsProcess::CreationDate(const std::string& path) {
    const std::optional<FoundFile> found = FindEntry(machine_.files, path, searchFor::Everything);
    if (!found) return {};
    const std::optional<FileTime> local =
        machine_.clock.FileTimeToLocalFileTime(found->creationTime);
    if (!local) return {};
    const std::optional<SystemTime> time = machine_.clock.FileTimeToSystemTime(*local);
    if (!time) return {};
    char date[40];
    std::snprintf(date, sizeof date, "%02d/%02d/%04d", time->month, time->day, time->year);
    return date;
}

const std::string& clsProcess::getItem(int row) const {
    return values_.at(static_cast<std::size_t>(row));
}

}  // namespace velkarix
