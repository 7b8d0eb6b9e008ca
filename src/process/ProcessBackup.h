// Backing up and deleting program files: a file is deleted only once a whole copy of it stands.
#pragma once

#include <string>

#include "shell/Application.h"

namespace velkarix {

class ProcessBackup {
  public:
    explicit ProcessBackup(Application& application) : application_(application) {}

    // Copies the file into the backup folder and writes down where it was. True when the caller
    // may go on; false, after a message, when the copy couldn't be made.
    bool backupProcess(const std::string& path);
    // Deletes the file; what is in use the user may have deleted at the next start. Where he
    // doesn't, the file stays and its backup is withdrawn.
    void DeleteProcessFile(const std::string& path);

  private:
    std::string FileOfSet(const char* extension) const;
    bool SayFailed(ErrorCode code);
    ErrorCode WriteSet(const std::string& path, const SystemTime& now);
    void WithdrawSet();

    Application& application_;
    std::string backupStamp_;  // of the latest backup
};

}  // namespace velkarix
