// The facts of the machine in memory.
#pragma once

#include <map>
#include <string>

#include "platform/SystemFacts.h"
#include "tests/machine/CallJournal.h"
#include "tests/machine/NamedSystem.h"

namespace velkarix {

class MemorySystemFacts : public SystemFacts {
  public:
    explicit MemorySystemFacts(CallJournal& journal);

    // One of the nine systems; Windows XP at first.
    void SetSystem(NamedSystem system);
    // A version that no known system has.
    void SetVersion(const VersionInfo& version) { version_ = version; }
    void SetComputerName(const std::string& name) { computerName_ = name; }  // "MACHINE" at first
    void SetUserName(const std::string& name) { userName_ = name; }          // "User" at first
    // Environment variables; an empty value takes the variable away. At first there are windir
    // and SystemRoot (C:\WINDOWS), SystemDrive, ProgramFiles and Path.
    void SetVariable(const std::string& name, const std::string& value);
    // C:\Velkarix\Velkarix.exe at first.
    void SetProgramPath(const std::string& path) { programPath_ = path; }

    // ---- SystemFacts
    std::optional<VersionInfo> GetVersionExA() override;
    std::uint32_t GetVersion() override;
    std::optional<std::string> GetComputerNameA(std::uint32_t capacity) override;
    std::optional<std::string> GetUserNameA(std::uint32_t capacity) override;
    std::string FormatMessageA(ErrorCode code, std::uint32_t capacity) override;
    std::string GetEnvironmentVariableA(const std::string& name) override;
    std::optional<std::string> ExpandEnvironmentStringsA(const std::string& text,
                                                         std::uint32_t capacity) override;
    std::string WideCharToMultiByte(std::u16string_view text) override;
    std::string GetModuleFileNameA() override;

  private:
    std::string Variable(const std::string& name) const;

    CallJournal& journal_;
    VersionInfo version_;
    std::uint32_t versionNumber_ = 0;
    std::string computerName_ = "MACHINE";
    std::string userName_ = "User";
    std::string programPath_ = "C:\\Velkarix\\Velkarix.exe";
    std::map<std::string, std::string> variables_;  // by the folded name
};

}  // namespace velkarix
