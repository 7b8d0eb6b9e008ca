// What tests of the page of installed applications begin with: the page on view, and registry keys
// that are as before afterwards, whatever the test does to them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ProgramTest.h"
#include "RegistryTree.h"

namespace velkarix::e2e {

// An application of the sample machine, as the list is to show it.
struct InstalledApplication {
    std::string name;
    std::string command;
    std::string key;
    // The sample whose icon it shows; empty for the picture that stands for all others.
    std::string icon = {};
    bool suspicious = false;
};

// In the order of the list.
const std::vector<InstalledApplication>& InstalledApplications();

class InstalledTest : public ProgramTest {
  protected:
    InstalledTest();
    ~InstalledTest() override;

    // Starts the program and enters the page.
    void OpenInstalled();
    ListWindow Applications() { return Running().List("lstvAddRemove"); }
    bool InDetails();
    // Chooses the view by a click on its option.
    void ChooseView(bool details);
    void SelectApplication(const std::string& name);
    // What the list shows, in its order.
    std::vector<std::string> Names() { return Applications().Column(0); }

    // The entry that declares an application; nothing when there is none.
    static std::optional<RegistryTree> ReadEntry(const std::string& key);
    // All that the page may change.
    static std::optional<RegistryTree> ReadEntries();
    const std::optional<RegistryTree>& EntriesBefore() const { return before_; }
    static void DeleteEntries();

    // What the stand-in for all uninstallers was started with since the test began, once it was.
    static std::string Uninstalled();

  private:
    const std::optional<RegistryTree> before_ = ReadEntries();
};

}  // namespace velkarix::e2e
