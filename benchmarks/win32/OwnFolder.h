// A folder of the benchmark's own among the temporary files. It goes with all that is in it.
#pragma once

#include <string>

namespace velkarix {

class OwnFolder {
  public:
    // Empty, also where an earlier run left one of this name.
    explicit OwnFolder(const std::string& name);
    ~OwnFolder();
    OwnFolder(const OwnFolder&) = delete;
    OwnFolder& operator=(const OwnFolder&) = delete;

    const std::string& Path() const { return path_; }

  private:
    std::string path_;
};

}  // namespace velkarix
