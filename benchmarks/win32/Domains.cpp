// Measures the browser page's list of domains over the system's own registry: loading beside the
// same calls without a list, disabling beside bare copies and deletes, and how all of it grows.
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "Benchmarks.h"
#include "DomainMap.h"
#include "DomainPage.h"

namespace velkarix {
namespace {

constexpr int Many = 30000;
constexpr int Few = 1000;
// Twice as many may cost twice as much, and a little more.
constexpr double GrowthLimit = 2.2;
// Sorting takes a little more than twice as long, and twice the rows fit fewer caches.
constexpr double SortLimit = 3;
constexpr double LoadLimit = 1.5;
constexpr double ProgressLimit = 1.05;
// A move reads both places back before it deletes.
constexpr double MoveLimit = 2.5;

// What a load reads, and nothing else.
void ReadAll(modRegistry& registry) {
    struct Place {
        const char* subKey;
        const char* scheme;
    };
    constexpr Place places[] = {{"", "*"},      {"", "http"},      {"", "https"},     {"", "ftp"},
                                {"\\www", "*"}, {"\\www", "http"}, {"\\www", "https"}};
    for (const char* root : {DomainMap::Live, DomainMap::Held}) {
        std::vector<std::string> names;
        registry.EnumSubKeys(Hive::CurrentUser, root, names);
        for (const std::string& name : names) {
            const std::string key = std::string(root) + "\\" + name;
            for (const Place& place : places) {
                bool missing = false;
                if (registry.GetDwordValue(Hive::CurrentUser, key + place.subKey, place.scheme,
                                           missing) != 0) {
                    break;
                }
            }
        }
    }
}

// What moves of that many domains can't do without.
void MoveFirst(modRegistry& registry, const std::string& from, const std::string& to, int count) {
    std::vector<std::string> names;
    registry.EnumSubKeys(Hive::CurrentUser, from, names);
    names.resize(std::min(names.size(), static_cast<std::size_t>(count)));
    for (const std::string& name : names) {
        const std::string source = from + "\\" + name;
        registry.CopyKey(Hive::CurrentUser, source, Hive::CurrentUser, to + "\\" + name);
        registry.DeleteSubKeys(Hive::CurrentUser, source);
        registry.DeleteKey(Hive::CurrentUser, source, true);
    }
}

// ---- What is measured of each map

// A map that can't be used, or work that wasn't done: the figures mean nothing then.
bool failed = false;

void Use(const DomainMap& map) {
    if (!map.Use()) failed = true;
}

// Loads the list as it stands in the map.
void Load(DomainPage& page, int domains) {
    page.Load();
    if (page.RowCount() != static_cast<std::size_t>(domains)) failed = true;
}

enum LoadWork : std::size_t { Loads, Checks, Sorts, LoadWorkCount };
std::vector<Work> LoadWorks(const DomainMap& map, DomainPage& page, int domains) {
    const std::string of = " of " + std::to_string(domains);
    return {{"LoadDomains" + of, [&page, domains] { Load(page, domains); }, [&map] { Use(map); }},
            {"Check All" + of + " (20 times)", [&page] { page.CheckAll(); }},
            {"sort" + of + " (20 times)", [&page] { page.Sort(); }}};
}

// The first `moved` of the map's domains move. The first two begin with none held, the last one
// with the list that the one before it loaded.
enum MoveWork : std::size_t { Copies, LoadsToMove, Disables, MoveWorkCount };
std::vector<Work> MoveWorks(const DomainMap& map, DomainPage& page, int domains, int moved) {
    const std::string of = " of " + std::to_string(domains);
    const auto moveBack = [&map, &page, moved] {
        Use(map);
        MoveFirst(page.Registry(), DomainMap::Held, DomainMap::Live, moved);
    };
    const auto moveBarely = [&page, moved] {
        MoveFirst(page.Registry(), DomainMap::Live, DomainMap::Held, moved);
    };
    const auto disable = [&page, moved] {
        page.Click("cmdDomainDisable");
        std::vector<std::string> held;
        page.Registry().EnumSubKeys(Hive::CurrentUser, DomainMap::Held, held);
        if (held.size() != static_cast<std::size_t>(moved)) failed = true;
    };
    const std::string some = " " + std::to_string(moved) + of;
    return {{"copies and deletes of" + some, moveBarely, moveBack},
            {"LoadDomains" + of, [&page, domains] { Load(page, domains); }, moveBack},
            {"Disable of" + some, disable, [&page, moved] { page.CheckFirst(moved); }}};
}

std::vector<Work> Join(std::vector<Work> first, const std::vector<Work>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

void MeasureLoads(const DomainMap& half, const DomainMap& whole, DomainPage& page) {
    const Work reads = {"reads of " + std::to_string(Many), [&page] { ReadAll(page.Registry()); },
                        [&whole] { Use(whole); }};
    const std::vector<double> seconds = MedianSeconds(
        Join(LoadWorks(half, page, Many / 2), Join(LoadWorks(whole, page, Many), {reads})));
    const double* ofHalf = seconds.data();
    const double* ofWhole = ofHalf + LoadWorkCount;
    PrintRatio("LoadDomains / its reads", ofWhole[Loads] / seconds.back(), LoadLimit);
    PrintRatio("LoadDomains of 30,000 / of 15,000", ofWhole[Loads] / ofHalf[Loads], GrowthLimit);
    PrintRatio("Check All of 30,000 / of 15,000", ofWhole[Checks] / ofHalf[Checks], GrowthLimit);
    PrintRatio("sort of 30,000 / of 15,000", ofWhole[Sorts] / ofHalf[Sorts], SortLimit);
}

void MeasureMoves(DomainPage& page) {
    const DomainMap half(Few / 2);
    const DomainMap whole(Few);
    const std::vector<double> seconds = MedianSeconds(
        Join(MoveWorks(half, page, Few / 2, Few / 2), MoveWorks(whole, page, Few, Few)));
    const double* ofHalf = seconds.data();
    const double* ofWhole = ofHalf + MoveWorkCount;
    PrintRatio("Disable of 1,000 / of 500", ofWhole[Disables] / ofHalf[Disables], GrowthLimit);
    PrintRatio("Disable of 1,000 / copies and deletes", ofWhole[Disables] / ofWhole[Copies],
               MoveLimit);
}

void MeasureMovesOfMany(const DomainMap& map, DomainPage& page) {
    const std::vector<double> seconds = MedianSeconds(MoveWorks(map, page, Many, Few));
    PrintRatio("Disable of 1,000 of 30,000 / copies, deletes and LoadDomains",
               seconds[Disables] / (seconds[Copies] + seconds[LoadsToMove]), LoadLimit);
}

void MeasureProgress(const DomainMap& map) {
    Use(map);
    ShownDomainPage page;
    const auto load = [&page] {
        page.Load();
        if (page.RowCount() != static_cast<std::size_t>(Many)) failed = true;
    };
    const std::string of = " of " + std::to_string(Many) + " on the screen";
    // Less than the machine's own moods: the least of several medians is taken.
    std::vector<Work> works;
    for (int i = 0; i < 3; ++i) {
        works.push_back({"LoadDomains" + of + " without progress", load,
                         [&page] { page.ShowProgress(false); }});
        works.push_back(
            {"LoadDomains" + of + " with progress", load, [&page] { page.ShowProgress(true); }});
    }
    const std::vector<double> seconds = MedianSeconds(works);
    const double without = std::min({seconds[0], seconds[2], seconds[4]});
    const double with = std::min({seconds[1], seconds[3], seconds[5]});
    PrintRatio("LoadDomains with progress / without", with / without, ProgressLimit);
}

}  // namespace

bool MeasureDomains() {
    const DomainMap half(Many / 2);
    const DomainMap whole(Many);
    Use(whole);
    DomainPage page;
    MeasureLoads(half, whole, page);
    MeasureProgress(whole);
    MeasureMoves(page);
    MeasureMovesOfMany(whole, page);
    if (failed) std::fprintf(stderr, "the figures of the domains are of no use\n");
    return !failed;
}

}  // namespace velkarix
