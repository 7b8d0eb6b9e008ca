// The icons of program files.
#pragma once

#include <optional>
#include <string>

#include "platform/Shell.h"

namespace velkarix {

// Both sizes of one icon; nothing in place of one that the file doesn't have.
struct IconPictures {
    std::optional<Picture> large;
    std::optional<Picture> small;
};

class clsIcon {
  public:
    explicit clsIcon(Shell& shell) : shell_(shell) {}

    // The icon at `index` of the file. No icon handle stays open.
    IconPictures GetIcons(const std::string& path, int index);

    // The same, large or small.
    std::optional<Picture> GetIconFromFile(const std::string& path, int index, bool large);

  private:
    IconPictures Draw(const std::string& path, int index, bool wantLarge, bool wantSmall);

    Shell& shell_;
};

}  // namespace velkarix
