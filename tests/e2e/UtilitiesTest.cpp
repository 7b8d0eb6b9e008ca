#include "UtilitiesTest.h"

#include "Input.h"
#include "Screen.h"
#include "Wait.h"

namespace velkarix::e2e {

namespace {

// The picture beside a message's text.
Window IconOf(const Window& message) {
    for (const Window& child : message.Children()) {
        if (child.Class() == "Static" && (child.Style() & SS_TYPEMASK) == SS_ICON) return child;
    }
    return {};
}

// Of the pictures that are used here only the one of a failure is red.
bool IsRed(const Window& icon) {
    return CountPixels(icon.Area(), IsReddish) > 100;
}

}  // namespace

void UtilitiesTest::OpenUtilities() {
    Start();
    ASSERT_TRUE(BringToFront(Running().Main()));
    ASSERT_TRUE(Running().Press("cmdUtilities"));
    ASSERT_TRUE(Running().Control("cmdHosts").Visible());
}

void UtilitiesTest::ClickOn(const std::string& button) {
    const Window window = Running().Control(button);
    ASSERT_TRUE(window.Visible() && window.Enabled()) << button;
    ClickAt(Inside(window.Area()));
}

std::string UtilitiesTest::RecordOf(const std::string& command) const {
    return "command: " + command + "\r\nfolder: " + install_.Folder() + "\r\n";
}

std::string UtilitiesTest::Recorded(const std::string& standIn, const std::string& expected) const {
    std::string text;
    WaitUntil([&] { return (text = install_.Read(standIn + ".log")) == expected; });
    return text;
}

void UtilitiesTest::ExpectMessage(const std::string& text, Icon icon) {
    const Window message = Running().Message();
    ASSERT_TRUE(message) << "instead of: " << text;
    EXPECT_EQ(message.Text(), "Velkarix");
    EXPECT_EQ(MessageText(message), text);
    const Window picture = IconOf(message);
    EXPECT_TRUE(picture) << "there is no icon";
    const bool red = icon == Icon::Critical;
    EXPECT_TRUE(WaitUntil([&] { return IsRed(picture) == red; })) << "another icon";
    EXPECT_TRUE(Answer(message, IDOK));
}

}  // namespace velkarix::e2e
