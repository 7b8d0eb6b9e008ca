// The icons of program files.
#pragma once

#include <optional>
#include <string>

#include "platform/Shell.h"

namespace velkarix {

class clsIcon {
  public:
    explicit clsIcon(Shell& shell) : shell_(shell) {}

    // The icon at `index` of the file, large or small; nothing when the file has none. No icon
    // handle stays open.
    std::optional<Picture> GetIconFromFile(const std::string& path, int index, bool large);

  private:
    Shell& shell_;
};

}  // namespace velkarix
