// What tests of the installer begin with: a folder to install into that isn't there yet, and a
// machine on which the program isn't declared as installed, before and afterwards.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Process.h"
#include "RegistryTree.h"
#include "Window.h"

namespace velkarix::e2e {

// The files below a folder, by their path in it, with their bytes.
using FolderFiles = std::map<std::string, std::string>;
FolderFiles ReadFolder(const std::string& folder);

constexpr DWORD SetupPatience = 30000;  // it unpacks, and the machine may be busy

// The key below which each hive holds what is switched off there.
inline const std::string HoldingKey = "Software\\Velkarix";

class PackageTest : public testing::Test {
  protected:
    PackageTest();
    ~PackageTest() override;

    // With a comma and a blank, neither of which is to matter; without a last backslash.
    const std::string& Folder() const { return folder_; }
    std::string Path(const std::string& name) const { return folder_ + "\\" + name; }
    bool Exists(const std::string& name) const;
    std::string Read(const std::string& name) const;
    // Makes the folders that the file needs, too.
    void Write(const std::string& name, const std::string& bytes) const;
    FolderFiles Files() const { return ReadFolder(folder_); }
    // What lies in the portable form.
    static FolderFiles PortableFiles();

    // What a user has in the folder; nothing of it comes with the program.
    static const FolderFiles& UsersFiles();
    void WriteUsersFiles() const;

    // Starts the installer, with that behind its own path.
    static Process StartSetup(const std::string& arguments);
    // Has it install into that folder without a word. Gives its exit code.
    static std::optional<DWORD> Install(const std::string& folder);
    void InstallHere() const { ASSERT_EQ(Install(folder_), 0u); }

    // The installer's or the uninstaller's window, as soon as it shows a page with that heading.
    static Window Page(const std::string& heading);
    static Window ChildOfClass(const Window& page, const std::string& name);
    static Window ChildOfText(const Window& page, const std::string& text);
    // A message box of theirs, as soon as one is there.
    static Window Question();
    // Presses the button of that number: IDOK (Next, Install, Finish), IDCANCEL.
    static bool Press(const Window& page, int button);

    // Starts the uninstaller of an installation; it goes on as another process, from another
    // folder.
    static void StartUninstaller(const std::string& folder, const std::string& arguments = "");
    // Has it uninstall without a word, and waits until it has ended.
    static void Uninstall(const std::string& folder);
    static bool UninstallerHasEnded();

    // How the system knows the program; nothing when it doesn't.
    static std::optional<RegistryTree> Entry();
    static std::string EntryText(const std::string& name);
    // The names of the entries in the start menu, without those of others.
    static std::vector<std::string> MenuEntries();
    static void RemoveMenuEntries();

  private:
    std::string folder_;
    // What is switched off on the sample machine, by hive.
    std::vector<std::pair<HKEY, std::optional<RegistryTree>>> held_;
};

}  // namespace velkarix::e2e
