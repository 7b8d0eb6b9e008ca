#include "startup/CleanCommand.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

class CleanCommandTest : public testing::Test {
  protected:
    CleanCommandTest() {
        machine.system.SetVariable("Path", "C:\\WINDOWS\\system32;C:\\WINDOWS");
        for (const char* file : {"explorer.exe", "system32\\ctfmon.exe", "system32\\rundll32.exe",
                                 "system32\\NvCpl.dll"}) {
            machine.AddFile(std::string("C:\\WINDOWS\\") + file);
        }
    }
    std::string Clean(const std::string& command) { return CleanCommand(machine.Parts(), command); }
    MemoryMachine machine;
};

struct CommandCase {
    const char* command;
    const char* path;
};

// No file of these but the four above is there: what is no bare name is taken by its letters alone.
constexpr CommandCase Commands[] = {
    // A drive, with and without quotes and switches.
    {"C:\\Tools\\agent.exe", "C:\\Tools\\agent.exe"},
    {"\"C:\\Tools\\agent.exe\"", "C:\\Tools\\agent.exe"},
    {"\"C:\\Tools\\agent.exe\" /min", "C:\\Tools\\agent.exe"},
    {"C:\\Tools\\agent.exe /min", "C:\\Tools\\agent.exe"},
    {"C:\\Tools\\agent.exe\t/min", "C:\\Tools\\agent.exe"},
    {"C:\\Tools\\agent.exe,0", "C:\\Tools\\agent.exe"},
    {"\"C:\\Tools\\agent.exe\"-x", "C:\\Tools\\agent.exe"},
    {"C:\\Program Files\\Some Tools\\agent.exe", "C:\\Program Files\\Some Tools\\agent.exe"},
    {"C:\\Program Files\\Some Tools\\agent.exe -q -tray",
     "C:\\Program Files\\Some Tools\\agent.exe"},
    {"\"C:\\Program Files\\Some Tools\\agent.exe\" -tray \"C:\\My Files\\a.ini\"",
     "C:\\Program Files\\Some Tools\\agent.exe"},
    {"\"C:\\Program Files\\Some Tools\\agent.exe\" \"/start\"",
     "C:\\Program Files\\Some Tools\\agent.exe"},
    {"C:/Tools/agent.exe /x", "C:/Tools/agent.exe"},
    {"D:\\setup.exe C:\\x.dll", "D:\\setup.exe"},
    {"C:\\WINDOWS\\system32\\cmd.exe /c \"C:\\a.bat\"", "C:\\WINDOWS\\system32\\cmd.exe"},
    {"C:\\T\xE9l\xE9\\agent.exe -s", "C:\\T\xE9l\xE9\\agent.exe"},
    // Short names, and extensions in any case.
    {"C:\\PROGRA~1\\SOMETO~1\\AGENT.EXE /s", "C:\\PROGRA~1\\SOMETO~1\\AGENT.EXE"},
    {"C:\\PROGRA~1\\A~2.EXE", "C:\\PROGRA~1\\A~2.EXE"},
    {"c:\\tools\\Agent.Exe -x", "c:\\tools\\Agent.Exe"},
    {"C:\\x.DLL,Entry", "C:\\x.DLL"},
    // Quotes anywhere.
    {"\"C:\\Tools\\agent.exe", "C:\\Tools\\agent.exe"},
    {"C:\\Tools\\agent.exe\"", "C:\\Tools\\agent.exe"},
    {"C:\\\"Program Files\"\\agent.exe /x", "C:\\Program Files\\agent.exe"},
    {"\"\"C:\\Tools\\agent.exe\"\" /x", "C:\\Tools\\agent.exe"},
    {"C:\\Tools\\agent.e\"xe", "C:\\Tools\\agent.exe"},
    // An extension in a folder's name, or before more letters, ends the path.
    {"C:\\app.exe.files\\run.exe /a", "C:\\app.exe"},
    {"C:\\Tools\\agent.exebackup\\run.exe", "C:\\Tools\\agent.exe"},
    {"C:\\Tools\\agent.exe.bak", "C:\\Tools\\agent.exe"},
    {"C:\\a.dll b.dll", "C:\\a.dll"},
    {"C:\\lib.dll.d\\run.exe", "C:\\lib.dll.d\\run.exe"},
    // Other extensions and none.
    {"C:\\Tools\\agent.com /x", "C:\\Tools\\agent.com /x"},
    {"\"C:\\Tools\\agent.scr\" /s", "C:\\Tools\\agent.scr /s"},
    {"C:\\Tools\\agent.bat", "C:\\Tools\\agent.bat"},
    {"\"C:\\Tools\\agent\" -x", "C:\\Tools\\agent -x"},
    {"C:\\Tools\\agent.ex", "C:\\Tools\\agent.ex"},
    {"regsvr32 /s C:\\x.ocx", "regsvr32 /s C:\\x.ocx"},
    {"C:", "C:"},
    // Libraries, and loaders of libraries. ".exe" goes before ".dll" wherever both stand.
    {"C:\\x.dll", "C:\\x.dll"},
    {"C:\\x.dll,Entry 5", "C:\\x.dll"},
    {"C:\\x.dll;C:\\y.exe", "C:\\x.dll;C:\\y.exe"},
    {"rundll32 C:\\WINDOWS\\system32\\NvCpl.dll,NvStartup", "C:\\WINDOWS\\system32\\NvCpl.dll"},
    {"rundll32 \"C:\\Program Files\\a b\\x.dll\",Entry", "C:\\Program Files\\a b\\x.dll"},
    {"rundll32.exe C:\\WINDOWS\\system32\\NvCpl.dll,NvStartup", ""},
    {"\"rundll32.exe\" \"C:\\x.dll\",Entry", ""},
    {"C:\\WINDOWS\\system32\\rundll32.exe C:\\x.dll,Entry", "C:\\WINDOWS\\system32\\rundll32.exe"},
    {"C:\\WINDOWS\\rundll32 C:\\x.dll,Entry", "C:\\WINDOWS\\rundll32 C:\\x.dll"},
    {"rundll32 x.dll,Entry", "rundll32 x.dll,Entry"},
    {"rundll32 NvCpl.dll,NvStartup", "rundll32 NvCpl.dll,NvStartup"},
    {"NvCpl.dll,NvStartup", "C:\\WINDOWS\\system32\\NvCpl.dll"},
    {"RUNDLL32.EXE NvCpl.dll,NvStartup", "C:\\WINDOWS\\system32\\RUNDLL32.EXE"},
    {"regsvr32.exe /s C:\\x.dll", ""},
    // Something before the drive.
    {" C:\\Tools\\agent.exe", "C:\\Tools\\agent.exe"},
    {"start C:\\Tools\\agent.exe /x", "C:\\Tools\\agent.exe"},
    {"cmd /c C:\\Tools\\agent.exe", "C:\\Tools\\agent.exe"},
    {"cmd.exe /c C:\\Tools\\agent.exe", ""},
    {"explorer.exe C:\\WINDOWS", ""},
    {"http://example.com/a.exe", "p://example.com/a.exe"},
    // More than one colon, and colons at odd places.
    {"C:\\Tools\\agent.exe -log:C:\\x.txt", "C:\\Tools\\agent.exe"},
    {"C:\\Tools\\a.exe:hidden.exe", "C:\\Tools\\a.exe"},
    {"a.exe:stream", "e"},
    {".exe:", "e"},
    {":explorer.exe", ":explorer.exe"},
    {":C:\\Tools\\agent.exe", ":C:\\Tools\\agent.exe"},
    {"::{20D04FE0}", "::{20D04FE0}"},
    {":", ":"},
    // Names without a drive.
    {"ctfmon.exe", "C:\\WINDOWS\\system32\\ctfmon.exe"},
    {"CTFMON.EXE /n", "C:\\WINDOWS\\system32\\CTFMON.EXE"},
    {"\"ctfmon.exe\" /n", "C:\\WINDOWS\\system32\\ctfmon.exe"},
    {"explorer.exe", "C:\\WINDOWS\\explorer.exe"},
    {"ctfmon.exe.bak", "C:\\WINDOWS\\system32\\ctfmon.exe"},
    {"system32\\ctfmon.exe /n", "C:\\WINDOWS\\system32\\ctfmon.exe"},
    {"\\ctfmon.exe", "C:\\WINDOWS\\system32\\\\ctfmon.exe"},
    {"ctfmon", "ctfmon"},
    {"missing.exe /n", "missing.exe /n"},
    {" explorer.exe", " explorer.exe"},
    {".exe", ".exe"},
    {"msiexec /i {90110409}", "msiexec /i {90110409}"},
    // Variables stay, and hide the drive.
    {"%SystemRoot%\\system32\\ctfmon.exe", "%SystemRoot%\\system32\\ctfmon.exe"},
    {"%SystemRoot%\\system32\\ctfmon.exe /s", "%SystemRoot%\\system32\\ctfmon.exe /s"},
    {"\"%ProgramFiles%\\A B\\a.exe\" -x", "%ProgramFiles%\\A B\\a.exe -x"},
    {"%SystemRoot%\\system32\\ctfmon.exe /log:C:\\x", ""},
    // The network.
    {"\\\\server\\share\\agent.exe", "\\\\server\\share\\agent.exe"},
    {"\\\\server\\share\\agent.exe -x", "\\\\server\\share\\agent.exe -x"},
    {"\"\\\\server\\a b\\agent.exe\" -x", "\\\\server\\a b\\agent.exe -x"},
    // Nothing.
    {"", ""},
    {"   ", "   "},
    {"\"", ""},
    {"\"\"", ""},
    {"\" \"", " "},
};

