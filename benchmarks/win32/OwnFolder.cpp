#include "OwnFolder.h"

#include <filesystem>

namespace velkarix {

OwnFolder::OwnFolder(const std::string& name)
    : path_((std::filesystem::temp_directory_path() / ("VelkarixBench" + name)).string()) {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
    std::filesystem::create_directory(path_, ignored);
}

OwnFolder::~OwnFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace velkarix
