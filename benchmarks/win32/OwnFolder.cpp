#include "OwnFolder.h"

#include <filesystem>
#include <fstream>
#include <iomanip>
#include <random>

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

std::vector<std::string> OwnFolder::AddCopies(const std::string& program, int count) const {
    std::vector<std::string> paths;
    for (int i = 0; i < count; ++i) {
        const std::string path = path_ + "\\program" + std::to_string(1000 + i) + ".exe";
        std::error_code failure;
        if (!std::filesystem::copy_file(program, path, failure)) break;
        // Behind the program, where nobody looks for a part of it.
        if (!(std::ofstream(path, std::ios::binary | std::ios::app) << path).flush()) break;
        paths.push_back(path);
    }
    return paths;
}

std::string OwnFolder::AddList(const std::string& name, int lines) const {
    const std::string path = path_ + "\\" + name;
    std::ofstream file(path, std::ios::binary);
    std::mt19937 random;  // gives the same numbers each time
    file << std::hex << std::setfill('0');
    for (int i = 0; i < lines; ++i) {
        for (int part = 0; part < 4; ++part) file << std::setw(8) << random();
        file << "\r\n";
    }
    return path;
}

}  // namespace velkarix
