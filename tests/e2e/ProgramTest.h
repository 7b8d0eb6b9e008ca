// What every end-to-end test begins with: a fresh installation, and the sample programs running.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "Install.h"
#include "Program.h"

namespace velkarix::e2e {

class ProgramTest : public testing::Test {
  protected:
    // An installation that has been run before and doesn't look for updates.
    ProgramTest() : ProgramTest("") {}
    // Likewise, in a folder with that in its name.
    explicit ProgramTest(const std::string& title);

    // Starts the program and waits until its first page stands. `folder` as with Program.
    Program& Start(const std::string& folder = {});
    void EndProgram() { program_.reset(); }
    bool HasStarted() const { return program_.has_value(); }
    // The program that Start started.
    Program& Running() { return *program_; }
    ListWindow List() { return Running().Processes(); }
    // The place of a row by its name in column 0. A failure of the test, and 0, when it isn't
    // there.
    int RowOf(const std::string& name);
    // Clicks on the row's text, and waits until it is selected.
    void SelectRow(const std::string& name) { SelectRow(List(), RowOf(name)); }
    void SelectRow(const ListWindow& list, int row);
    // Clicks on the row's check box, and waits until it is ticked or no longer is.
    void Tick(const ListWindow& list, int row, bool ticked = true);
    // Presses Tab until that control has the focus. False when it is never reached.
    bool TabTo(const std::string& name);

    // What the stand-in for browser and viewers was asked to open since the test began, once it
    // was; empty when it wasn't.
    static std::string Opened();
    // Has what was opened up to now forgotten.
    static void ForgetOpened();

    Install install_;

  private:
    // Where the list of processes tells names alone, the program finds the files of that name that
    // lie beside it: so the samples do. What is the system's own is known by its name.
    void StandInForFolders() const;

    std::optional<Program> program_;
    bool aside_ = false;
};

}  // namespace velkarix::e2e
