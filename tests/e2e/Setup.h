// What the command that starts these tests has prepared: the installation, the system that Wine
// answers as, the folder for pictures. It comes by environment variables.
#pragma once

#include <string>

namespace velkarix::e2e {

// The folder of the prepared installation, where Velkarix.exe and the definition lists stand,
// without a last backslash; from VELKARIX_EXE, the path of the program there.
std::string PreparedFolder();
// "winxp", "win95" and so on, from VELKARIX_SYSTEM; "winxp" when it isn't set.
std::string SystemUnderTest();
// Whether that system has no PSAPI, so that the program lists processes by a snapshot.
bool IsSystemOf95Family();
// Whether the list of processes tells their folders: Wine's snapshot, unlike the 95 family's own,
// gives the names of the files alone.
bool ListsFolders();
// Why a test that needs them is skipped.
inline constexpr const char* NoFolders =
    "Wine's snapshot of the processes gives names without folders, so no file can be found by its "
    "full path.";

// The full path of a sample program ("SampleIdle.exe") on the sample machine.
std::string SamplePath(const std::string& name);

// A folder of this test run's own, made on first use; without a last backslash.
const std::string& ScratchFolder();

// The variable's value; empty when it isn't set.
std::string Environment(const char* name);

}  // namespace velkarix::e2e