TEST_F(CleanCommandTest, TakesThePathOutOfCommandLines) {
    for (const CommandCase& each : Commands) {
        EXPECT_EQ(Clean(each.command), each.path) << each.command;
    }
}

TEST_F(CleanCommandTest, TakesTheFirstFolderOfTheSearchPathThatHasTheName) {
    EXPECT_EQ(Clean("explorer.exe"), "C:\\WINDOWS\\explorer.exe");
    machine.AddFile("C:\\WINDOWS\\system32\\explorer.exe");
    EXPECT_EQ(Clean("explorer.exe"), "C:\\WINDOWS\\system32\\explorer.exe");
}

TEST_F(CleanCommandTest, LeavesABareNameWhereThereIsNoSearchPath) {
    machine.system.SetVariable("Path", "");
    EXPECT_EQ(Clean("\"ctfmon.exe\" /n"), "ctfmon.exe /n");
}

TEST_F(CleanCommandTest, LooksForNothingWhereThereIsADriveOrNoExtension) {
    machine.Journal().Clear();
    for (const char* command : {"C:\\Tools\\agent.exe /x", "ctfmon", "%SystemRoot%\\x", ""}) {
        Clean(command);
    }
    EXPECT_EQ(machine.Journal().Calls().size(), 0u);
}

TEST_F(CleanCommandTest, TakesCommandsOfAnyLength) {
    const std::string name(400, 'x');
    std::string path = "C:\\";
    path.append(name).append(".exe");
    EXPECT_EQ(Clean("\"" + path + "\" " + name), path);
    std::string bare = name;
    bare.append(".dll,Entry");
    EXPECT_EQ(Clean(bare), bare);
    std::string far(70000, ' ');
    far.append("C:\\a.exe").append(far);
    EXPECT_EQ(Clean(far), "C:\\a.exe");
}

}  // namespace
}  // namespace velkarix
