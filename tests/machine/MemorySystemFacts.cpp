#include "tests/machine/MemorySystemFacts.h"

#include <string_view>

#include "tests/machine/CaseFold.h"

namespace velkarix {
namespace {

struct ErrorText {
    ErrorCode code;
    std::string_view text;
};

constexpr ErrorText errorTexts[] = {
    {error::Success, "The operation completed successfully."},
    {error::FileNotFound, "The system cannot find the file specified."},
    {error::PathNotFound, "The system cannot find the path specified."},
    {error::AccessDenied, "Access is denied."},
    {error::InvalidHandle, "The handle is invalid."},
    {error::InvalidData, "The data is invalid."},
    {error::WriteFault, "The system cannot write to the specified device."},
    {error::SharingViolation,
     "The process cannot access the file because it is being used by another process."},
    {error::HandleDiskFull, "The disk is full."},
    {error::InvalidParameter, "The parameter is incorrect."},
    {error::ProcNotFound, "The specified procedure could not be found."},
    {error::AlreadyExists, "Cannot create a file when that file already exists."},
    {error::MoreData, "More data is available."},
    {error::NoMoreItems, "No more data is available."},
    {error::BadKey, "The configuration registry key is invalid."},
    {error::CantWrite, "The configuration registry key could not be written."},
    {error::KeyDeleted,
     "Illegal operation attempted on a registry key that has been marked for deletion."},
};

std::optional<std::string> IfItFits(const std::string& text, std::uint32_t capacity) {
    return text.size() < capacity ? std::optional(text) : std::nullopt;
}

}  // namespace

MemorySystemFacts::MemorySystemFacts(CallJournal& journal) : journal_(journal) {
    SetSystem(NamedSystem::WindowsXp);
    SetVariable("windir", "C:\\WINDOWS");
    SetVariable("SystemRoot", "C:\\WINDOWS");
    SetVariable("SystemDrive", "C:");
    SetVariable("ProgramFiles", "C:\\Program Files");
    SetVariable("Path", "C:\\WINDOWS\\SYSTEM32;C:\\WINDOWS");
}

void MemorySystemFacts::SetSystem(NamedSystem system) {
    version_ = VersionInfoOf(system);
    versionNumber_ = VersionNumberOf(system);
}

void MemorySystemFacts::SetVariable(const std::string& name, const std::string& value) {
    variables_[FoldCase(name)] = value;
}

std::string MemorySystemFacts::Variable(const std::string& name) const {
    const auto found = variables_.find(FoldCase(name));
    return found == variables_.end() ? std::string() : found->second;
}

std::optional<VersionInfo> MemorySystemFacts::GetVersionExA() {
    return journal_.Enter("GetVersionExA") ? std::nullopt : std::optional(version_);
}

std::uint32_t MemorySystemFacts::GetVersion() {
    journal_.Enter("GetVersion");
    return versionNumber_;
}

std::optional<std::string> MemorySystemFacts::GetComputerNameA(std::uint32_t capacity) {
    return journal_.Enter("GetComputerNameA", std::to_string(capacity))
               ? std::nullopt
               : IfItFits(computerName_, capacity);
}

std::optional<std::string> MemorySystemFacts::GetUserNameA(std::uint32_t capacity) {
    return journal_.Enter("GetUserNameA", std::to_string(capacity)) ? std::nullopt
                                                                    : IfItFits(userName_, capacity);
}

std::string MemorySystemFacts::FormatMessageA(ErrorCode code, std::uint32_t capacity) {
    if (journal_.Enter("FormatMessageA", std::to_string(code))) {
        return {};
    }
    for (const ErrorText& row : errorTexts) {
        if (row.code == code) {
            return IfItFits(std::string(row.text) + "\r\n", capacity).value_or("");
        }
    }
    return {};
}

std::string MemorySystemFacts::GetEnvironmentVariableA(const std::string& name) {
    return journal_.Enter("GetEnvironmentVariableA", name) ? std::string() : Variable(name);
}

std::optional<std::string> MemorySystemFacts::ExpandEnvironmentStringsA(const std::string& text,
                                                                        std::uint32_t capacity) {
    if (journal_.Enter("ExpandEnvironmentStringsA", text)) {
        return std::nullopt;
    }
    std::string expanded;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = text[at] == '%' ? text.find('%', at + 1) : std::string::npos;
        if (end == std::string::npos) {
            expanded += text[at++];
            continue;
        }
        const std::string value = Variable(text.substr(at + 1, end - at - 1));
        // An unknown variable stays with both its signs.
        expanded += value.empty() ? text.substr(at, end + 1 - at) : value;
        at = end + 1;
    }
    return IfItFits(expanded, capacity);
}

// The code page is one that holds the characters up to 255 under their own numbers.
std::string MemorySystemFacts::WideCharToMultiByte(std::u16string_view text) {
    journal_.Enter("WideCharToMultiByte");
    std::string ansi;
    for (const char16_t c : text) ansi += c < 256 ? static_cast<char>(c) : '?';
    return ansi;
}

std::string MemorySystemFacts::GetModuleFileNameA() {
    return journal_.Enter("GetModuleFileNameA") ? std::string() : programPath_;
}

}  // namespace velkarix
