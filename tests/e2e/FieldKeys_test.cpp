// Keys of names that no program of ours would give: too long to be listed, or leading to another
// key. Each shows its own facts or none, and nothing of it is lost.
#include "BrowserTest.h"
#include "FieldParts.h"
#include "tests/NtRegistry.h"

namespace velkarix::e2e {
namespace {

class FieldKeys : public BrowserTest {
  protected:
    FieldKeys() {
        for (const std::string& item : {SampleItems[0].live, SampleItems[0].held}) {
            DeleteTree(HKEY_LOCAL_MACHINE, item.substr(0, item.rfind('\\')));
        }
    }
    static std::size_t HolderEnd() { return SampleItems[0].live.rfind('\\'); }
    std::string Holder() const { return SampleItems[0].live.substr(0, HolderEnd()); }
    void MakeKey(const std::u16string& name) {
        const OpenedKeyOf holder(HKEY_LOCAL_MACHINE, Holder().c_str());
        ASSERT_NE(named_.MakeKey(holder.Handle(), name), nullptr);
    }
    std::vector<std::string> Names() { return Running().List("lstvBHO").Column(0); }

    NtRegistry named_;  // what it made goes before the registry is restored
};

TEST_F(FieldKeys, AreListedUpTo254Bytes) {
    MakeKey(std::u16string(254, u'a'));
    MakeKey(std::u16string(255, u'b'));
    MakeKey(u"c");
    OpenBrowser();
    const ListWindow list = Show(BHOs);
    ASSERT_EQ(list.RowCount(), 1);
    EXPECT_EQ(list.Text(0, 0), std::string(254, 'a'));
    Tick(list, 0);
    ASSERT_TRUE(Running().Press(BHOs.disable));
    EXPECT_EQ(list.Column(1).back(), "False");
    // What couldn't be listed before is where it was.
    const std::optional<RegistryTree> left = ReadTree(HKEY_LOCAL_MACHINE, Holder());
    ASSERT_TRUE(left);
    EXPECT_FALSE(left->keys.contains(std::string(254, 'a')));
    EXPECT_TRUE(left->keys.contains(std::string(255, 'b')));
    EXPECT_TRUE(left->keys.contains("c"));
}

TEST_F(FieldKeys, ShowNoFactsOfAnotherThatTheirNameLeadsTo) {
    const SampleItem& item = SampleItems[0];
    const std::string name = item.live.substr(HolderEnd() + 1);
    std::u16string hidden = Wide(name);
    hidden += u'\0';
    hidden += u'x';
    MakeKey(Wide(name));
    MakeKey(hidden);
    OpenBrowser();
    const ListWindow list = Show(BHOs);
    ASSERT_EQ(list.RowCount(), 2);
    int facts = 0;
    int bare = 0;
    for (int row = 0; row < 2; ++row) {
        EXPECT_EQ(list.Text(row, 0), name);
        if (list.Text(row, 3).empty()) bare = row;
        facts += list.Text(row, 3).empty() ? 0 : 1;
    }
    ASSERT_EQ(facts, 1);
    Tick(list, bare);
    ASSERT_TRUE(Running().Control(BHOs.disable).Click());
    const Window message = Running().Message();
    ASSERT_TRUE(message);
    EXPECT_NE(MessageText(message).find("Error Occurred backupItem: "), std::string::npos);
    ASSERT_TRUE(Answer(message, IDOK));
    EXPECT_EQ(list.RowCount(), 2);
    EXPECT_TRUE(ReadTree(HKEY_LOCAL_MACHINE, item.live));
    EXPECT_FALSE(ReadTree(HKEY_LOCAL_MACHINE, item.held));
}

}  // namespace
}  // namespace velkarix::e2e
