// What the target of the pages begins with: hard names and values at each place, and the commands
// of each list on them.
#include <algorithm>
#include <iterator>

#include "fuzzing/FuzzTarget.h"
#include "fuzzing/PageData.h"
#include "fuzzing/PageLists.h"
#include "fuzzing/RegistryInput.h"
#include "startup/StartupPlaces.h"
#include "tests/machine/TestProgram.h"

namespace velkarix {

namespace {

// A page, and gestures on its controls by their names.
class PageSeed {
  public:
    PageSeed(std::size_t page, std::size_t system) : form_(Loaded(FuzzedPages[page])) {
        bytes.Byte(page).Byte(system).Byte(system % 2);
    }

    PageSeed& Click(const char* control) { return Touch(control, 0); }
    PageSeed& TickAll(const char* list) { return Touch(list, 0); }
    PageSeed& SelectFirst(const char* list) { return Touch(list, 1); }

    FuzzSeed bytes;

  private:
    Form& Loaded(const char* page) {
        program_.application.forms.Show(page);
        return *program_.application.forms.Loaded(page);
    }
    // In the first of the gesture's ways.
    PageSeed& Touch(const char* control, std::size_t gesture) {
        const auto& controls = form_.Controls();
        const auto found = std::find(controls.begin(), controls.end(), form_.Find(control));
        Expect(found != controls.end(), "a page has the controls of its seeds", control);
        bytes.Byte(static_cast<std::size_t>(PagePart::Count)).Byte(1);
        bytes.Byte(static_cast<std::size_t>(found - controls.begin())).Byte(gesture).Byte(0);
        return *this;
    }

