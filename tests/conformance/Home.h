// Where the conformance suite runs. It has two homes, the machine in memory and the real system,
// so that what the first answers is held against the second.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/Machine.h"
#include "tests/machine/NamedSystem.h"

namespace velkarix {

// One home serves one test; it clears away what the test left when it goes.
class Home {
  public:
    virtual ~Home() = default;

    virtual Machine Parts() = 0;

    // A folder that is there and empty, with no backslash at its end.
    virtual std::string ScratchFolder() = 0;
    // A key below HKEY_CURRENT_USER that is there and empty.
    virtual std::string ScratchKey() = 0;
    // Puts a text (REG_SZ) without its NUL into the scratch key, as only other ways into the
    // registry can.
    virtual void MakeUnendedText(const std::string& name, const std::string& text) = 0;
    // Makes a key below the scratch key, or a value in it, by a name of counted characters, as only
    // other ways into the registry can.
    virtual void MakeNamedKey(const std::u16string& name) = 0;
    virtual void MakeNamedValue(const std::u16string& name, std::uint32_t type,
                                const Bytes& data) = 0;

    // Merges a registry file as a double click on it does; false when that can't be started.
    virtual bool MergeRegistryFile(const std::string& path) = 0;

    // Makes a file with these bytes and the attributes of fileAttribute besides its own.
    virtual void MakeFile(const std::string& path, const std::string& content,
                          std::uint32_t attributes = 0) = 0;
    // The bytes of a file, read without the machine under test.
    virtual std::string ContentOf(const std::string& path) = 0;
    // The path of a file with its last level in the 8.3 form.
    virtual std::string ShortPathOf(const std::string& path) = 0;
    // Holds a file open for itself until the test ends.
    virtual void Lock(const std::string& path) = 0;
    // Makes an icon file (.ico) that has one icon.
    virtual void MakeIconFile(const std::string& path) = 0;
    // Makes a shortcut file, as the system's own programs do; the icon's index follows a comma.
    virtual void MakeShortcut(const std::string& path, const Shortcut& shortcut) = 0;
    // Whether the automation object "WScript.Shell" can read shortcut files: Wine's can't.
    virtual bool ScriptShellReads() = 0;
    // Whether the read-only attribute keeps this process from writing: not for the root user of
    // a Wine.
    virtual bool KeepsReadOnly() = 0;
    // What relative paths start from, for the rest of the test.
    virtual void SetCurrentFolder(const std::string& path) = 0;
    // A file with a version resource in US English (040904B0) that tells a FileVersion.
    virtual std::string VersionedFile() = 0;
    // A drive letter with its colon that no drive has.
    virtual std::string MissingDrive() = 0;

    // The user's short form of dates ("dd.MM.yyyy") until the test ends.
    virtual void SetShortDate(const std::string& form) = 0;
    // Sets an environment variable of this process.
    virtual void SetVariable(const std::string& name, const std::string& value) = 0;
    virtual ProcessId OwnProcessId() = 0;
    // A process that runs until it is stopped, or until the test ends.
    virtual ProcessId StartProcess() = 0;
    // The full path of a program that does nothing when it is started without parameters.
    virtual std::string QuietProgram() = 0;

    // A mutex of somebody else's.
    virtual void MakeMutex(const std::string& name) = 0;
    // A hidden top-level window with frame, boxes and system menu, above those made before.
    virtual WindowHandle MakeWindow(const std::string& windowClass, const std::string& caption) = 0;
};

// Each of the two programs has its own home, and says which families its machine can be of.
std::vector<Family> FamiliesOfHome();
std::unique_ptr<Home> MakeHome(Family family);

// For what only one family has: that family alone, or none where the home isn't of it.
inline std::vector<Family> Only(Family family) {
    std::vector<Family> families = FamiliesOfHome();
    std::erase_if(families, [&](Family other) { return other != family; });
    return families;
}

// For INSTANTIATE_TEST_SUITE_P: what the family is called in the names of tests.
inline std::string NameOfFamily(const testing::TestParamInfo<Family>& family) {
    return family.param == Family::WindowsNt ? "Nt" : "Windows95";
}

// The parameter is the family of the system.
class Conformance : public testing::TestWithParam<Family> {
  protected:
    // A path in the scratch folder.
    std::string In(const std::string& name) const { return folder_ + "\\" + name; }

    bool IsNt() const { return GetParam() == Family::WindowsNt; }

    std::unique_ptr<Home> home_ = MakeHome(GetParam());
    Machine machine_ = home_->Parts();
    std::string folder_ = home_->ScratchFolder();
};

}  // namespace velkarix
