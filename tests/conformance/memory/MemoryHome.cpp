// The suite's home on the machine in memory.
#include "tests/conformance/Home.h"
#include "tests/machine/MemoryMachine.h"
#include "tests/machine/RegistryFileMerge.h"

namespace velkarix {
namespace {

constexpr Hive scratchHive = Hive::CurrentUser;

class MemoryHome : public Home {
  public:
    explicit MemoryHome(Family family) {
        memory_.SetFamily(family);
        memory_.AddFolder(ScratchFolder());
        memory_.AddKey(scratchHive, ScratchKey());
        memory_.AddFile(QuietProgram());
        const std::string program = memory_.Parts().system.GetModuleFileNameA();
        memory_.AddFile(program).Content("MZ");
        memory_.AddProcess(8, "\\SystemRoot\\System32\\smss.exe").ModulesUnreadable();
        memory_.AddProcess(OwnProcessId(), program);
    }

    Machine Parts() override { return memory_.Parts(); }
    std::string ScratchFolder() override { return "C:\\scratch"; }
    std::string ScratchKey() override { return "Software\\VelkarixScratch"; }

    void MakeUnendedText(const std::string& name, const std::string& text) override {
        memory_.registry.SetRaw(scratchHive, ScratchKey(), name, registryType::Sz,
                                Bytes(text.begin(), text.end()));
    }

    void MakeNamedKey(const std::u16string& name) override {
        memory_.registry.AddNamedKey(scratchHive, ScratchKey(), name);
    }
    void MakeNamedValue(const std::u16string& name, std::uint32_t type,
                        const Bytes& data) override {
        memory_.registry.SetNamedValue(scratchHive, ScratchKey(), name, type, data);
    }

    bool MergeRegistryFile(const std::string& path) override {
        return velkarix::MergeRegistryFile(memory_.registry, ContentOf(path));
    }

    void MakeFile(const std::string& path, const std::string& content,
                  std::uint32_t attributes) override {
        memory_.AddFile(path).Content(content).Created(2003, 5, 1).With(attributes);
    }
    std::string ContentOf(const std::string& path) override {
        return memory_.disk.ContentOf(path).value_or("");
    }
    std::string ShortPathOf(const std::string& path) override {
        memory_.AddFile(path).ShortName("SHORTN~1.TXT");
        return path.substr(0, path.find_last_of('\\') + 1) + "SHORTN~1.TXT";
    }
    void Lock(const std::string& path) override { memory_.AddFile(path).Unreadable(); }
    void MakeIconFile(const std::string& path) override {
        memory_.AddFile(path).Icon(0, Square(32), Square(16));
    }
    void MakeShortcut(const std::string& path, const Shortcut& shortcut) override {
        memory_.AddFile(path).Shortcut(shortcut);
    }
    bool ScriptShellReads() override { return true; }
    bool KeepsReadOnly() override { return true; }
    void SetCurrentFolder(const std::string& path) override { memory_.disk.SetCurrentFolder(path); }
    std::string VersionedFile() override {
        memory_.AddFile("C:\\versioned.dll").Version({{"FileVersion", "1.0"}});
        return "C:\\versioned.dll";
    }
    std::string MissingDrive() override { return "Q:"; }

    void SetShortDate(const std::string& form) override { memory_.clock.SetShortDate(form); }
    void SetVariable(const std::string& name, const std::string& value) override {
        memory_.system.SetVariable(name, value);
    }
    ProcessId OwnProcessId() override { return 1234; }
    ProcessId StartProcess() override { return memory_.AddProcess(4321, QuietProgram()).id; }
    std::string QuietProgram() override { return "C:\\WINDOWS\\SYSTEM32\\quiet.exe"; }

    void MakeMutex(const std::string& name) override { memory_.windows.AddMutex(name); }
    WindowHandle MakeWindow(const std::string& windowClass, const std::string& caption) override {
        return memory_.windows.Add(windowClass, caption).handle;
    }

  private:
    static Picture Square(int size) {
        Picture picture{size, size, {}};
        picture.pixels.assign(static_cast<std::size_t>(size * size), 0xFFFF0000);
        return picture;
    }

    MemoryMachine memory_;
};

}  // namespace

std::unique_ptr<Home> MakeHome(Family family) {
    return std::make_unique<MemoryHome>(family);
}

std::vector<Family> FamiliesOfHome() {
    return {Family::Windows95, Family::WindowsNt};
}

}  // namespace velkarix
