// The list of installed applications: how it is filled.
#include <optional>
#include <vector>

#include "base/Text.h"
#include "installed/SlowInfoCache.h"
#include "installed/frmAddRemove.h"
#include "shell/FilePaths.h"
#include "shell/FileRows.h"
#include "shell/clsIcon.h"

namespace velkarix {

namespace {

constexpr const char* CacheKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Management\\ARPCache\\";

constexpr const char* Pictures[] = {SoftwarePicture};

bool Holds(const std::string& text, const char* part) {
    return text.find(part) != std::string::npos;
}

}  // namespace

// Built out of sight: rows that come one by one would flicker.
void frmAddRemove::Get_Uninstall() {
    lstvAddRemove_.SetVisible(false);
    lstvAddRemove_.SetMode(ListMode::Details);
    ClearAppImages();
    std::vector<std::string> subKeys;
    application_.registry.EnumSubKeys(Hive::LocalMachine, UninstallKey, subKeys);
    Progress::Work work(application_.progress, lstvAddRemove_.Text(), subKeys.size());
    for (const std::string& subKey : subKeys) {
        work.Step(subKey);
        AddApplication(subKey);
    }
    lstvAddRemove_.SetVisible(true);
    AutoSizeColumns(lstvAddRemove_);
    View_Click();
}

void frmAddRemove::ClearAppImages() {
    ClearRows(lstvAddRemove_, imglAddRemove_, Pictures);
    ImgLarge_.Clear();
    ImgLarge_.Add(StockPicture{SoftwarePicture});
    lstvAddRemove_.SetLargeImages(&ImgLarge_);
    icons_.clear();
}

// An entry that forbids its removal, or lacks a name or a command, is no application to the user.
void frmAddRemove::AddApplication(const std::string& subKey) {
    modRegistry& registry = application_.registry;
    const std::string key = UninstallKey + subKey;
    const auto value = [&](const char* name) {
        return registry.GetStringValue(Hive::LocalMachine, key, name);
    };
    bool missing = false;
    if (registry.GetDwordValue(Hive::LocalMachine, key, "NoRemove", missing) == 1) return;
    const std::string uninstall = value("UninstallString");
    const std::string name = value("DisplayName");
    if (uninstall.empty() || name.empty()) return;
    const auto [file, index] = IconPlace(subKey, value("DisplayIcon"));
    const AppIcon icon = AddAppIcon(file, index);
    ListRow& row = lstvAddRemove_.Add(subKey, name, icon.small, icon.large);
    row.SetText(1, uninstall);
    MarkSuspiciousApp(ToLower(subKey), row);
}

// A text behind the last comma that is no number spoils the whole: it isn't taken for a part of the
// file's name.
std::pair<std::string, int> frmAddRemove::IconPlace(const std::string& subKey,
                                                    std::string displayIcon) {
    if (displayIcon.empty()) return {FileInCache(subKey), 0};
    std::erase(displayIcon, '"');
    const std::size_t comma = displayIcon.rfind(',');
    if (comma == std::string::npos) return {displayIcon, 0};
    const std::string index = displayIcon.substr(comma + 1);
    if (!StrictNumber(index)) return {};
    return {displayIcon.substr(0, comma), RoundedNumber(index)};
}

// Windows 95 and 98 keep no such record.
std::string frmAddRemove::FileInCache(const std::string& subKey) {
    if (Holds(application_.WindowsName, "98") || Holds(application_.WindowsName, "95")) return {};
    Bytes record;
    if (!application_.registry.GetBinaryValue(Hive::LocalMachine, CacheKey + subKey,
                                              "SlowInfoCache", record, true)) {
        return {};
    }
    const std::optional<std::u16string> wide = FileOfSlowInfoCache(record);
    if (!wide) return {};
    const std::string file = application_.machine.system.WideCharToMultiByte(*wide);
    return PathExists(application_.machine.files, file) ? file : std::string();
}

frmAddRemove::AppIcon frmAddRemove::AddAppIcon(const std::string& file, int iconIndex) {
    if (file.empty() || NamesDevice(file)) return {DefaultImage, DefaultImage};
    const auto [place, isNew] =
        icons_.try_emplace({ToLower(file), iconIndex}, AppIcon{DefaultImage, DefaultImage});
    if (isNew) {
        IconPictures icon = clsIcon(application_.machine.shell).GetIcons(file, iconIndex);
        // Both or none, so that a row doesn't show different icons in the two views.
        if (icon.large && icon.small) {
            place->second = {ImgLarge_.Add(std::move(*icon.large)),
                             imglAddRemove_.Add(std::move(*icon.small))};
        }
    }
    return place->second;
}

void frmAddRemove::MarkSuspiciousApp(const std::string& subKeyLowerCase, ListRow& row) {
    MarkRow(application_.appearance, row, true,
            ListContains(application_.SusInstallList, subKeyLowerCase));
}

}  // namespace velkarix
