// A file that is open for as long as this object lives.
#pragma once

#include <string>

#include "platform/FileSystem.h"

namespace velkarix {

class OpenFile {
  public:
    // Opens an existing file for reading from its start.
    OpenFile(FileSystem& files, const std::string& path) : files_(files) {
        if (files_.CreateFileA(path, FileUse::Read, handle_) != error::Success) handle_ = 0;
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (IsOpen()) files_.CloseFile(handle_);
    }

    bool IsOpen() const { return handle_ != 0; }
    FileHandle Handle() const { return handle_; }

  private:
    FileSystem& files_;
    FileHandle handle_ = 0;
};

}  // namespace velkarix
