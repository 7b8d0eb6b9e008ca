// Has a file that is in use deleted at the next start of the system.
#pragma once

#include <string>

#include "shell/Application.h"

namespace velkarix {

class clsDeleteonReboot {
  public:
    explicit clsDeleteonReboot(Application& application) : application_(application) {}
    // The NT family is asked to do it; for the 95 family the file is named in WinInit.ini. Only a
    // refusal of the NT family is told.
    void DestroyOnReboot(const std::string& path);

  private:
    std::string ShortPath(const std::string& path);
    void AskTheSystem(const std::string& path);
    void NameInWinInit(const std::string& path);

    Application& application_;
};

void DeleteOnReboot(Application& application, const std::string& path);

}  // namespace velkarix
