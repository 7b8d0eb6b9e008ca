#include "fuzzing/PageData.h"

#include <algorithm>
#include <iterator>

#include "browser/ItemPlaces.h"
#include "browser/UrlTables.h"
#include "fuzzing/PageLists.h"
#include "fuzzing/RegistryInput.h"
#include "startup/StartupPlaces.h"
#include "tests/machine/ShortcutFile.h"

namespace velkarix {

namespace {

constexpr const char* Uninstall = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";
constexpr const char* Cache =
    "Software\\Microsoft\\Windows\\CurrentVersion\\App Management\\ARPCache\\";
constexpr const char* ShellFolders =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
constexpr const char* InternetSettings =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";
constexpr const char* Defaults =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\ProtocolDefaults";
constexpr const char* Zone0 =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Zones\\0";
constexpr const char* Zone4 =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Zones\\4";

constexpr const char* Folders[] = {"C:\\All Users", "C:\\Anna", "C:\\Velkarix\\DLMStartup",
                                   "C:\\Velkarix\\DCUStartup"};

// The names that mean something below an item's key, and the levels of keys that do.
constexpr std::string_view Names[] = {
    "",         "CLSID",          "ButtonText",    "Icon",
    "Exec",     "ClsidExtension", "BandCLSID",     "Script",
    "*",        "http",           "DisplayName",   "UninstallString",
    "NoRemove", "DisplayIcon",    "SlowInfoCache",
};
constexpr const char* Levels[] = {"", "\\www", "\\InprocServer32", "\\www\\Deeper"};

// A setting without a name of its own has one of the input's.
constexpr const char* AnyName = nullptr;
constexpr RegistryPlace Settings[] = {
    {Hive::CurrentUser, InternetSettings, "ProxyEnable"},
    {Hive::CurrentUser, InternetSettings, "ProxyServer"},
    {Hive::LocalMachine, ShellFolders, "Common Startup"},
    {Hive::CurrentUser, ShellFolders, "Startup"},
    {Hive::CurrentUser, Defaults, AnyName},
    {Hive::CurrentUser, Zone0, "1001"},
    {Hive::CurrentUser, Zone0, "1004"},
    {Hive::CurrentUser, Zone4, "1001"},
    {Hive::LocalMachine, "Software\\Microsoft\\Internet Explorer", "Version"},
    {Hive::CurrentUser, urlKey::Main, "Default_Page_URL"},
};

template <typename Table>
const auto& TakeOf(FuzzInput& input, const Table& table) {
    return table[input.Below(std::size(table))];
}

std::string TakeMeaningfulName(FuzzInput& input) {
    return input.Flag() ? std::string(TakeOf(input, Names)) : TakeValueName(input);
}

// Puts values into one machine.
class Putter {
  public:
    Putter(FuzzInput& input, const Application& application, MemoryMachine& machine)
        : input_(input), application_(application), machine_(machine) {}

    void PutItem() {
        const ItemPlaces& list = TakeOf(input_, PageLists).places;
        const ItemPlace& place = TakeOf(input_, list.places);
        std::string key = HoldingKey(application_, place, input_.Flag());
        if (list.kind != ItemKind::Key) return Put(place.hive, key, TakeValueName(input_));
        key += "\\" + TakeKeyName(input_);
        key += TakeOf(input_, Levels);
        Put(place.hive, key, TakeMeaningfulName(input_));
    }
    void PutClass() {
        std::string key = "CLSID\\" + TakeKeyName(input_);
        key += TakeOf(input_, Levels);
        Put(Hive::ClassesRoot, key, "");
    }
    void PutRun() {
        const RunKey& run = TakeOf(input_, RunKeys);
        const std::string key = RunKeyPath(application_, run, input_.Flag());
        Put(run.hive, key, TakeValueName(input_));
    }
    void PutInstalled() {
        const char* above = input_.Flag() ? Cache : Uninstall;
        const std::string key = above + TakeKeyName(input_);
        Put(Hive::LocalMachine, key, TakeMeaningfulName(input_));
    }
    void PutSetting() {
        const std::size_t number = input_.Below(std::size(Settings) + std::size(UrlBoxes));
        const RegistryPlace& place = number < std::size(Settings)
                                         ? Settings[number]
                                         : UrlBoxes[number - std::size(Settings)].place;
        Put(place.hive, place.key,
            place.valueName == AnyName ? TakeValueName(input_) : place.valueName);
    }
    void PutShortcut() {
        const std::string folder = TakeOf(input_, Folders);
        const std::string name = "\\" + std::to_string(input_.Below(4)) + ".lnk";
        MemoryEntry& file = machine_.AddFile(folder + name);
        if (input_.Flag()) {
            file.Content(input_.Data());
        } else {
            Shortcut shortcut;
            shortcut.targetPath = input_.Text();
            shortcut.arguments = input_.Text();
            shortcut.iconLocation = input_.Text();
            file.Shortcut(shortcut);
        }
    }
    void PutProcess() {
        MemoryProcess& process = machine_.AddProcess(input_.Byte(), TakeProgram());
        // Each of these is as another process of the system is.
        constexpr MemoryProcess& (MemoryProcess::*Kinds[])() = {
            &MemoryProcess::NotOpenable, &MemoryProcess::ModulesUnreadable,
            &MemoryProcess::Protected, &MemoryProcess::EndsBeforeOpening};
        const std::size_t kind = input_.Below(8);
        if (kind < std::size(Kinds)) (process.*Kinds[kind])();
    }
    void PutSafeList() { machine_.AddFile("C:\\Velkarix\\SafeProcess.vkl").Content(input_.Text()); }
    void PutProgram() { machine_.AddFile(ItemFile).VersionBlock(input_.Data()); }

