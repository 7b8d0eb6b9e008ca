// Measures how long the pages of startup items and of installed applications take to fill their
// lists, beside the bare calls of the system. Ten items share a file, but aren't together: a page
// that didn't remember what it has looked at would take several times as long. The files are small,
// so that their digests don't hide what the pages add.
#include <cstdio>
#include <numeric>
#include <string>
#include <vector>

#include "BareLoads.h"
#include "BenchProgram.h"
#include "Benchmarks.h"
#include "OwnFolder.h"
#include "OwnHive.h"
#include "forms/TreeView.h"
#include "tests/installed/CacheRecord.h"

namespace velkarix {
namespace {

constexpr int FileCount = 200;
constexpr int ItemCount = 2000;
constexpr double LoadLimit = 1.5;

const std::string CurrentVersion = "Software\\Microsoft\\Windows\\CurrentVersion\\";

// Counts that aren't what they have to be: the figures mean nothing then.
bool failed = false;

void Expect(std::size_t expected, std::size_t counted) {
    if (counted != expected) failed = true;
}

using Paths = std::vector<std::string>;

const std::string& FileOf(int item, const Paths& files) {
    return files[static_cast<std::size_t>(item % FileCount)];
}

// ---- What there is

void AddRunValues(const OwnHive& hive, const Paths& files) {
    HKEY run = OwnHive::Create(hive.Root(), CurrentVersion + "Run");
    for (int i = 0; i < ItemCount; ++i) {
        OwnHive::SetText(run, "Item " + std::to_string(i),
                         "\"" + FileOf(i, files) + "\" /item " + std::to_string(i));
    }
    RegCloseKey(run);
}

// The system's own list knows the file of the last one of a file's ten; the others name it.
void AddApplications(const OwnHive& hive, const Paths& files) {
    HKEY all = OwnHive::Create(hive.Root(), CurrentVersion + "Uninstall");
    HKEY cache = OwnHive::Create(hive.Root(), CurrentVersion + "App Management\\ARPCache");
    for (int i = 0; i < ItemCount; ++i) {
        const std::string name = "Application " + std::to_string(i);
        const std::string& file = FileOf(i, files);
        HKEY key = OwnHive::Create(all, name);
        OwnHive::SetText(key, "DisplayName", name);
        OwnHive::SetText(key, "UninstallString", "\"" + file + "\" /uninstall");
        if (i < ItemCount - FileCount) {
            OwnHive::SetText(key, "DisplayIcon", file + ",0");
        } else {
            HKEY record = OwnHive::Create(cache, name);
            OwnHive::SetBytes(record, "SlowInfoCache",
                              CacheRecord(std::u16string(file.begin(), file.end())));
            RegCloseKey(record);
        }
        RegCloseKey(key);
    }
    RegCloseKey(cache);
    RegCloseKey(all);
}

// Lists of digests and of keys, as many as users have, and none of those that are looked for.
void LoadLists(BenchProgram& program) {
    const std::string digests = program.folder.AddList("SusProcess.vkl", 100000);
    const std::string keys = program.folder.AddList("SusInstall.vkl", 1000);
    LoadDefinitionList(program.win32.Parts().files, program.application.SusProcessList, digests);
    LoadDefinitionList(program.win32.Parts().files, program.application.SusInstallList, keys);
}

// ---- What is measured

// Looks at the first row, so that the list is sorted as well.
Work LoadWork(const char* name, BenchProgram& program, const char* form, const char* list) {
    return {name, [&program, form, list] {
                program.application.forms.Loaded(form)->Run("cmdRefresh_Click");
                ListView& rows = program.Get<ListView>(form, list);
                Expect(ItemCount, rows.RowCount());
                Expect(FileCount + 1, rows.Images()->Count());
                rows.Row(0);
            }};
}

// The last work is a page's load, the others together are its reference.
void Compare(const std::string& what, const std::vector<Work>& works) {
    const std::vector<double> seconds = MedianSeconds(works);
    const double bare = std::accumulate(seconds.begin(), seconds.end() - 1, 0.0);
    PrintRatio(what, seconds.back() / bare, LoadLimit);
}

void MeasureStartup(const Paths& files) {
    const OwnHive hive(Hive::CurrentUser, "Startup");
    AddRunValues(hive, files);
    FileHashes hashes;
    BenchProgram program;
    LoadLists(program);
    if (!hive.Use()) failed = true;
    program.application.forms.Show("frmStartup");
    // What the machine has for all users stays out.
    TreeView& tree = program.Get<TreeView>("frmStartup", "tvwStartup");
    tree.UserSelect(*tree.Find("HKCU"));
    Compare("startup page / its reads, digests, icons and facts",
            {{"reads of 2,000 Run values", [] { Expect(ItemCount, ReadRunValues()); }},
             {"digests of their 200 files", [&] { Expect(FileCount, hashes.Take(files)); }},
             {"their icons", [&] { Expect(FileCount, DrawIcons(files, IconSizes::Small)); }},
             {"their facts", [&] { Expect(FileCount, ReadFacts(files)); }},
             LoadWork("load of the startup page", program, "frmStartup", "lstvStartup")});
}

void MeasureInstalled(const Paths& files) {
    const OwnHive hive(Hive::LocalMachine, "Installed");
    AddApplications(hive, files);
    BenchProgram program;
    LoadLists(program);
    if (!hive.Use()) failed = true;
    program.application.forms.Show("frmAddRemove");
    Compare("page of installed applications / its reads and icons",
            {{"reads of 2,000 uninstall keys", [] { Expect(ItemCount, ReadUninstallKeys()); }},
             {"icons of their 200 files",
              [&] { Expect(FileCount, DrawIcons(files, IconSizes::Both)); }},
             LoadWork("load of the page of installed applications", program, "frmAddRemove",
                      "lstvAddRemove")});
}

}  // namespace

bool MeasurePages(const std::string& program) {
    const OwnFolder folder("Files");
    const Paths files = folder.AddCopies(program, FileCount);
    if (files.size() != FileCount) {
        std::fprintf(stderr, "can't copy %s\n", program.c_str());
        return false;
    }
    MeasureStartup(files);
    MeasureInstalled(files);
    if (failed) std::fprintf(stderr, "the figures of the pages are of no use\n");
    return !failed;
}

}  // namespace velkarix
