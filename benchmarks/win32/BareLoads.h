// What the pages of startup items and of installed applications can't do without: the calls of the
// system that they make to fill their lists, in bare loops, with none of the program's own routines
// between. Left out are only the questions whether a file is there, which opening it answers too.
// An icon's pixels are drawn by the program's own routine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace velkarix {

// The ten keys that the startup page reads of the current user, five live and five held. Each is
// opened, its values are read one by one with their data (RegEnumValueA, once for each), and it is
// closed. Gives how many values there were.
std::size_t ReadRunValues();

// The keys of installed applications: the names of all (RegEnumKeyExA), and of each of them the
// number "NoRemove" (opened, one query, closed), the texts "UninstallString", "DisplayName" and
// "DisplayIcon" (for each: opened, a query for the size, one for the text, closed) and, where the
// last one isn't there, the record of the system's own list (opened, two queries, closed). Gives
// how many had one of those two.
std::size_t ReadUninstallKeys();

// The MD5 of each file: opened, read to its end in blocks of 256 KB, each handed to the system's
// service, closed. The service itself is got before, as the program gets it once.
class FileHashes {
  public:
    FileHashes();
    ~FileHashes();
    FileHashes(const FileHashes&) = delete;
    FileHashes& operator=(const FileHashes&) = delete;

    // Gives how many digests there were.
    std::size_t Take(const std::vector<std::string>& files);

  private:
    bool Hash(const std::string& path);

    std::uintptr_t provider_ = 0;
    std::vector<unsigned char> block_;
};

// The first icon of each file: extracted, which makes both sizes, drawn, and destroyed. Gives how
// many there were.
enum class IconSizes { Small, Both };
std::size_t DrawIcons(const std::vector<std::string>& files, IconSizes sizes);

// What a file says of itself: its version resource (asked for its size, read, and queried for the
// root, the language and twelve texts) and its entry in the folder, once for its size and once for
// its date. Gives how many company names there were.
std::size_t ReadFacts(const std::vector<std::string>& files);

}  // namespace velkarix
