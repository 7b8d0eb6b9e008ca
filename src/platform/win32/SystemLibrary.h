// A library of the system whose functions are looked up while the program runs: not every Windows
// has it or all of them, or the loader would search for it in the program's own folder first. That
// it does with whatever the program is linked to, but for a few libraries that are in memory before
// any program.
#pragma once

namespace velkarix {

class SystemLibrary {
  public:
    // `fileName` is a literal: the library's name in the system folder. Nothing is loaded yet.
    constexpr explicit SystemLibrary(const char* fileName) : fileName_(fileName) {}
    SystemLibrary(const SystemLibrary&) = delete;
    SystemLibrary& operator=(const SystemLibrary&) = delete;

    // The function of that name as a pointer of type `Function`; null when the library or the
    // function isn't there. The first call loads the library, for as long as the program runs: what
    // it has begun, a thread or a window, may outlive whoever called it.
    template <typename Function>
    Function Find(const char* name) {
        return reinterpret_cast<Function>(Address(name));
    }

  private:
    using AnyFunction = void (*)();

    AnyFunction Address(const char* name);

    const char* fileName_;
    void* module_ = nullptr;
    bool isTried_ = false;
};

// Has the system search its own folder alone where one of its libraries loads another by its bare
// name. Older systems can be told less: from Windows XP's first service pack on, to pass over the
// current folder; before that, nothing.
void SearchLibrariesInSystemFolderOnly();

}  // namespace velkarix
