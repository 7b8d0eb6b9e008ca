#include "shell/FolderListing.h"

#include "shell/DirectorySearch.h"
#include "shell/FilePaths.h"

namespace velkarix {

std::vector<std::string> ListFolder(Application& application, const std::string& folder,
                                    const std::string& pattern) {
    FileSystem& files = application.machine.files;
    std::vector<std::string> names = ListFolderFiles(files, folder, pattern);
    // Every folder below a root holds itself, so that nothing at all says that it can't be read.
    const auto holdsAnything = [&] {
        return DirectorySearch(files, folder + "\\*", searchFor::Everything).Next().has_value();
    };
    application.unread.Note(folder, "",
                            !names.empty() || !PathExists(files, folder) || holdsAnything());
    return names;
}

}  // namespace velkarix
