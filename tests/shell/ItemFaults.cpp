#include "tests/shell/ItemFaults.h"

#include "tests/machine/FaultRunner.h"

namespace velkarix {
namespace {

struct Variant {
    Family family;
    bool hasCopyKey;
};

void MergeAllBelow(const MemoryEntry& folder, MemoryHives& hives) {
    for (std::size_t i = 0; const auto entry = folder.children.At(i); ++i) {
        if (entry->name.ends_with(".reg")) {
            MergeRegistryFile(hives, std::string(entry->content.begin(), entry->content.end()));
        }
        MergeAllBelow(*entry, hives);
    }
}

std::string FindLoss(const ItemCommand& command, const MemoryMachine& machine) {
    MemoryHives kept;
    MergeAllBelow(*machine.disk.Find("C:\\"), kept);
    if (command.stands(machine.registry, kept)) return {};
    return machine.registry.TreeText(Hive::CurrentUser, "Software");
}

void Prepare(const ItemCommand& command, const Variant& variant, MemoryMachine& machine) {
    machine.SetFamily(variant.family);
    machine.registry.SetHasCopyKey(variant.hasCopyKey);
    command.prepare(machine.registry);
}

}  // namespace

void ExpectNeverLost(const ItemCommand& command) {
    FaultRunner runner;
    for (const Family family : {Family::Windows95, Family::WindowsNt}) {
        for (const bool hasCopyKey : {true, false}) {
            const Variant variant{family, hasCopyKey};
            ItemWorld world;
            Prepare(command, variant, world.machine);
            command.give(world.application);
            EXPECT_TRUE(command.done(world.machine.registry));
            runner.Run("item",
                       {"item", [&](MemoryMachine& machine) { Prepare(command, variant, machine); },
                        [](RunningProgram&) {},
                        [&](RunningProgram& program) { command.give(program.application); },
                        [&](MemoryMachine& machine) { return FindLoss(command, machine); }});
        }
    }
}

}  // namespace velkarix
