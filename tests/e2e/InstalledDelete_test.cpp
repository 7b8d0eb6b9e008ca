// Deleting the entry of an application: only when the user agrees, and never without a file that
// brings it back.
#include <algorithm>
#include <filesystem>

#include "Input.h"
#include "InstalledTest.h"
#include "MenuWindow.h"
#include "RegistryMerge.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

constexpr const char* Name = "Sample Suite";
constexpr const char* Key = "SampleSuite";

class InstalledDelete : public InstalledTest {
  protected:
    std::vector<std::string> RegistryFiles() const {
        std::vector<std::string> names;
        std::error_code failure;
        for (const auto& file :
             std::filesystem::directory_iterator(install_.Path("Backup"), failure)) {
            names.push_back(file.path().filename().string());
        }
        return names;
    }
    Window Ask() {
        SelectApplication(Name);
        EXPECT_TRUE(Running().Control("cmdDelete").Click());
        return Running().Message();
    }
    // Agrees, and has the system's own editor put back what the program has kept.
    void DeleteAndMerge(const Window& question) {
        ASSERT_TRUE(question);
        EXPECT_EQ(question.Text(), "Velkarix");
        EXPECT_EQ(
            MessageText(question),
            std::string("Are you sure you want to delete the selected item: \r\n\r\n") + Name);
        ASSERT_TRUE(Answer(question, IDYES));
        ASSERT_TRUE(WaitUntil([this] { return !Applications().Find(Name); }));
        EXPECT_FALSE(ReadEntry(Key));
        const std::vector<std::string> files = RegistryFiles();
        ASSERT_EQ(files.size(), 1u);
        const std::string end = "_AddRemove.reg";
        ASSERT_TRUE(files[0].ends_with(end)) << files[0];
        const std::string stamp = files[0].substr(0, files[0].size() - end.size());
        EXPECT_EQ(stamp.find_first_not_of("0123456789_"), std::string::npos) << stamp;
        EXPECT_EQ(std::ranges::count(stamp, '_'), 5) << stamp;
        ASSERT_TRUE(MergeRegistryFile(install_.Path("Backup\\" + files[0])));
        EXPECT_EQ(ReadEntries(), EntriesBefore());
        ASSERT_TRUE(Running().Press("cmdRefresh"));
        EXPECT_TRUE(Applications().Find(Name));
    }
};

class EverySystemInstalledDelete : public InstalledDelete {};

TEST_F(EverySystemInstalledDelete, TheRegistryFileBringsBackExactlyWhatWasThere) {
    OpenInstalled();
    DeleteAndMerge(Ask());
}

TEST_F(InstalledDelete, ThePopupsEntryDeletesWithAllThatIsInTheEntry) {
    const std::string path =
        std::string("Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\") + Key;
    WriteValue(HKEY_LOCAL_MACHINE, path + "\\Parts\\First", "Size", {REG_DWORD, {1, 2, 3, 4}});
    const std::optional<RegistryTree> whole = ReadEntry(Key);
    OpenInstalled();
    SelectApplication(Name);
    ClickAt(Inside(Applications().LabelArea(*Applications().Selected())), Mouse::Right);
    ASSERT_TRUE(ChooseEntry(WaitForPopup(Running().Id()), "&Delete"));
    ASSERT_TRUE(Answer(Running().Message(), IDYES));
    ASSERT_TRUE(WaitUntil([this] { return !Applications().Find(Name); }));
    EXPECT_FALSE(ReadEntry(Key));
    const std::vector<std::string> files = RegistryFiles();
    ASSERT_EQ(files.size(), 1u);
    ASSERT_TRUE(MergeRegistryFile(install_.Path("Backup\\" + files[0])));
    EXPECT_EQ(ReadEntry(Key), whole);
}

TEST_F(InstalledDelete, NoKeepsTheEntry) {
    OpenInstalled();
    const Window question = Ask();
    ASSERT_TRUE(question);
    ASSERT_TRUE(Answer(question, IDNO));
    ASSERT_TRUE(Running().Press("cmdRefresh"));
    EXPECT_TRUE(Applications().Find(Name));
    EXPECT_EQ(ReadEntries(), EntriesBefore());
    EXPECT_TRUE(RegistryFiles().empty());
}

TEST_F(InstalledDelete, WithoutASelectedRowNothingIsAsked) {
    OpenInstalled();
    ASSERT_TRUE(Running().Press("cmdDelete"));
    EXPECT_TRUE(Running().Main().Enabled());
    EXPECT_EQ(ReadEntries(), EntriesBefore());
}

}  // namespace
}  // namespace velkarix::e2e
