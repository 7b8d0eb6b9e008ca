// A library of the system that not every Windows has, or whose functions not every version has.
#pragma once

namespace velkarix {

class SystemLibrary {
  public:
    // `fileName` is a literal: the library's name in the system folder. Nothing is loaded yet.
    explicit SystemLibrary(const char* fileName) : fileName_(fileName) {}
    ~SystemLibrary();
    SystemLibrary(const SystemLibrary&) = delete;
    SystemLibrary& operator=(const SystemLibrary&) = delete;

    // The function of that name as a pointer of type `Function`; null when the library or the
    // function isn't there. The first call loads the library, for as long as this object lives.
    template <typename Function>
    Function Find(const char* name) {
        return reinterpret_cast<Function>(Address(name));
    }

  private:
    using AnyFunction = void (*)();

    AnyFunction Address(const char* name);
    void Load();

    const char* fileName_;
    void* module_ = nullptr;
    bool isTried_ = false;
};

}  // namespace velkarix
