// A program that is ended in the middle of a command, at any of its changes of the registry and of
// files, leaves every item whole somewhere, and shows it at its next start.
#include "AskInside.h"
#include "BrowserTest.h"
#include "Process.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

constexpr int MostChanges = 100;

class BrowserCut : public BrowserItemTest {
  protected:
    const std::optional<RegistryTree> whole_ = ReadItem(Item(), true);

    // The program is to end at that change.
    void EndAt(int change) {
        ASSERT_EQ(AskInside(Running().Main(), EndAtChangeQuestion, change), "ready");
    }
    // Starts the program afresh after a cut, and enters the view of the item.
    void StartAgain() {
        OpenBrowser();
        Show(Item().list);
    }
    bool IsWhole(bool enabled) { return ReadItem(Item(), enabled) == whole_; }
    // Puts the item where the test wants it, alone, and the list on view shows it.
    void Place(bool enabled) {
        for (const BrowserPlace& each : PlacesBefore()) {
            RestoreTree(each.place.hive, each.place.path, each.tree);
        }
        if (!enabled) {
            CopyToHeld(Item());
            RemoveItem(Item());
        }
        ASSERT_TRUE(Running().Press(Item().list.refresh));
    }
    // Moves the item out of that state. False when the program ended meanwhile.
    bool Move(bool enabled) {
        TickItem(Item(), enabled);
        return Running().Press(enabled ? Item().list.disable : Item().list.enable);
    }
    // Deletes the live item. False when the program ended meanwhile.
    bool Delete() {
        SelectItem(Item(), true);
        EXPECT_TRUE(Running().Control(Item().list.remove).Click());
        const Window question = Running().Message();
        EXPECT_TRUE(question && Window(GetDlgItem(question.Handle(), IDYES)).Click());
        return WaitUntil([&] {
                   return !Running().OwnProcess().Running() ||
                          (!question && !ReadItem(Item(), true));
               }) &&
               Running().OwnProcess().Running();
    }
    void ExpectShownWhereItIsWhole(int change) {
        for (const bool enabled : {true, false}) {
            EXPECT_TRUE(!IsWhole(enabled) || IsListed(Item(), enabled)) << "change " << change;
        }
    }
    // Cuts the command that moves the item out of that state at each of its changes in turn.
    void CutMove(bool enabled);
};

void BrowserCut::CutMove(bool enabled) {
    ASSERT_TRUE(whole_);
    StartAgain();
    for (int change = 1; change < MostChanges; ++change) {
        Place(enabled);
        EndAt(change);
        if (Move(enabled)) {
            EXPECT_GE(change, 4) << "a copy and a deletion are more changes";
            EXPECT_TRUE(IsWhole(!enabled));
            EXPECT_FALSE(ReadItem(Item(), enabled));
            return;
        }
        EXPECT_EQ(Running().OwnProcess().WaitForExit(), EndedAtChange);
        EXPECT_TRUE(IsWhole(true) || IsWhole(false)) << "lost by a cut at change " << change;
        StartAgain();
        ExpectShownWhereItIsWhole(change);
        // Where it still stands, the command can be given again.
        if (!IsListed(Item(), enabled)) continue;
        EXPECT_TRUE(Move(enabled));
        EXPECT_TRUE(IsWhole(!enabled)) << "not moved after a cut at change " << change;
        EXPECT_FALSE(ReadItem(Item(), enabled)) << "not moved after a cut at change " << change;
    }
    FAIL() << "the command has no end";
}

TEST_P(BrowserCut, AnItemThatIsBeingDisabledIsNeverInNeitherPlace) {
    CutMove(true);
}

TEST_P(BrowserCut, AnItemThatIsBeingEnabledIsNeverInNeitherPlace) {
    CutMove(false);
}

TEST_P(BrowserCut, AnItemThatIsBeingDeletedIsWholeOrInAFileThatBringsItBack) {
    ASSERT_TRUE(whole_);
    StartAgain();
    for (int change = 1; change < MostChanges; ++change) {
        Place(true);
        EndAt(change);
        const bool done = Delete();
        for (const std::string& file : RegistryFiles()) {
            const std::string path = install_.Path("Backup\\" + file);
            EXPECT_EQ(Process("regedit.exe", "", "/S \"" + path + "\"").WaitForExit(), 0u);
            DeleteFileA(path.c_str());
        }
        EXPECT_TRUE(IsWhole(true)) << "lost by a cut at change " << change;
        if (done) {
            EXPECT_GE(change, 3) << "a file and a deletion are more changes";
            return;
        }
        StartAgain();
    }
    FAIL() << "the command has no end";
}

// A key with subkeys, text values, and a value of bytes: each is moved in its own way.
INSTANTIATE_TEST_SUITE_P(Some, BrowserCut,
                         testing::Values(SampleItems[0], SampleItems[1], SampleItems[2],
                                         SampleItems.back()),
                         TitleOf);

}  // namespace
}  // namespace velkarix::e2e
