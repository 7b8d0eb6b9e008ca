// Records of backups of any bytes: a line that was written is read as it was meant, any other is a
// record or is passed over, and restoring never takes a backup away without having restored it.
#include "base/Text.h"
#include "fuzzing/FuzzTarget.h"
#include "shell/BackupSet.h"
#include "shell/TextFile.h"
#include "tests/machine/TestProgram.h"

namespace velkarix {

namespace {

constexpr const char* OtherRecord =
    "C:\\b.exe\x01"
    "6/1/2004\r\n";
constexpr const char* Folder = "C:\\Velkarix\\Backup\\";

bool IsOneField(const std::string& text) {
    return text.find_first_of("\x01\r\n") == std::string::npos;
}

void LookAtLine(const BackupRecord& record) {
    const std::vector<std::string> lines = SplitLines(BackupLine(record));
    if (!IsOneField(record.path) || !IsOneField(record.date)) return;
    const std::optional<BackupRecord> parsed = ParseBackupLine(lines.at(0));
    Expect(parsed && parsed->path == record.path && parsed->date == record.date,
           "a record is read as it was written", lines[0]);
}

std::optional<std::string> CopyOf(TestProgram& program, const std::string& name) {
    return program.machine.disk.ContentOf(Folder + name);
}

// What is asked before a backup is deleted is answered with yes: its set goes, and nothing else.
void DeleteFirst(TestProgram& program, ListView& list) {
    const std::string gone = list.Row(0).Key().substr(0, 1);
    const std::string stays = gone == "1" ? "2" : "1";
    const std::optional<std::string> copy = CopyOf(program, stays + ".bup");
    program.desktop.answers = {MessageAnswer::Yes};
    list.UserSelect(&list.Row(0));
    program.Get<Button>("frmOptions", "cmdDelete").Raise("Click");
    Expect(!CopyOf(program, gone + ".bup") && !CopyOf(program, gone + ".prc"), "a backup goes");
    Expect(CopyOf(program, stays + ".bup") == copy, "another one stays");
}

// Two sets, of which the first has the record of the input.
void RestoreSet(const std::string& record, bool deletesAfter) {
    TestProgram program;
    program.AddInstalledFile("Backup\\1.prc").Content(record);
    program.AddInstalledFile("Backup\\1.bup").Content("first");
    program.AddInstalledFile("Backup\\2.prc").Content(OtherRecord);
    program.AddInstalledFile("Backup\\2.bup").Content("second");
    program.machine.AddFile("C:\\a.exe").Content("newer");
    program.machine.AddFolder("C:\\Velkarix").ShortName("VELKAR~1");
    program.application.forms.Show("frmOptions");
    auto& list = program.Get<ListView>("frmOptions", "lstvBackup");
    auto& restore = program.Get<Button>("frmOptions", "cmdrestore");
    program.Get<CheckBox>("frmOptions", "chkDelete").SetChecked(deletesAfter);
    const bool isRecord =
        ParseBackupLine(
            ReadFirstLine(program.machine.files, Folder + std::string("1.prc")).value_or(""))
            .has_value();
    Expect(list.RowCount() == (isRecord ? 2u : 1u), "each record is listed", record);
    if (!isRecord) return;
    list.UserSelect(&list.Row(0));
    const std::string path = list.Row(0).Text(2) + list.Row(0).Text(1);
    restore.Raise("Click");
    const bool isRestored = program.machine.disk.ContentOf(path) == "first";
    Expect(isRestored || CopyOf(program, "1.bup") == "first", "a backup is restored or stays",
           path);
    Expect(program.desktop.messages.size() == 1, "the user is told", path);
    Expect(isRestored || program.desktop.messages[0].text != "File restored successfully",
           "the user is told the truth", path);
    Expect(CopyOf(program, "2.prc") == OtherRecord && CopyOf(program, "2.bup") == "second",
           "another backup stays", path);
    Expect(list.RowCount() > 0, "it stays on view", path);
    DeleteFirst(program, list);
}

}  // namespace

void RunInput(FuzzInput& input) {
    const bool deletesAfter = input.Flag();
    LookAtLine({input.Text(), input.Text()});
    RestoreSet(input.Rest(), deletesAfter);
}

std::vector<Bytes> Seeds() {
    std::vector<Bytes> seeds;
    const std::string name(300, 'n');
    const std::string paths[] = {"C:\\a.exe",
                                 "C:\\WINDOWS\\system32\\b.dll",
                                 "C:\\Velkarix\\Backup\\1.bup",
                                 "C:\\Velkarix\\Backup\\2.bup",
                                 "C:\\Velkarix\\Backup\\1.prc",
                                 "C:\\velkarix\\BACKUP\\.\\1.bup",
                                 "C:\\.\\Velkarix\\Backup\\1.bup",
                                 "C:\\WINDOWS/..\\VELKAR~1\\Backup\\2.bup ",
                                 "C:\\" + name,
                                 "\\\\?\\C:\\a.exe",
                                 "\\\\server\\share\\a.exe",
                                 "C:\\con",
                                 "a.exe",
                                 "\\",
                                 ""};
    for (const std::string& path : paths) {
        for (const std::size_t deletes : {0u, 1u}) {
            seeds.push_back(FuzzSeed()
                                .Byte(deletes)
                                .Text(path)
                                .Text("6/1/2004")
                                .Rest(path + "\x01"
                                             "6/1/2004\r\n"));
        }
    }
    seeds.push_back(FuzzSeed().Byte(0).Text("\x01").Text("\r").Rest("no mark"));
    seeds.push_back(FuzzSeed().Byte(0).Text("").Text("").Rest("\x01\x01\x01"));
    return seeds;
}

}  // namespace velkarix
