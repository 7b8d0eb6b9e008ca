#include "tests/shell/ItemFaults.h"

namespace velkarix {
namespace {

struct Trouble {
    enum class Kind { None, OneCall, AllFromThere, End };
    Kind kind = Kind::None;
    ErrorCode error = error::Success;
};

constexpr Trouble troubles[] = {{Trouble::Kind::OneCall, error::AccessDenied},
                                {Trouble::Kind::OneCall, error::FileNotFound},
                                {Trouble::Kind::OneCall, error::MoreData},
                                {Trouble::Kind::AllFromThere, error::AccessDenied},
                                {Trouble::Kind::End}};

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

void Arrange(CallJournal& journal, const Trouble& trouble, std::size_t call) {
    if (trouble.kind == Trouble::Kind::End) {
        journal.EndAtCall(call);
    } else if (trouble.kind != Trouble::Kind::None) {
        journal.FailCall(call, trouble.error, trouble.kind == Trouble::Kind::AllFromThere);
    }
}

// Gives how many calls the command made.
std::size_t RunCase(const ItemCommand& command, const Variant& variant, const Trouble& trouble,
                    std::size_t call) {
    ItemWorld world;
    world.machine.SetFamily(variant.family);
    world.machine.registry.SetHasCopyKey(variant.hasCopyKey);
    command.prepare(world.machine.registry);
    Arrange(world.machine.Journal(), trouble, call);
    try {
        command.give(world.application);
    } catch (const ProcessEnded&) {
    }
    MemoryHives kept;
    MergeAllBelow(*world.machine.disk.Find("C:\\"), kept);
    const std::vector<Call>& calls = world.machine.Journal().Calls();
    EXPECT_TRUE(command.stands(world.machine.registry, kept))
        << "trouble " << static_cast<int>(trouble.kind) << " with code " << trouble.error
        << " at call " << call
        << (call < calls.size() ? " " + calls[call].name + " " + calls[call].arguments : "") << "\n"
        << world.machine.registry.TreeText(Hive::CurrentUser, "Software");
    EXPECT_TRUE(trouble.kind != Trouble::Kind::None || command.done(world.machine.registry));
    return calls.size();
}

}  // namespace

void ExpectNeverLost(const ItemCommand& command) {
    for (const Family family : {Family::Windows95, Family::WindowsNt}) {
        for (const bool hasCopyKey : {true, false}) {
            const Variant variant{family, hasCopyKey};
            const std::size_t count = RunCase(command, variant, {}, 0);
            EXPECT_GT(count, 5u);
            for (std::size_t call = 0; call < count; ++call) {
                for (const Trouble& trouble : troubles) RunCase(command, variant, trouble, call);
            }
        }
    }
}

}  // namespace velkarix
