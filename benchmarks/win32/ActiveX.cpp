// Measures the protection from malicious ActiveX controls over the system's own registry, beside
// the calls that it can't do without, and how it grows.
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "BenchProgram.h"
#include "Benchmarks.h"
#include "OwnHive.h"

namespace velkarix {
namespace {

constexpr int Some = 1000;
constexpr int Many = 50000;
constexpr double WriteLimit = 1.5;
// Twice as many may cost twice as much, and a little more.
constexpr double GrowthLimit = 2.2;

constexpr const char* AllKeys = "SOFTWARE\\Microsoft\\Internet Explorer\\ActiveX Compatibility";

using Names = std::vector<std::string>;

// The shorter lists are the beginnings of the longer ones.
Names MakeNames(int count) {
    Names names;
    for (int i = 0; i < count; ++i) {
        names.push_back("{0B1000C3-52C4-4D18-9F3A-" + std::to_string(100000000000 + i) + "}");
    }
    return names;
}

std::string PathOf(const std::string& name) {
    return AllKeys + ("\\" + name);
}

// Work that wasn't done: the figures mean nothing then.
bool failed = false;

void Expect(bool isSo) {
    if (!isSo) failed = true;
}

DWORD KeyCount() {
    HKEY key = nullptr;
    DWORD count = 0;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, AllKeys, 0, KEY_READ, &key) != ERROR_SUCCESS) return 0;
    RegQueryInfoKeyA(key, nullptr, nullptr, nullptr, &count, nullptr, nullptr, nullptr, nullptr,
                     nullptr, nullptr, nullptr);
    RegCloseKey(key);
    return count;
}

// Takes away the keys that there are, which are those of the first names; from the end, so that the
// system needn't move up what is left.
void DeleteKeys(const Names& names) {
    for (DWORD i = KeyCount(); i > 0; --i) {
        RegDeleteKeyA(HKEY_LOCAL_MACHINE, PathOf(names[i - 1]).c_str());
    }
    Expect(KeyCount() == 0);
}

// What setting the kill bits can't do without.
void WriteKeys(const Names& names) {
    for (const std::string& name : names) {
        RegCloseKey(OwnHive::Create(HKEY_LOCAL_MACHINE, PathOf(name)));
        HKEY key = OwnHive::Create(HKEY_LOCAL_MACHINE, PathOf(name));
        OwnHive::SetNumber(key, "Compatibility Flags", 0x400);
        RegCloseKey(key);
    }
}

void WriteList(BenchProgram& program, const Names& names) {
    std::ofstream list(program.folder.Path() + "\\MalActivex.scl", std::ios::binary);
    for (const std::string& name : names) list << name << "\r\n";
}

void Protect(BenchProgram& program, std::size_t count) {
    program.Get<Button>("frmUtilities", "cmdActiveXProtect").Raise("Click");
    Expect(KeyCount() == count);
    Expect(program.desktop.messages.size() == 1 &&
           program.desktop.messages[0].icon == MessageIcon::Information);
}

// Both works begin with no key; `all` are the names of those that others may have left.
Work WriteWork(const Names& names, const Names& all) {
    return {"writes of " + std::to_string(names.size()) + " kill bits",
            [&names] { WriteKeys(names); }, [&all] { DeleteKeys(all); }};
}
Work ProtectWork(BenchProgram& program, const Names& names, const Names& all) {
    return {"Protect Now with " + std::to_string(names.size()) + " controls",
            [&program, &names] { Protect(program, names.size()); },
            [&program, &names, &all] {
                DeleteKeys(all);
                WriteList(program, names);
                program.desktop.messages.clear();
            }};
}

// How many times as long as the bare writes the button takes.
double RatioOf(BenchProgram& program, int count) {
    const Names names = MakeNames(count);
    const std::vector<double> seconds =
        MedianSeconds({WriteWork(names, names), ProtectWork(program, names, names)});
    DeleteKeys(names);
    return seconds[1] / seconds[0];
}

void MeasureMany(BenchProgram& program) {
    const Names half = MakeNames(Many / 2);
    const Names all = MakeNames(Many);
    const std::vector<double> seconds = MedianSeconds(
        {WriteWork(all, all), ProtectWork(program, all, all), ProtectWork(program, half, all)});
    PrintRatio("Protect Now with 50,000 controls / its writes", seconds[1] / seconds[0],
               WriteLimit);
    PrintRatio("Protect Now with 50,000 controls / with 25,000", seconds[1] / seconds[2],
               GrowthLimit);
}

}  // namespace

bool MeasureActiveX() {
    const OwnHive hive(Hive::LocalMachine, "ActiveX");
    Expect(hive.Use());
    BenchProgram program;
    program.application.forms.Show("frmUtilities");
    // Too short for a quotient to say anything: reading the list is the most of it.
    RatioOf(program, 0);
    RatioOf(program, 1);
    PrintRatio("Protect Now with 1,000 controls / its writes", RatioOf(program, Some), WriteLimit);
    MeasureMany(program);
    if (failed) std::fprintf(stderr, "the figures of the ActiveX controls are of no use\n");
    return !failed;
}

}  // namespace velkarix
