// Command lines and paths of any bytes: from a command to the path of its file by the letter of the
// rules, and what is made of paths is the path again or nothing.
#include <algorithm>

#include "base/Text.h"
#include "fuzzing/FuzzTarget.h"
#include "shell/FilePaths.h"
#include "startup/CleanCommand.h"
#include "tests/machine/MemoryMachine.h"

namespace velkarix {

namespace {

constexpr const char* SearchPath = "C:\\WINDOWS\\system32;;C:\\WINDOWS";

// The rules as they are told, with positions from 1 and 0 for none.
std::size_t Position(const std::string& text, const std::string& part) {
    return text.find(part) + 1;
}

std::string Left(const std::string& text, std::size_t count) {
    return text.substr(0, count);
}

std::string ByTheRules(const Machine& machine, std::string s) {
    s.erase(std::remove(s.begin(), s.end(), '"'), s.end());
    std::size_t p = Position(ToLower(s), ".exe");
    if (p == 0) p = Position(ToLower(s), ".dll");
    const std::size_t c = Position(s, ":");
    if (p == 0) return s;
    if (c >= 2) return p + 5 > c ? Left(s.substr(c - 2), p + 5 - c) : "";
    const std::string found = FindOnPath(machine, Left(s, p + 3));
    return found.empty() ? s : found;
}

void LookAtPath(MemoryMachine& machine, const std::string& path) {
    const std::string folder = FolderOf(path);
    const std::string name = FileNameOf(path);
    const bool isOneLevel = path.rfind('\\') == 0;
    Expect(isOneLevel ? name == path : folder + name == path, "a path is its folder and name",
           path);
    const std::string whole = GetLongPath(machine.files, path);
    Expect(whole == path || machine.disk.Find(whole) == machine.disk.Find(path),
           "a long path leads to the same file", path);
    const std::string expanded = ExpandEnvPath(machine.system, path);
    Expect(expanded == path || path.find('%') != std::string::npos, "no sign, nothing to expand",
           path);
    CleanPath(machine.Parts(), path);
    PathExists(machine.files, path);
    FileSizeText(machine.files, path);
    ListFolderFiles(machine.files, path, "*.lnk");
}

}  // namespace

void RunInput(FuzzInput& input) {
    MemoryMachine machine;
    machine.system.SetVariable("path", input.Flag() ? SearchPath : "");
    for (const char* file : {"explorer.exe", "system32\\ctfmon.exe", "system32\\NvCpl.dll"}) {
        machine.AddFile(std::string("C:\\WINDOWS\\") + file);
    }
    machine.AddFile("C:\\Program Files\\Some Tools\\agent.exe").ShortName("AGENT~1.EXE");
    machine.disk.AddFolder("C:\\Program Files").ShortName("PROGRA~1");
    machine.AddFile("\\\\server\\share\\tool.exe").Content("MZ");
    const Machine parts = machine.Parts();
    const std::string command = input.Rest();
    const std::string path = CleanCommand(parts, command);
    Expect(path == ByTheRules(parts, command), "the rules are kept", path);
    Expect(path.find('"') == std::string::npos, "a path holds no quotes", path);
    LookAtPath(machine, command);
    LookAtPath(machine, path);
    LookAtPath(machine, ExpandEnvPath(parts.system, path));
}

std::vector<Bytes> Seeds() {
    const std::string name(300, 'n');
    const std::string commands[] = {
        "",
        "\"C:\\Program Files\\Some Tools\\agent.exe\" /min",
        "C:\\PROGRA~1\\SOMETO~1\\AGENT~1.EXE",
        "rundll32 C:\\WINDOWS\\system32\\NvCpl.dll,NvStartup",
        "rundll32.exe C:\\WINDOWS\\system32\\NvCpl.dll,NvStartup",
        "ctfmon.exe",
        "NvCpl.DLL",
        "%SystemRoot%\\explorer.exe %1 %",
        "%ProgramFiles%\\%",
        "\\\\server\\share\\tool.exe -x",
        "\\\\?\\C:\\WINDOWS\\explorer.exe",
        "\\\\.\\pipe\\x.exe",
        "C:\\con.exe",
        "C:\\WINDOWS\\aux",
        "a.exe:stream",
        ":x.exe",
        "C:\\" + name + ".exe",
        name + "\\..\\x.dll",
        "C:/WINDOWS/./explorer.exe",
        std::string("C:\\a\0b.exe", 10),
    };
    std::vector<Bytes> seeds;
    for (const std::string& command : commands) seeds.push_back(FuzzSeed().Byte(1).Rest(command));
    return seeds;
}

}  // namespace velkarix