    TestProgram program_;
    Form& form_;
};

std::string NameOf(std::size_t number) {
    return "{" + std::to_string(number) + "}";
}

// A few hard values in one seed: what isn't large is worked on often.
constexpr std::size_t GroupSize = 5;
// The numbers of such values.
constexpr std::size_t PathValue = 4;
constexpr std::size_t Dword2 = 17;

std::vector<std::size_t> GroupOf(std::size_t group, std::size_t count) {
    std::vector<std::size_t> numbers;
    for (std::size_t i = group * GroupSize; i < std::min(count, (group + 1) * GroupSize); ++i) {
        numbers.push_back(i);
    }
    return numbers;
}

// Whether a seed's values have hard data or hard names.
enum class Hard { Data, Names };

std::size_t CountOf(Hard hard) {
    return hard == Hard::Data ? HardValueCount : HardNameCount;
}

// At one place of a list: moved there and back, written down and deleted.
Bytes SeedOfList(std::size_t list, std::size_t place, bool enabled, Hard hard, std::size_t group) {
    PageSeed seed(0, (list + place + group) % allNamedSystems.size());
    const PageList& controls = PageLists[list];
    const bool isKey = controls.places.kind == ItemKind::Key;
    for (const std::size_t number : GroupOf(group, CountOf(hard))) {
        const std::string name = hard == Hard::Data ? "Name" : HardName(number);
        const std::string item = isKey || hard == Hard::Data ? NameOf(number) : "{" + name;
        const auto put = [&](const std::string& valueName) -> FuzzSeed& {
            return PutItemSeed(seed.bytes, list, place, enabled, item, valueName);
        };
        put(name).Byte(hard == Hard::Data ? number : Dword2);
        if (!isKey) continue;
        // What makes a row of it.
        PutValue(put("CLSID"), registryType::Sz, item);
        PutValue(put("Script"), registryType::Sz, ItemFile);
        put("*").Byte(Dword2);
    }
    seed.TickAll(controls.list).Click(enabled ? controls.disable : controls.enable);
    seed.TickAll(controls.list).Click(enabled ? controls.enable : controls.disable);
    seed.Click(controls.report).SelectFirst(controls.list).Click(controls.remove);
    return seed.bytes;
}

// Values that are started at logon.
Bytes SeedOfRun(bool enabled, Hard hard, std::size_t group) {
    PageSeed seed(1, group % allNamedSystems.size());
    for (const std::size_t number : GroupOf(group, CountOf(hard))) {
        const bool hasHardName = hard == Hard::Names;
        PutRunSeed(seed.bytes, number % RunKeys.size(), enabled,
                   hasHardName ? HardName(number) : NameOf(number))
            .Byte(hasHardName ? PathValue : number);
    }
    seed.TickAll("lstvStartup").Click(enabled ? "cmdDisable" : "cmdEnable").TickAll("lstvStartup");
    seed.Click(enabled ? "cmdEnable" : "cmdDisable").Click("cmdReport");
    seed.SelectFirst("lstvStartup").Click("cmdDelete");
    return seed.bytes;
}

Bytes SeedOfShortcuts(std::size_t group) {
    PageSeed seed(1, group % allNamedSystems.size());
    for (std::size_t folder = 0; folder < 4; ++folder) {
        for (const std::size_t name : {0u, 1u}) {
            seed.bytes.Byte(static_cast<std::size_t>(PagePart::Shortcut)).Byte(folder).Byte(name);
            seed.bytes.Byte(0).Text(ItemFile).Text("/x").Text("C:\\icon.dll,1");
        }
        // One without a byte.
        seed.bytes.Byte(static_cast<std::size_t>(PagePart::Shortcut)).Byte(folder).Byte(2).Byte(1);
        seed.bytes.Byte(0);
    }
    seed.TickAll("lstvStartup").Click("cmdDisable").TickAll("lstvStartup").Click("cmdEnable");
    seed.SelectFirst("lstvStartup").Click("cmdDelete");
    return seed.bytes;
}

Bytes SeedOfInstalled(std::size_t group) {
    PageSeed seed(2, group % allNamedSystems.size());
    for (const std::size_t value : GroupOf(group, HardValueCount)) {
        const std::string key = "App " + std::to_string(value);
        const auto put = [&](bool isRecord, const char* name) -> FuzzSeed& {
            return PutInstalledSeed(seed.bytes, isRecord, key, name);
        };
        PutValue(put(false, "DisplayName"), registryType::Sz, key);
        PutValue(put(false, "UninstallString"), registryType::Sz, ItemFile);
        if (value % 2 == 0) put(false, "DisplayIcon").Byte(value);
        put(false, "NoRemove").Byte(value);
        put(true, "SlowInfoCache").Byte(value);
    }
    seed.Click("cmdReport").SelectFirst("lstvAddRemove").Click("cmdDelete");
    return seed.bytes;
}

Bytes SeedOfProcesses(std::size_t kind) {
    PageSeed seed(3, kind % allNamedSystems.size());
    for (std::size_t number = 0; number < 4; ++number) {
        PutProcessSeed(seed.bytes, number, number == 0 ? kind : 7);
    }
    seed.TickAll("lstvProcess").Click("cmdAdd").Click("optFilter(1)").Click("cmdReport");
    for (const char* command : {"cmdDelete", "cmdKill", "cmdDelete"}) {
        seed.SelectFirst("lstvProcess").Click(command);
    }
    return seed.bytes;
}

// Something of each kind, for the full report.
Bytes SeedOfReport(std::size_t group) {
    PageSeed seed(4, group % allNamedSystems.size());
    for (const std::size_t number : GroupOf(group, HardValueCount)) {
        const std::string name = NameOf(number);
        for (std::size_t list = 0; list < std::size(PageLists); ++list) {
            const std::string item = NameOf(number + HardValueCount * (1 + list));
            PutItemSeed(seed.bytes, list, 0, true, item, "*").Byte(Dword2);
            PutItemSeed(seed.bytes, list, 0, false, item, "CLSID").Byte(number);
        }
        PutRunSeed(seed.bytes, number % RunKeys.size(), true, name).Byte(PathValue);
        for (const char* value : {"DisplayName", "UninstallString"}) {
            PutValue(PutInstalledSeed(seed.bytes, false, name, value), registryType::Sz, name);
        }
        PutProcessSeed(seed.bytes, number % 4, number % 8);
    }
    seed.Click("chkProcess").Click("cmdReport");
    return seed.bytes;
}

Bytes SeedOfSettings(std::size_t value) {
    PageSeed seed(0, value % allNamedSystems.size());
    for (std::size_t setting = 0; setting < 20; ++setting) {
        seed.bytes.Byte(static_cast<std::size_t>(PagePart::Setting)).Byte(setting);
        if (setting == 4) seed.bytes.Byte(Literal).Text("http");
        seed.bytes.Byte(value);
    }
    seed.Click("cmdProxyApply").Click("cmdApply").Click("cmdSecurityZoneApply");
    return seed.bytes;
}

}  // namespace

std::vector<Bytes> Seeds() {
    std::vector<Bytes> seeds;
    for (const Hard hard : {Hard::Data, Hard::Names}) {
        for (std::size_t group = 0; group * GroupSize < CountOf(hard); ++group) {
            for (const bool enabled : {true, false}) {
                for (std::size_t list = 0; list < std::size(PageLists); ++list) {
                    for (std::size_t i = 0; i < PageLists[list].places.places.size(); ++i) {
                        seeds.push_back(SeedOfList(list, i, enabled, hard, group));
                    }
                }
                seeds.push_back(SeedOfRun(enabled, hard, group));
            }
        }
    }
    for (std::size_t group = 0; group * GroupSize < HardValueCount; ++group) {
        seeds.push_back(SeedOfInstalled(group));
        seeds.push_back(SeedOfShortcuts(group));
        seeds.push_back(SeedOfReport(group));
    }
    for (std::size_t value = 0; value < HardValueCount; ++value) {
        seeds.push_back(SeedOfSettings(value));
    }
    for (std::size_t kind = 0; kind < 8; ++kind) seeds.push_back(SeedOfProcesses(kind));
    return seeds;
}

}  // namespace velkarix
