// What tests of the utilities page begin with: the page on view, the programs that it starts, and
// its message boxes.
#pragma once

#include <string>

#include "ProgramTest.h"

namespace velkarix::e2e {

class UtilitiesTest : public ProgramTest {
  protected:
    using ProgramTest::ProgramTest;

    // Starts the program and enters the page.
    void OpenUtilities();
    // Clicks with the mouse on the middle of the button.
    void ClickOn(const std::string& button);

    // What the stand-in of that name writes when it is started by that command line.
    std::string RecordOf(const std::string& command) const;
    // What it has written, as soon as it is as much as expected; what there is when it doesn't
    // come.
    std::string Recorded(const std::string& standIn, const std::string& expected) const;

    enum class Icon { Information, Critical };
    // Waits for a message box with that text and icon, and has it closed.
    void ExpectMessage(const std::string& text, Icon icon);
};

}  // namespace velkarix::e2e
