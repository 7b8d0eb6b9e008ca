#include "Samples.h"

#include <windows.h>

#include <array>
#include <iterator>
#include <optional>
#include <vector>

#include "Setup.h"

namespace velkarix::e2e {

namespace {

// The samples that have a version resource.
struct SampleVersion {
    const char* file;
    const char* description;
    const char* comments;
};
constexpr SampleVersion Versions[] = {
    {"SampleIdle.exe", "Harmless idle program", "Sleeps until it is ended"},
    {"SampleSafe.exe", "Harmless safe program", "To be put on the safe list"},
    {"SampleSuspect.exe", "Harmless suspect", "The definition lists name this file"},
    {"SampleTray.exe", "Harmless tray program", "Found by its bare name"},
    {"SampleHelper.dll", "Harmless helper object", "Helps nobody"},
    {"SampleSnoop.dll", "Harmless snoop", "The definition lists name this file"},
    {"SampleTracker.dll", "Harmless tracker", "The definition lists name its class"},
    {"SampleToolbar.dll", "Harmless toolbar", "A band without buttons"},
    {"SampleButton.dll", "Harmless button", "Does nothing when pressed"},
    {"SampleProtocol.dll", "Harmless protocol handler", "Handles no address"},
    {"SampleHook.dll", "Harmless search hook", "Finds nothing"},
};

constexpr const char* FactNames[] = {"ProductName",     "ProductVersion", "FileDescription",
                                     "FileVersion",     "InternalName",   "OriginalFilename",
                                     "Comments",        "CompanyName",    "LegalCopyright",
                                     "LegalTrademarks", "PrivateBuild",   "SpecialBuild"};
constexpr std::size_t FactCount = std::size(FactNames);

const SampleVersion* VersionOf(const std::string& path) {
    for (const SampleVersion& version : Versions) {
        if (path.ends_with(std::string("\\") + version.file)) return &version;
    }
    return nullptr;
}

std::optional<WIN32_FIND_DATAA> FileOf(const std::string& path) {
    WIN32_FIND_DATAA file{};
    const HANDLE search = FindFirstFileA(path.c_str(), &file);
    if (search == INVALID_HANDLE_VALUE) return std::nullopt;
    FindClose(search);
    return file;
}

// The file's length in kilobytes with one decimal.
std::string SizeText(const WIN32_FIND_DATAA& file) {
    const auto tenths = static_cast<unsigned>(file.nFileSizeLow * 10.0 / 1024 + 0.5);
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

std::string DateText(const WIN32_FIND_DATAA& file) {
    FILETIME local{};
    SYSTEMTIME time{};
    FileTimeToLocalFileTime(&file.ftCreationTime, &local);
    FileTimeToSystemTime(&local, &time);
    char text[16] = "";
    wsprintfA(text, "%02u/%02u/%04u", time.wMonth, time.wDay, time.wYear);
    return text;
}

// The eight digits that the strings of a version resource lie under.
std::string FirstTranslation(std::vector<char>& block) {
    void* found = nullptr;
    UINT length = 0;
    if (!VerQueryValueA(block.data(), "\\VarFileInfo\\Translation", &found, &length) ||
        length < 2 * sizeof(WORD)) {
        return "";
    }
    const auto* words = static_cast<const WORD*>(found);
    char digits[16] = "";
    wsprintfA(digits, "%04X%04X", words[0], words[1]);
    return digits;
}

}  // namespace

RowTexts ShownFacts(const std::string& path) {
    const std::optional<WIN32_FIND_DATAA> file = FileOf(path);
    if (!file) return RowTexts(5);
    const RowTexts facts = VersionFacts(path);
    return {SizeText(*file), DateText(*file), facts[7], facts[0], facts[2]};
}

RowTexts VersionFacts(const std::string& path) {
    const SampleVersion* version = VersionOf(path);
    if (version == nullptr) return RowTexts(FactCount);
    const std::string file = version->file;
    return {"Sample Suite",
            "1.2",
            version->description,
            "1.2.3.4",
            file.substr(0, file.size() - 4),
            file,
            version->comments,
            "Sample Works",
            "Free to copy",
            "None",
            "",
            ""};
}

RowTexts FileVersionFacts(const std::string& path) {
    if (VersionOf(path) != nullptr) return VersionFacts(path);
    RowTexts facts(FactCount);
    DWORD unused = 0;
    std::vector<char> block(GetFileVersionInfoSizeA(path.c_str(), &unused));
    if (block.empty() ||
        !GetFileVersionInfoA(path.c_str(), 0, static_cast<DWORD>(block.size()), block.data())) {
        return facts;
    }
    const std::string strings = "\\StringFileInfo\\" + FirstTranslation(block) + "\\";
    for (std::size_t i = 0; i < FactCount; ++i) {
        void* text = nullptr;
        UINT length = 0;
        const std::string name = strings + FactNames[i];
        if (VerQueryValueA(block.data(), name.c_str(), &text, &length) && length != 0) {
            facts[i] = static_cast<const char*>(text);
        }
    }
    return facts;
}

RowTexts ListedRow(const std::string& path) {
    const std::size_t name = path.rfind('\\') + 1;
    RowTexts row = {path.substr(name)};
    for (const std::string& fact : ShownFacts(path)) row.push_back(fact);
    row.push_back(ListedFolder(path.substr(0, name)));
    return row;
}

std::string ListedFolder(const std::string& folder) {
    return ListsFolders() ? folder : "";
}

std::string SearchedSamplePath() {
    std::array<char, MAX_PATH> folder{};
    GetWindowsDirectoryA(folder.data(), MAX_PATH);
    return std::string(folder.data()) + "\\SampleTray.exe";
}

std::string SystemSamplePath() {
    std::array<char, MAX_PATH> path{};
    ExpandEnvironmentStringsA("%SystemRoot%\\system32\\SampleFilter.dll", path.data(), MAX_PATH);
    return path.data();
}

}  // namespace velkarix::e2e
