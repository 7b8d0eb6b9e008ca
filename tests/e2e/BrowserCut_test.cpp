// A program that is ended in the middle of a command, at any of its changes of the registry and of
// files, leaves every item whole somewhere, and shows it at its next start.
#include "BrowserTest.h"
#include "CutTest.h"
#include "RegistryMerge.h"

namespace velkarix::e2e {
namespace {

class BrowserCut : public CutTest<BrowserItemTest> {
  protected:
    const std::optional<RegistryTree> whole_ = ReadItem(Item(), true);

    // Puts the item where the test wants it, alone.
    void Place(bool enabled) {
        for (const BrowserPlace& each : PlacesBefore()) {
            RestoreTree(each.place.hive, each.place.path, each.tree);
        }
        if (!enabled) {
            CopyToHeld(Item());
            RemoveItem(Item());
        }
    }
    void Open() {
        OpenBrowser();
        Show(Item().list);
    }
    bool IsWhole(bool enabled) { return ReadItem(Item(), enabled) == whole_; }
    // Moves the item out of that state.
    void Move(bool enabled) { Running().Press(enabled ? Item().list.disable : Item().list.enable); }
    void ExpectShownWhereItIsWhole() {
        for (const bool enabled : {true, false}) {
            EXPECT_TRUE(!IsWhole(enabled) || IsListed(Item(), enabled));
        }
    }
    void ExpectMovedFrom(bool enabled) {
        EXPECT_TRUE(IsWhole(!enabled));
        EXPECT_FALSE(ReadItem(Item(), enabled));
    }
    // Cuts the command that moves the item out of that state.
    void CutMove(bool enabled);
};

void BrowserCut::CutMove(bool enabled) {
    ASSERT_TRUE(whole_);
    CutAtEachChange({3, [&] { Place(enabled); },
                     [&] {
                         Open();
                         TickItem(Item(), enabled);
                     },
                     [&] { Move(enabled); },
                     [&](bool done) {
                         if (done) return ExpectMovedFrom(enabled);
                         EXPECT_TRUE(IsWhole(true) || IsWhole(false)) << "it is lost";
                         Open();
                         ExpectShownWhereItIsWhole();
                         // Where it still stands, the command can be given again.
                         if (!IsListed(Item(), enabled)) return;
                         TickItem(Item(), enabled);
                         Move(enabled);
                         ExpectMovedFrom(enabled);
                     }});
}

TEST_P(BrowserCut, AnItemThatIsBeingDisabledIsNeverInNeitherPlace) {
    CutMove(true);
}

TEST_P(BrowserCut, AnItemThatIsBeingEnabledIsNeverInNeitherPlace) {
    CutMove(false);
}

TEST_P(BrowserCut, AnItemThatIsBeingDeletedIsWholeOrInAFileThatBringsItBack) {
    ASSERT_TRUE(whole_);
    CutAtEachChange({3, [&] { Place(true); },
                     [&] {
                         Open();
                         SelectItem(Item(), true);
                     },
                     [&] {
                         EXPECT_TRUE(Running().Control(Item().list.remove).Click());
                         AnswerMessage(IDYES);
                         WaitUntilDoneOrEnded([&] { return !ReadItem(Item(), true); });
                     },
                     [&](bool) {
                         for (const std::string& file : RegistryFiles()) {
                             const std::string path = install_.Path("Backup\\" + file);
                             EXPECT_TRUE(MergeRegistryFile(path)) << path;
                             DeleteFileA(path.c_str());
                         }
                         EXPECT_TRUE(IsWhole(true)) << "it is lost";
                     }});
}

// A key with subkeys, text values, and a value of bytes: each is moved in its own way.
INSTANTIATE_TEST_SUITE_P(Some, BrowserCut,
                         testing::Values(SampleItems[0], SampleItems[1], SampleItems[2],
                                         SampleItems.back()),
                         TitleOf);

}  // namespace
}  // namespace velkarix::e2e
