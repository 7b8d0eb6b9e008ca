#include "tests/machine/CallKinds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "tests/machine/CallSubject.h"

namespace velkarix {
namespace {

constexpr ErrorCode ReadFault = 30;
constexpr int MoreThanAnybodyAsks = 8;

using Kind = TroubleKind;
constexpr Trouble denied{Kind::Fails, error::AccessDenied};
constexpr Trouble gone{Kind::Gone};
constexpr Trouble keyDeleted{Kind::Fails, error::KeyDeleted};
constexpr Trouble inUse{Kind::Fails, error::SharingViolation};
constexpr Trouble diskFull{Kind::Fails, error::DiskFull};

constexpr Trouble AtAny[] = {denied};
constexpr Trouble AtKey[] = {denied, gone};
constexpr Trouble AtListing[] = {denied, keyDeleted, gone};
constexpr Trouble AtData[] = {
    denied, keyDeleted, gone, {Kind::Grows}, {Kind::Grows, 0, MoreThanAnybodyAsks}};
constexpr Trouble AtKeyChange[] = {denied, keyDeleted, gone};
constexpr Trouble AtKeyCopy[] = {denied, {Kind::Fails, error::CantWrite}, gone};
constexpr Trouble AtFile[] = {denied, inUse, gone};
constexpr Trouble AtOpening[] = {denied, inUse, diskFull, gone};
constexpr Trouble AtReading[] = {{Kind::Fails, ReadFault}};
constexpr Trouble AtWriting[] = {diskFull, {Kind::Fills}, {Kind::EndsWithin}};
constexpr Trouble AtFlushing[] = {diskFull};
constexpr Trouble AtCopying[] = {denied,           inUse, gone, {Kind::Fills}, {Kind::EndsWithin},
                                 {Kind::CutsShort}};
constexpr Trouble AtFolder[] = {denied, diskFull};

constexpr auto Looks = CallEffect::Looks;
constexpr auto Own = CallEffect::Own;
constexpr auto ChangesIt = CallEffect::Changes;

constexpr CallKind Kinds[] = {
    {"RegCreateKeyA", ChangesIt, AtKeyChange},
    {"RegOpenKeyA", Looks, AtKey},
    {"RegOpenKeyExA", Looks, AtKey},
    {"RegCloseKey", Looks, AtAny},
    {"RegDeleteKeyA", ChangesIt, AtKeyChange},
    {"RegDeleteValueA", ChangesIt, AtKeyChange},
    {"RegEnumKeyA", Looks, AtListing},
    {"RegEnumKeyExA", Looks, AtListing},
    {"RegEnumValueA", Looks, AtData},
    {"RegQueryValueExA", Looks, AtData},
    {"RegSetValueExA", ChangesIt, AtKeyChange},
    {"SHCopyKeyA", ChangesIt, AtKeyCopy},

    {"GetPrivateProfileStringA", Looks, AtAny},
    {"WritePrivateProfileStringA", ChangesIt, AtAny},
    {"GetFileVersionInfoSizeA", Looks, AtAny},
    {"GetFileVersionInfoA", Looks, AtAny},
    {"VerQueryValueA", Looks, AtAny},

    {"FindFirstFileA", Looks, AtAny},
    {"FindNextFileA", Looks, AtAny},
    {"FindClose", Looks, AtAny},
    {"PathFileExistsA", Looks, AtFile},
    {"GetFileAttributesA", Looks, AtFile},
    {"CreateDirectoryA", ChangesIt, AtFolder},
    {"CopyFileA", ChangesIt, AtCopying},
    {"DeleteFileA", ChangesIt, AtFile},
    {"GetShortPathNameA", Looks, AtFile},
    {"MoveFileExA", ChangesIt, AtFile},
    {"CreateFileA", Looks, AtOpening},  // but for writing: see Changes
    {"GetFileSize", Looks, AtAny},
    {"ReadFile", Looks, AtReading},
    {"WriteFile", ChangesIt, AtWriting},
    {"FlushFileBuffers", Looks, AtFlushing},
    {"CloseFile", Looks, AtAny},

    {"GetLocalTime", Looks, AtAny},
    {"FileTimeToLocalFileTime", Looks, AtAny},
    {"FileTimeToSystemTime", Looks, AtAny},
    {"GetDateFormatA", Looks, AtAny},
    {"GetTimeFormatA", Looks, AtAny},
    {"Sleep", Own, AtAny},
    {"VarDateFromStr", Looks, AtAny},

    {"EnumProcesses", Looks, AtAny},
    {"EnumProcessModules", Looks, AtAny},
    {"GetModuleFileNameExA", Looks, AtAny},
    {"OpenProcess", Looks, AtAny},
    {"GetExitCodeProcess", Looks, AtAny},
    {"TerminateProcess", ChangesIt, AtAny},
    {"CloseHandle", Looks, AtAny},
    {"CreateToolhelp32Snapshot", Looks, AtAny},
    {"Process32First", Looks, AtAny},
    {"Process32Next", Looks, AtAny},

    {"GetCurrentProcess", Looks, AtAny},
    {"OpenProcessToken", Looks, AtAny},
    {"LookupPrivilegeValueA", Looks, AtAny},
    {"AdjustTokenPrivileges", Own, AtAny},
    {"CloseToken", Looks, AtAny},

    {"ShellExecuteA", ChangesIt, AtAny},
    {"WinExec", ChangesIt, AtAny},
    {"ExtractIconExA", Looks, AtAny},
    {"DrawIconEx", Looks, AtAny},
    {"DestroyIcon", Looks, AtAny},
    {"MakeScriptShell", Looks, AtAny},
    {"MakeShellLink", Looks, AtAny},
    {"CreateShortcut", Looks, AtFile},
    {"Load", Looks, AtFile},

    {"GetVersionExA", Looks, AtAny},
    {"GetVersion", Looks, AtAny},
    {"GetComputerNameA", Looks, AtAny},
    {"GetUserNameA", Looks, AtAny},
    {"FormatMessageA", Looks, AtAny},
    {"GetEnvironmentVariableA", Looks, AtAny},
    {"ExpandEnvironmentStringsA", Looks, AtAny},
    {"WideCharToMultiByte", Looks, AtAny},
    {"GetModuleFileNameA", Looks, AtAny},

    {"CryptCreateHash", Looks, AtAny},
    {"CryptHashData", Looks, AtAny},
    {"CryptGetHashParam", Looks, AtAny},

    {"CreateMutexA", Own, AtAny},
    {"FindWindowA", Looks, AtAny},
    {"GetWindow", Looks, AtAny},
    {"ShowWindow", Own, AtAny},
    {"OpenIcon", Own, AtAny},
    {"SetForegroundWindow", Own, AtAny},
    {"GetSystemMenu", Looks, AtAny},
    {"GetMenuItemInfoA", Looks, AtAny},
    {"SetMenuItemInfoA", Own, AtAny},
    {"GetWindowLongA", Looks, AtAny},
    {"SetWindowLongA", Own, AtAny},
    {"SetWindowPos", Own, AtAny},
    {"GetParent", Looks, AtAny},
    {"SetParent", Own, AtAny},
    {"SendMessageA", Own, AtAny},
};

}  // namespace

const CallKind& KindOf(const Call& call) {
    static constexpr CallKind Unknown{"", ChangesIt, AtAny};
    const auto* const found =
        std::find_if(std::begin(Kinds), std::end(Kinds),
                     [&](const CallKind& kind) { return call.name == kind.name; });
    if (found != std::end(Kinds)) return *found;
    ADD_FAILURE() << "nothing is known of the call " << call.name;
    return Unknown;
}

bool Changes(const Call& call) {
    return call.forWriting || KindOf(call).effect == CallEffect::Changes;
}

void Arrange(MemoryMachine& machine, const Trouble& trouble, std::size_t number, const Call& call) {
    CallJournal& journal = machine.Journal();
    const auto leaveRoomForHalf = [&machine, call] {
        const std::uint64_t half = BytesToWrite(machine, call) / 2;
        machine.disk.SetFreeBytes(std::min(half, machine.disk.FreeBytes().value_or(half)));
    };
    switch (trouble.kind) {
        case Kind::None:
            return;
        case Kind::Fails:
            return journal.FailCall(number, trouble.error);
        case Kind::Grows:
            return journal.FailCalls(number, static_cast<std::size_t>(trouble.times),
                                     error::MoreData);
        case Kind::Fills:
            return journal.OnCall(number, leaveRoomForHalf);
        case Kind::EndsWithin:
            journal.OnCall(number, leaveRoomForHalf);
            return journal.EndAtCall(number + 1);
        case Kind::CutsShort:
            return journal.OnCall(number + 1, [&machine, call] { CutTarget(machine, call); });
        case Kind::GoneAndEnds:
            journal.EndAtCall(number + 1);
            [[fallthrough]];
        case Kind::Gone:
            return journal.OnCall(number, [&machine, call] { TakeAway(machine, call); });
        case Kind::FailsFromThere:
            return journal.FailCall(number, error::AccessDenied, true);
        case Kind::Ends:
            return journal.EndAtCall(number);
    }
}

void EndTrouble(MemoryMachine& machine) {
    machine.Journal().EndAtCall(SIZE_MAX);
    machine.Journal().OnCall(SIZE_MAX, nullptr);
    machine.Journal().FailCall(SIZE_MAX, error::Success);
    machine.disk.SetFreeBytes(std::nullopt);
    machine.files.CloseAllFiles();
}

std::string Describe(const Trouble& trouble) {
    switch (trouble.kind) {
        case Kind::None:
            return "nothing in trouble";
        case Kind::Fails:
            return "only this call failing with " + std::to_string(trouble.error);
        case Kind::Grows:
            return "the data growing " + std::to_string(trouble.times) + " times";
        case Kind::Fills:
            return "the disk filling up";
        case Kind::EndsWithin:
            return "the process ending within";
        case Kind::CutsShort:
            return "the copy cut short";
        case Kind::Gone:
        case Kind::GoneAndEnds:
            return "another taking it away";
        case Kind::FailsFromThere:
            return "all from this call on failing";
        case Kind::Ends:
            return "the process ending";
    }
    return {};
}

}  // namespace velkarix
