// What tests of commands that stop and delete programs begin with: a copy of a sample that may be
// stopped and deleted, in the installation's own folder.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Process.h"
#include "ProgramTest.h"

namespace velkarix::e2e {

class TargetTest : public ProgramTest {
  protected:
    static constexpr const char* Target = "Target.exe";

    TargetTest();

    // Starts the copy, and the program if it doesn't run yet; the list shows both.
    void StartTarget();
    bool TargetRuns() const { return target_.Running(); }
    // Its exit code once it has ended; nothing when it doesn't.
    std::optional<DWORD> TargetEnds() const { return target_.WaitForExit(); }
    // Ends it as somebody else would, and waits until the system has forgotten it.
    void EndTarget();

    // Selects the copy's row and clicks that button. The message box that comes.
    Window Ask(const std::string& button);
    // Answers the message box, and checks that its text is `text`.
    void AnswerTo(const Window& message, const std::string& text, int button);

    // The path of the copy as the list shows it: without its folder on the 95 family.
    std::string ListedPath();
    // The names of the files in the folder of backups, in order.
    std::vector<std::string> BackupFiles() const;

    const std::string killQuestion_ =
        std::string("Are you sure you want to stop the selected process\r\n\r\n") + Target;
    const std::string deleteQuestion_ =
        std::string("Are you sure you want to delete the selected process\r\n\r\n") + Target;

  private:
    Process target_;
};

// The text of an error as the program shows it: of the system's own wording.
std::string SystemErrorText(DWORD code);

}  // namespace velkarix::e2e
