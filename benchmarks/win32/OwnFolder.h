// A folder of the benchmark's own among the temporary files. It goes with all that is in it.
#pragma once

#include <string>
#include <vector>

namespace velkarix {

class OwnFolder {
  public:
    // Empty, also where an earlier run left one of this name.
    explicit OwnFolder(const std::string& name);
    ~OwnFolder();
    OwnFolder(const OwnFolder&) = delete;
    OwnFolder& operator=(const OwnFolder&) = delete;

    const std::string& Path() const { return path_; }

    // Puts copies of a program there, no two with the same bytes. Gives their paths; fewer than
    // `count` when one couldn't be made.
    std::vector<std::string> AddCopies(const std::string& program, int count) const;
    // Puts a file of that many lines there, each of 32 hexadecimal digits. Gives its path.
    std::string AddList(const std::string& name, int lines) const;

  private:
    std::string path_;
};

}  // namespace velkarix