  private:
    // The path of a program that is there, or any text.
    std::string TakeProgram() {
        if (input_.Flag()) return input_.Text();
        const std::string number = std::to_string(input_.Below(4));
        const std::string path = "C:\\WINDOWS\\program" + number + ".exe";
        machine_.AddFile(path).Content("content " + number).InUse(input_.Flag());
        return path;
    }
    void Put(Hive hive, const std::string& key, const std::string& name) {
        const RawValue value = TakeValue(input_);
        machine_.registry.SetRaw(hive, key, name, value.type, value.data);
    }

    FuzzInput& input_;
    const Application& application_;
    MemoryMachine& machine_;
};

// By the number of the part.
constexpr void (Putter::*Puts[])() = {
    &Putter::PutItem,      &Putter::PutClass,   &Putter::PutRun,
    &Putter::PutInstalled, &Putter::PutSetting, &Putter::PutShortcut,
    &Putter::PutProgram,   &Putter::PutProcess, &Putter::PutSafeList};
static_assert(std::size(Puts) == static_cast<std::size_t>(PagePart::Count));

FuzzSeed& PutPartNumber(FuzzSeed& seed, PagePart part) {
    return seed.Byte(static_cast<std::size_t>(part));
}

FuzzSeed& PutName(FuzzSeed& seed, std::string_view name) {
    return seed.Byte(Literal).Text(name);
}

FuzzSeed& PutMeaningfulName(FuzzSeed& seed, std::string_view name) {
    const auto* found = std::find(std::begin(Names), std::end(Names), name);
    if (found == std::end(Names)) return PutName(seed.Byte(0), name);
    return seed.Byte(1).Byte(static_cast<std::size_t>(found - Names));
}

}  // namespace

void PutCommonParts(MemoryMachine& machine) {
    for (const char* folder : Folders) machine.AddFolder(folder);
    machine.SetValue(Hive::LocalMachine, ShellFolders, "Common Startup", Folders[0]);
    machine.SetValue(Hive::CurrentUser, ShellFolders, "Startup", Folders[1]);
    machine.AddFolder("C:\\Velkarix\\Backup");
    machine.AddFile(ItemFile).Content("MZ").Version({{"CompanyName", "Lathe Works"}});
}

void PutPart(FuzzInput& input, PagePart part, const Application& application,
             MemoryMachine& machine) {
    Putter putter(input, application, machine);
    (putter.*Puts[static_cast<std::size_t>(part)])();
}

FuzzSeed& PutItemSeed(FuzzSeed& seed, std::size_t list, std::size_t place, bool enabled,
                      std::string_view name, std::string_view valueName) {
    PutPartNumber(seed, PagePart::Item).Byte(list).Byte(place).Byte(enabled ? 1 : 0);
    PutName(seed, name);
    if (PageLists[list].places.kind != ItemKind::Key) return seed;
    return PutMeaningfulName(seed.Byte(0), valueName);
}

FuzzSeed& PutProcessSeed(FuzzSeed& seed, std::size_t number, std::size_t kind) {
    PutPartNumber(seed, PagePart::Process).Byte(10 + number);
    return seed.Byte(0).Byte(number).Byte(number % 2).Byte(kind);
}

FuzzSeed& PutRunSeed(FuzzSeed& seed, std::size_t run, bool enabled, std::string_view name) {
    return PutName(PutPartNumber(seed, PagePart::Run).Byte(run).Byte(enabled ? 1 : 0), name);
}

FuzzSeed& PutInstalledSeed(FuzzSeed& seed, bool isRecord, std::string_view key,
                           std::string_view valueName) {
    PutName(PutPartNumber(seed, PagePart::Installed).Byte(isRecord ? 1 : 0), key);
    return PutMeaningfulName(seed, valueName);
}

}  // namespace velkarix
