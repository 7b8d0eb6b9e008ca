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

std::vector<Work> LoadWorks(const DomainMap& map, DomainPage& page, int domains) {
    return {{[&] { ReadAll(page.Program().registry); }, [&] { Use(map); }},
            {[&page, domains] {
                page.Load();
                if (page.RowCount() != static_cast<std::size_t>(domains)) failed = true;
            }},
            {[&] { page.CheckAll(); }},
            {[&] { page.Sort(); }}};
}

// All works begin with no domain held; the first `moved` ones of the map move.
std::vector<Work> MoveWorks(const DomainMap& map, DomainPage& page, int moved) {
    const auto prepare = [&map, &page, moved] {
        Use(map);
        MoveFirst(page.Program().registry, DomainMap::Held, DomainMap::Live, moved);
    };
    const auto prepareList = [&page, moved, prepare] {
        prepare();
        page.Load();
        page.CheckFirst(moved);
    };
    return {{[&page, moved] {
                 MoveFirst(page.Program().registry, DomainMap::Live, DomainMap::Held, moved);
             },
             prepare},
            {[&page, moved] {
                 page.Click("cmdDomainDisable");
                 std::vector<std::string> held;
                 page.Program().registry.EnumSubKeys(Hive::CurrentUser, DomainMap::Held, held);
                 if (held.size() != static_cast<std::size_t>(moved)) failed = true;
             },
             prepareList}};
}

std::vector<Work> Join(std::vector<Work> first, const std::vector<Work>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

void PrintTimes(const char* of, const double* seconds, const std::vector<const char*>& names) {
    std::printf("%s domains:", of);
    for (std::size_t i = 0; i < names.size(); ++i) {
        std::printf(" %s %.1f ms", names[i], seconds[i] * 1e3);
    }
    std::printf("\n");
}

void MeasureLoads(const DomainMap& half, const DomainMap& whole, DomainPage& page) {
    const std::vector<double> seconds =
        MedianSeconds(Join(LoadWorks(half, page, Many / 2), LoadWorks(whole, page, Many)));
    const double* of15 = seconds.data();
    const double* of30 = of15 + 4;
    const std::vector<const char*> names = {"reads", "LoadDomains", "Check All (20)", "sort (20)"};
    PrintTimes("15,000", of15, names);
    PrintTimes("30,000", of30, names);
    PrintRatio("LoadDomains / its reads", of30[1] / of30[0], LoadLimit);
    PrintRatio("LoadDomains of 30,000 / of 15,000", of30[1] / of15[1], GrowthLimit);
    PrintRatio("Check All of 30,000 / of 15,000", of30[2] / of15[2], GrowthLimit);
    PrintRatio("sort of 30,000 / of 15,000", of30[3] / of15[3], SortLimit);
}

void MeasureMoves(const DomainMap& whole, DomainPage& page) {
    const DomainMap few(Few / 2);
    const DomainMap more(Few);
    const std::vector<double> seconds =
        MedianSeconds(Join(MoveWorks(few, page, Few / 2), MoveWorks(more, page, Few)));
    const std::vector<double> ofMany =
        MedianSeconds(Join(MoveWorks(whole, page, Few), {{[&] { page.Load(); }}}));
    const std::vector<const char*> names = {"copies and deletes", "Disable", "LoadDomains"};
    PrintTimes("500 of 500", seconds.data(), {names[0], names[1]});
    PrintTimes("1,000 of 1,000", seconds.data() + 2, {names[0], names[1]});
    PrintTimes("1,000 of 30,000", ofMany.data(), names);
    PrintRatio("Disable of 1,000 / of 500", seconds[3] / seconds[1], GrowthLimit);
    PrintRatio("Disable of 1,000 / copies and deletes", seconds[3] / seconds[2], MoveLimit);
    PrintRatio("Disable of 1,000 of 30,000 / copies, deletes and LoadDomains",
               ofMany[1] / (ofMany[0] + ofMany[2]), LoadLimit);
}

}  // namespace

bool MeasureDomains() {
    const DomainMap half(Many / 2);
    const DomainMap whole(Many);
    Use(whole);
    DomainPage page;
    MeasureLoads(half, whole, page);
    MeasureMoves(whole, page);
    if (failed) std::fprintf(stderr, "the figures of the domains are of no use\n");
    return !failed;
}

}  // namespace velkarix
