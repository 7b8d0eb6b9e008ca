// Lists of malicious controls of any bytes: each line that names a control gets its key, however
// the file comes in pieces and wherever reading it breaks off, the keys are set and taken away by
// the letter of the rules, and nothing else in the registry changes.
#include <algorithm>

#include "fuzzing/FuzzTarget.h"
#include "fuzzing/PiecewiseFiles.h"
#include "fuzzing/RegistryInput.h"
#include "tests/machine/TestProgram.h"
#include "utilities/ActiveXList.h"

namespace velkarix {

namespace {

using Names = std::vector<std::string>;

constexpr Hive Machines = Hive::LocalMachine;
constexpr const char* Path = "C:\\Velkarix\\MalActivex.scl";
constexpr const char* Holder = "SOFTWARE\\Microsoft\\Internet Explorer\\ActiveX Compatibility";
constexpr std::size_t LongestName = 255;
constexpr std::size_t LongestPath = 32767;

// Where each key of a path ends; backslashes in a row divide as one does.
std::vector<std::size_t> LevelEnds(const std::string& path) {
    std::vector<std::size_t> ends;
    for (std::size_t i = 0; i < path.size(); ++i) {
        const bool isLast = i + 1 == path.size() || path[i + 1] == '\\';
        if (path[i] != '\\' && isLast) ends.push_back(i + 1);
    }
    return ends;
}

// The rules as they are told: the keys that a list names.
Names KeysByTheRules(const std::string& file, bool isWhole) {
    Names keys;
    std::string line;
    const auto endLine = [&] {
        const std::string key = std::string(Holder) + "\\" + line;
        const bool isName = !line.empty() && line[0] != '\\' && line.find('\0') == line.npos;
        if (isName && key.size() <= LongestPath) keys.push_back(key);
        line.clear();
    };
    for (const char c : file) {
        if (c != '\r' && c != '\n') {
            line += c;
        } else {
            endLine();
        }
    }
    if (isWhole) endLine();
    return keys;
}

// Whether it depends on the code page where the key's path, which takes more than one call, can be
// parted.
bool IsOfDoubtfulLevels(const std::string& key) {
    constexpr std::size_t LongestCall = 259;
    return key.size() > LongestCall && HasDoubtfulBackslash(key);
}

// Sets them; up to where a name is too long for the registry its path is made.
void SetByTheRules(MemoryHives& hives, const Names& keys) {
    for (const std::string& key : keys) {
        std::size_t made = 0;
        bool isWhole = true;
        for (const std::size_t end : LevelEnds(key)) {
            const std::size_t start = key.find_first_not_of('\\', made);
            isWhole = isWhole && end - start <= LongestName;
            if (isWhole) made = end;
        }
        hives.AddKey(Machines, key.substr(0, made));
        if (isWhole) hives.SetDword(Machines, key.substr(0, made), "Compatibility Flags", 0x400);
    }
}

// And takes them away where a registry file can hold them; the newer systems leave a key that has
// others below it.
void TakeByTheRules(MemoryHives& hives, const Names& listed, bool isOldSystem) {
    Names keys;
    for (const std::string& key : listed) {
        if (hives.HasKey(Machines, key) && !HasControls(key) &&
            CanBeWritten(hives, Machines, key)) {
            keys.push_back(key);
        }
    }
    for (const std::string& key : keys) {
        if (!hives.HasKey(Machines, key)) continue;
        if (isOldSystem || hives.SubKeysOf(Machines, key).empty()) hives.RemoveKey(Machines, key);
    }
}

// Some lines, and perhaps one that is longer than any path.
std::string TakeFile(FuzzInput& input) {
    const std::string file = input.Text();
    const std::size_t length = input.Byte() * std::size_t{256};
    return length == 0 ? file : file + std::string(length, static_cast<char>(input.Byte()));
}

void LookAtPieces(FuzzInput& input, const std::string& file) {
    MemoryMachine machine;
    PiecewiseFiles files(machine.Journal(), machine.disk);
    machine.AddFile(Path).Content(file);
    files.pieceSize = input.Byte() + std::size_t{1};
    const bool isWhole = !input.Flag();
    files.readable = isWhole ? file.size() + 1 : input.Byte() % (file.size() + 1);
    const std::string read = file.substr(0, files.readable);
    Names keys;
    const ErrorCode result =
        ForEachListedKey(files, Path, [&](const std::string& key) { keys.push_back(key); });
    Expect(keys == KeysByTheRules(read, isWhole), "each control on the list has its key", read);
    Expect((result == error::Success) == isWhole, "who can't read the list says so", read);
    Expect(files.OpenFileCount() == 0, "the file is closed");
}

void LookAtCommands(FuzzInput& input, const std::string& file) {
    const NamedSystem system = allNamedSystems[input.Below(allNamedSystems.size())];
    TestProgram program(system);
    MemoryHives expected;
    program.machine.AddFile(Path).Content(file);
    while (!input.AtEnd()) {
        const std::string key = (input.Flag() ? std::string(Holder) + "\\" : "") +
                                TakeKeyName(input) + (input.Flag() ? "\\Below" : "");
        const std::string name = TakeValueName(input);
        const RawValue value = TakeValue(input);
        for (MemoryHives* hives : {&expected, static_cast<MemoryHives*>(&program.machine.registry)})
            hives->SetRaw(Machines, key, name, value.type, value.data);
    }
    const Names keys = KeysByTheRules(file, true);
    if (std::any_of(keys.begin(), keys.end(), IsOfDoubtfulLevels)) return;
    program.application.forms.Show("frmUtilities");
    const auto expectState = [&](const char* button, const char* done) {
        program.desktop.messages.clear();
        program.Get<Button>("frmUtilities", button).Raise("Click");
        Expect(program.machine.registry.TreeText(Machines, "") == expected.TreeText(Machines, ""),
               "the listed keys change, and nothing else", file);
        Expect(!program.desktop.messages.empty() && program.desktop.messages.back().text == done,
               "the user is told", file);
        Expect(program.machine.registry.OpenKeyCount() == 0, "what was opened is closed");
    };
    SetByTheRules(expected, keys);
    expectState("cmdActiveXProtect", "Protection activated Successfully.");
    TakeByTheRules(expected, keys, FamilyOf(system) == Family::Windows95);
    expectState("cmdActiveXRemove", "Protection removed Successfully.");
}

}  // namespace

void RunInput(FuzzInput& input) {
    const std::string file = TakeFile(input);
    LookAtPieces(input, file);
    LookAtCommands(input, file);
}

std::vector<Bytes> Seeds() {
    using namespace std::string_view_literals;
    const std::string name(256, 'n');
    const std::string controls =
        "{1B5E7C11-2F30-4B61-9D0A-6C1E5B7F0002}\r\n"
        "{1B5E7C11-2F30-4B61-9D0A-6C1E5B7F0003}\r\n";
    const std::string files[] = {
        controls,
        "{A}\r{a}\n{A}\n\r\r\n{B}",
        "{A}\\Below\r\n{A}\r\n{B}\\\r\n{B}\\\\x\r\n",
        "\\\r\n\\{A}\r\n..\r\n \r\n.\r\n",
        "{A}\\" + name + "\r\n" + name + "\r\n" + name.substr(1) + "\r\n",
        std::string("\0\r\n{A}\0{B}\r\n"sv),
        "",
    };
    std::vector<Bytes> seeds;
    for (const std::string& file : files) {
        for (std::size_t system = 0; system < allNamedSystems.size(); ++system) {
            FuzzSeed seed;
            seed.Text(file).Byte(0).Byte(7 * system).Byte(system % 2);
            if (system % 2 != 0) seed.Byte(file.size() / 2);
            seed.Byte(system);
            for (const char* key : {"{A}", "{B}", "{KEPT}"}) {
                seed.Byte(1).Byte(Literal).Text(key).Byte(1).Byte(1).Byte(2);
            }
            seeds.push_back(seed);
        }
    }
    for (const std::size_t length : {127u, 128u}) {
        seeds.push_back(FuzzSeed().Text("{A}\r\n{B}").Byte(length).Byte('\\').Byte(255));
    }
    return seeds;
}

}  // namespace velkarix
