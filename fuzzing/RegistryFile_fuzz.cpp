// Keys and values of any names, types and bytes, written as a registry file: merging the file
// brings back what stood there, or else nothing was written, for a reason.
#include "fuzzing/FuzzTarget.h"
#include "fuzzing/RegistryInput.h"
#include "registry/RegistryFile.h"
#include "tests/machine/MemoryMachine.h"
#include "tests/machine/RegistryFileMerge.h"

namespace velkarix {

namespace {

constexpr Hive User = Hive::CurrentUser;
constexpr const char* Top = "Software\\Example";

void WriteTree(MemoryMachine& machine) {
    std::string sections = "before";
    const ErrorCode written = ExportKeyTree(machine.registry, User, Top, sections);
    const bool canBeWritten = CanBeWritten(machine.registry, User, Top);
    Expect((written == error::Success) == canBeWritten, "what can be written is written");
    if (!canBeWritten) {
        Expect(sections == "before", "what can't be written leaves no trace", sections);
        return;
    }
    MemoryHives merged;
    const std::string file = std::string(RegistryFileHeader) + sections.substr(6);
    Expect(MergeRegistryFile(merged, file), "the file can be merged", file);
    Expect(merged.TreeText(User, Top) == machine.registry.TreeText(User, Top),
           "merging brings the tree back", file);
}

void WriteValues(MemoryMachine& machine) {
    for (const std::string& name : machine.registry.ValueNamesOf(User, Top)) {
        std::string section(RegistryFileHeader);
        const ErrorCode written = ExportValue(machine.registry, User, Top, name, section);
        // By its name nobody gets at a value with a NUL in it.
        if (name.find('\0') != std::string::npos) continue;
        Expect((written == error::Success) == CanBeWritten(name), "what can be written is", name);
        if (written != error::Success) continue;
        MemoryHives merged;
        Expect(MergeRegistryFile(merged, section), "the section can be merged", section);
        Expect(merged.ValueAt(User, Top, name) == machine.registry.ValueAt(User, Top, name),
               "merging brings the value back", section);
    }
}

}  // namespace

void RunInput(FuzzInput& input) {
    MemoryMachine machine;
    machine.AddKey(User, Top);
    while (!input.AtEnd()) {
        std::string key = Top;
        for (std::size_t levels = input.Below(4); levels > 0; --levels) {
            key += "\\" + TakeKeyName(input);
        }
        const std::string name = TakeValueName(input);
        const RawValue value = TakeValue(input);
        machine.registry.SetRaw(User, key, name, value.type, value.data);
    }
    WriteTree(machine);
    WriteValues(machine);
}

std::vector<Bytes> Seeds() {
    std::vector<Bytes> seeds;
    FuzzSeed values;
    for (std::size_t value = 0; value < HardValueCount; ++value) {
        values.Byte(0).Byte(Literal).Text("value " + std::to_string(value)).Byte(value);
    }
    seeds.push_back(values);
    for (std::size_t name = 0; name < HardNameCount; ++name) {
        seeds.push_back(FuzzSeed().Byte(0).Byte(name).Byte(0));
        seeds.push_back(FuzzSeed().Byte(2).Byte(1).Byte(name).Byte(1).Byte(2));
    }
    return seeds;
}

}  // namespace velkarix
