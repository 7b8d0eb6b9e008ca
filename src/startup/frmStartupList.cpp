// The list of the startup page: how it is filled.
#include <utility>
#include <vector>

#include "base/Text.h"
#include "shell/FilePaths.h"
#include "shell/FolderListing.h"
#include "shell/ListServices.h"
#include "shell/Settings.h"
#include "shell/Suspicion.h"
#include "shell/modMD5.h"
#include "startup/CleanCommand.h"
#include "startup/StartupColumns.h"
#include "startup/frmStartup.h"

namespace velkarix {

namespace {

constexpr const char* Pictures[] = {SoftwarePicture};

constexpr const char* ShellFolders =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders\\";

std::string Expanded(const Machine& machine, const std::string& path) {
    return path.find('%') == std::string::npos ? path : ExpandEnvPath(machine.system, path);
}

// The parts between commas.
std::vector<std::string> SplitAtCommas(const std::string& text) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (std::size_t comma = 0; (comma = text.find(',', start)) != std::string::npos;
         start = comma + 1) {
        parts.push_back(text.substr(start, comma - start));
    }
    parts.push_back(text.substr(start));
    return parts;
}

}  // namespace

void frmStartup::ClearStartupList() {
    ClearRows(lstvStartup_, imglStartup_, Pictures);
    seenFiles_.clear();
    seenIcons_.clear();
}

// ---- Values

void frmStartup::LoadRun(Hive hive) {
    for (const bool enabled : {true, false}) {
        for (const RunKey& key : RunKeys) {
            if (key.hive == hive) ScanRunKey(key, enabled);
        }
    }
}

// A value that holds no text is listed all the same, with nothing that it starts.
void frmStartup::ScanRunKey(const RunKey& key, bool enabled) {
    const std::string path = RunKeyPath(application_, key, enabled);
    const std::vector<RegValueEntry> values = application_.registry.EnumValues(key.hive, path);
    Progress::Work work(application_.progress, lstvStartup_.Text(), values.size());
    for (const RegValueEntry& value : values) {
        work.Step(value.name);
        const std::string command =
            value.tag == RegValueTag::Text ? std::get<std::string>(value.data) : std::string();
        const std::string file =
            Expanded(application_.machine, CleanCommand(application_.machine, command));
        AddRow({value.name, command, key.location, file, file, 0}, enabled);
    }
}

// ---- Shortcuts

void frmStartup::ResolveFolders() {
    FileSystem& files = application_.machine.files;
    const std::string installed = application_.settings.InstallFolder();
    for (const StartupFolder& folder : StartupFolders) {
        folders_[{folder.location, true}] =
            application_.registry.GetStringValue(folder.hive, ShellFolders, folder.valueName);
        if (installed.empty()) continue;  // what is held just anywhere isn't found again
        std::string held = installed + "\\" + folder.heldFolder;
        if (!PathExists(files, held)) files.CreateDirectoryA(held);
        folders_[{folder.location, false}] = std::move(held);
    }
}

const std::string& frmStartup::FolderOfShortcuts(const StartupFolder& folder, bool enabled) const {
    static const std::string none;
    const auto found = folders_.find({folder.location, enabled});
    return found == folders_.end() ? none : found->second;
}

void frmStartup::LoadFolder(const char* location) {
    const StartupFolder& folder = *FindStartupFolder(location);
    for (const bool enabled : {true, false}) {
        ScanShortcutFolder(FolderOfShortcuts(folder, enabled), location, enabled);
    }
}

void frmStartup::ScanShortcutFolder(const std::string& folder, const char* location, bool enabled) {
    FileSystem& files = application_.machine.files;
    if (folder.empty() || !shortcuts_) return;
    const std::vector<std::string> names = ListFolder(application_, folder, "*.lnk");
    Progress::Work work(application_.progress, lstvStartup_.Text(), names.size());
    for (const std::string& name : names) {
        work.Step(name);
        const std::optional<Shortcut> shortcut = shortcuts_->Open(folder + "\\" + name);
        // One whose target is gone, or that leads to no file, isn't listed.
        if (!shortcut || !PathExists(files, shortcut->targetPath)) continue;
        AddShortcutRow(name, *shortcut, location, enabled);
    }
}

void frmStartup::AddShortcutRow(const std::string& name, const Shortcut& shortcut,
                                const char* location, bool enabled) {
    const std::string command = "\"" + shortcut.targetPath + "\" " + shortcut.arguments;
    std::string iconFile = shortcut.targetPath;
    // Without a comma the index of the shortcut before this one stays.
    const std::vector<std::string> icon = SplitAtCommas(shortcut.iconLocation);
    if (icon.size() > 1) {
        if (PathExists(application_.machine.files, icon[0])) iconFile = icon[0];
        iconIndex_ = RoundedNumber(icon[1]);
    }
    AddRow({name, command, location, Expanded(application_.machine, shortcut.targetPath), iconFile,
            iconIndex_},
           enabled);
}

// ---- Both

const frmStartup::SeenFile& frmStartup::LookAt(const std::string& path) {
    const auto [place, isNew] = seenFiles_.try_emplace(ToLower(path));
    SeenFile& file = place->second;
    const Machine& machine = application_.machine;
    if (!isNew || !PathExists(machine.files, path)) return file;
    file.exists = true;
    // Only the file decides whether an item is suspicious.
    file.suspicious =
        IsSuspiciousFileHash(application_, GetFileMD5(machine, path, application_.progress));
    file.facts = ReadFileFacts(machine, path);
    return file;
}

std::size_t frmStartup::ImageOf(const std::string& file, int index) {
    const auto [place, isNew] = seenIcons_.try_emplace({ToLower(file), index}, DefaultImage);
    if (isNew && PathExists(application_.machine.files, file)) {
        place->second = AddFileIcon(application_.machine.shell, imglStartup_, file, index);
    }
    return place->second;
}

void frmStartup::AddRow(const StartupItem& item, bool enabled) {
    const SeenFile& file = LookAt(item.path);
    ListRow& row = lstvStartup_.Add("", item.name, ImageOf(item.iconFile, item.iconIndex));
    row.SetText(startupColumn::Enabled, EnabledText(enabled));
    row.SetText(startupColumn::Location, item.location);
    row.SetText(startupColumn::Command, item.command);
    if (file.exists) {
        // Joined they give the path again, also where it begins with its only backslash.
        const std::string name = FileNameOf(item.path);
        row.SetText(startupColumn::File, name);
        row.SetText(startupColumn::Folder, item.path.substr(0, item.path.size() - name.size()));
        ShowFileFacts(row, startupColumn::Facts, file.facts);
    }
    MarkRow(application_.appearance, row, enabled, file.suspicious);
}

}  // namespace velkarix
