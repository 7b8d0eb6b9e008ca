// Libraries of the system are the system's own, whatever lies beside the program or in the current
// folder under their names.
#include <windows.h>
// The header of the snapshots needs the system's before it.
#include <tlhelp32.h>

#include <algorithm>
#include <filesystem>

#include "AskInside.h"
#include "Input.h"
#include "Process.h"
#include "ProgramTest.h"
#include "Reports.h"
#include "Setup.h"
#include "Wait.h"
#include "hook/Inside.h"

namespace velkarix::e2e {
namespace {

namespace fs = std::filesystem;

// What the program looks up, as tools/check-source compares, but for version.dll; and others that
// those may load in turn. Wine's own user32 needs a version.dll and so loads what lies beside any
// program: that the program doesn't use it is seen by the facts of files.
const std::vector<std::string> Libraries = {
    "psapi.dll",    "shlwapi.dll",  "comctl32.dll", "comdlg32.dll", "ole32.dll",
    "oleaut32.dll", "shell32.dll",  "wininet.dll",  "urlmon.dll",   "crypt32.dll",
    "bcrypt.dll",   "winspool.drv", "shcore.dll"};
constexpr const char* Mark = ".loaded";

// A program that was built beside these tests.
std::string Built(const std::string& name) {
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    return (fs::path(path).parent_path() / name).string();
}

// Where the libraries of that name lie that a process has loaded.
std::vector<std::string> PathsOf(const std::string& name, DWORD process) {
    std::vector<std::string> paths;
    const HANDLE modules = CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, process);
    MODULEENTRY32 module{};
    module.dwSize = sizeof module;
    for (BOOL more = Module32First(modules, &module); more; more = Module32Next(modules, &module)) {
        if (lstrcmpiA(module.szModule, name.c_str()) == 0) paths.emplace_back(module.szExePath);
    }
    CloseHandle(modules);
    return paths;
}

// Has Wine take a library that isn't its own where a program finds one, as Windows does by itself.
class Preference {
  public:
    explicit Preference(const std::string& program)
        : key_("Software\\Wine\\AppDefaults\\" + program) {
        for (const std::string& library : Libraries) Prefer(library);
        Prefer("version.dll");
    }
    ~Preference() {
        RegDeleteKeyA(HKEY_CURRENT_USER, (key_ + "\\DllOverrides").c_str());
        RegDeleteKeyA(HKEY_CURRENT_USER, key_.c_str());
    }
    Preference(const Preference&) = delete;
    Preference& operator=(const Preference&) = delete;

  private:
    void Prefer(const std::string& library) {
        const std::string name = fs::path(library).stem().string();
        const std::string words = "native,builtin";
        for (const std::string& each : {name, library}) {
            HKEY key = nullptr;
            ASSERT_EQ(RegCreateKeyA(HKEY_CURRENT_USER, (key_ + "\\DllOverrides").c_str(), &key), 0);
            RegSetValueExA(key, each.c_str(), 0, REG_SZ,
                           reinterpret_cast<const BYTE*>(words.c_str()),
                           static_cast<DWORD>(words.size() + 1));
            RegCloseKey(key);
        }
    }

    std::string key_;
};

class PlantedLibraries : public ProgramTest {
  protected:
    PlantedLibraries() {
        fs::create_directory(Elsewhere());
        for (const std::string& library : Libraries) {
            Plant(install_.Path(library));
            Plant(Elsewhere() + "\\" + library);
        }
    }

    // The folder that is the current one.
    std::string Elsewhere() const { return install_.Path("Elsewhere"); }
    static void Plant(const std::string& path) { fs::copy_file(Built("velkarix_plant.dll"), path); }
    // The planted libraries that were loaded.
    std::vector<std::string> Loaded() const {
        std::vector<std::string> names;
        for (const auto& file : fs::recursive_directory_iterator(install_.Folder())) {
            if (file.path().extension() != Mark) continue;
            names.push_back(file.path().stem().string());
            // As the one who loads it spells it.
            CharLowerA(names.back().data());
        }
        std::ranges::sort(names);
        return names;
    }
    // Runs a program that was built beside these tests from where the planted ones are.
    std::optional<DWORD> RunHere(const std::string& name) const {
        const std::string path = install_.Path(name);
        fs::copy_file(Built(name), path);
        return Process(path, Elsewhere()).WaitForExit();
    }

