// A fresh copy of the prepared installation for one test, removed afterwards.
#pragma once

#include <string>

namespace velkarix::e2e {

// A file's bytes; empty when there is none.
std::string ReadWholeFile(const std::string& path);

class Install {
  public:
    // `title` stands in the folder's name, behind a number of its own.
    explicit Install(const std::string& title = {});
    ~Install();
    Install(const Install&) = delete;
    Install& operator=(const Install&) = delete;

    const std::string& Folder() const { return folder_; }  // without a last backslash
    // The full path of a file of the installation.
    std::string Path(const std::string& name) const { return folder_ + "\\" + name; }

    bool Exists(const std::string& name) const;
    std::string Read(const std::string& name) const { return ReadWholeFile(Path(name)); }
    void Write(const std::string& name, const std::string& bytes) const;
    void Remove(const std::string& name) const;
    // An entry of an INI file; empty when it is missing.
    std::string Ini(const std::string& name, const std::string& section,
                    const std::string& key) const;

  private:
    std::string folder_;
};

}  // namespace velkarix::e2e
