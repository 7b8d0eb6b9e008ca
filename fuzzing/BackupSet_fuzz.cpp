// Records of backups of any bytes: a line that was written is read as it was meant, any other is a
// record or is passed over, and restoring never takes a backup away without having restored it.
#include "base/Text.h"
#include "fuzzing/FuzzTarget.h"
#include "shell/BackupSet.h"
#include "shell/TextFile.h"
#include "tests/machine/TestProgram.h"

namespace velkarix {

namespace {

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

// Whether the path of one of the backups is spelled so that nobody sees where it leads.
bool IsHiddenBackup(TestProgram& program, const std::string& path) {
    const auto file = program.machine.disk.Find(path);
    const auto folder = program.machine.disk.Find(Folder);
    return file && folder->children.Find(file->name) == file &&
           !ToLower(path).starts_with(ToLower(Folder));
}

// Two sets, of which the first has the record of the input.
void RestoreSet(const std::string& record, bool deletesAfter) {
    TestProgram program;
    program.AddInstalledFile("Backup\\1.prc").Content(record);
    program.AddInstalledFile("Backup\\1.bup").Content("first");
    program.AddInstalledFile("Backup\\2.prc")
        .Content(
            "C:\\b.exe\x01"
            "6/1/2004\r\n");
    program.AddInstalledFile("Backup\\2.bup").Content("second");
    program.machine.AddFile("C:\\a.exe").Content("newer");
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
    if (IsHiddenBackup(program, path)) return;
    restore.Raise("Click");
    const bool isRestored = program.machine.disk.ContentOf(path) == "first";
    Expect(isRestored || CopyOf(program, "1.bup") == "first", "a backup is restored or stays",
           path);
    Expect(program.desktop.messages.size() == 1, "the user is told", path);
    for (const char* name : {"2.prc", "2.bup"}) {
        Expect(CopyOf(program, name).has_value(), "other backups stay", path);
    }
    program.desktop.answers = {MessageAnswer::Yes};
    if (list.RowCount() > 0) list.UserSelect(&list.Row(0));
    program.Get<Button>("frmOptions", "cmdDelete").Raise("Click");
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