    const Preference ofProgram_{"Velkarix.exe"};
};

TEST_F(PlantedLibraries, ACarelessProgramLoadsThem) {
    const Preference preference("velkarix_careless.exe");
    Plant(install_.Path("version.dll"));
    Plant(Elsewhere() + "\\" + PlantedName);
    ASSERT_EQ(RunHere("velkarix_careless.exe"), 0u);
    EXPECT_EQ(Loaded(), (std::vector<std::string>{"psapi.dll", "shlwapi.dll", "velkarixplant.dll",
                                                  "version.dll"}));
}

TEST_F(PlantedLibraries, AProgramThatFindsThemInTheProductsWayLoadsNone) {
    const Preference preference("velkarix_careful.exe");
    Plant(install_.Path("version.dll"));
    Plant(Elsewhere() + "\\version.dll");
    ASSERT_EQ(RunHere("velkarix_careful.exe"), 0u);
    EXPECT_EQ(Loaded(), std::vector<std::string>());
}

TEST_F(PlantedLibraries, NoneIsLoadedByAnythingThatTheProgramDoes) {
    Start(Elsewhere());
    SelectRow("SampleIdle.exe");
    ASSERT_TRUE(SaveReport(Running(), "cmdReport", install_.Path("Mine.txt")));
    EXPECT_NE(Opened(), "");
    ASSERT_TRUE(Running().Control("cmdViewInformation").Click());
    ASSERT_TRUE(Running().Dialog("frmviewInfo").Find("cmdOk").Click());
    for (const char* page : {"cmdIE", "cmdStartup", "cmdAddremove", "cmdUtilities", "cmdOptions"}) {
        ASSERT_TRUE(Running().Press(page));
    }
    ASSERT_TRUE(BringToFront(Running().Main()));
    DoubleClickAt(Inside(Running().Control("picSuspicious").Area()));
    const Window colours = Running().SystemDialog();
    ASSERT_TRUE(colours);
    ASSERT_TRUE(PressIn(colours, IDCANCEL));
    ASSERT_TRUE(WaitUntil([&] { return !colours; }));
    EXPECT_EQ(Running().Close(), 0u);
    EXPECT_EQ(Loaded(), std::vector<std::string>());
}

TEST_F(PlantedLibraries, TheFactsOfFilesComeFromTheSystemsVersionLibrary) {
    if (IsSystemOf95Family()) {
        GTEST_SKIP()
            << "As one of the 95 family, Wine itself calls the version.dll beside a program";
    }
    Plant(install_.Path("version.dll"));
    Start(Elsewhere());
    EXPECT_EQ(List().Row(RowOf("SampleIdle.exe"))[3], "Sample Works");
}

TEST_F(PlantedLibraries, TheCommonControlsAreThoseThatTheManifestNames) {
    Start();
    const std::vector<std::string> paths = PathsOf("comctl32.dll", Running().Id());
    ASSERT_EQ(paths.size(), 1u);
    EXPECT_NE(paths[0].find("\\winsxs\\"), std::string::npos) << paths[0];
}

TEST_F(PlantedLibraries, WhatIsLoadedByABareNameIsSearchedInTheSystemFolderAlone) {
    const std::string name = std::string("\\") + PlantedName;
    Start(Elsewhere());
    Plant(install_.Folder() + name);
    Plant(Elsewhere() + name);
    EXPECT_EQ(AskInside(Running().Main(), LoadPlantedQuestion), IsNotFound);
    EXPECT_EQ(Loaded(), std::vector<std::string>());
}

}  // namespace
}  // namespace velkarix::e2e
