#include "TargetTest.h"

#include <windows.h>

#include <algorithm>
#include <filesystem>

#include "Setup.h"
#include "Wait.h"

namespace velkarix::e2e {

TargetTest::TargetTest() {
    CopyFileA(SamplePath("SampleIdle.exe").c_str(), install_.Path(Target).c_str(), TRUE);
}

void TargetTest::StartTarget() {
    target_ = Process(install_.Path(Target));
    ASSERT_TRUE(target_) << "the copy doesn't start";
    if (HasStarted()) {
        ASSERT_TRUE(Running().Press("cmdRefresh"));
    } else {
        Start();
    }
    ASSERT_TRUE(List().Find(Target));
}

void TargetTest::EndTarget() {
    const DWORD id = target_.Id();
    target_.End();
    // The system may know it for a while yet.
    EXPECT_TRUE(WaitUntil([id] {
        const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION, FALSE, id);
        if (process != nullptr) CloseHandle(process);
        return process == nullptr;
    })) << "somebody holds on to it";
}

Window TargetTest::Ask(const std::string& button) {
    SelectRow(Target);
    EXPECT_TRUE(Running().Control(button).Click());
    return Running().Message();
}

void TargetTest::AnswerTo(const Window& message, const std::string& text, int button) {
    ASSERT_TRUE(message) << "instead of: " << text;
    EXPECT_EQ(message.Text(), "Velkarix");
    EXPECT_EQ(MessageText(message), text);
    EXPECT_TRUE(Answer(message, button));
}

std::string TargetTest::ListedPath() {
    const int row = RowOf(Target);
    return List().Text(row, 6) + List().Text(row, 0);
}

std::vector<std::string> TargetTest::BackupFiles() const {
    std::vector<std::string> names;
    std::error_code failure;
    for (const auto& file : std::filesystem::directory_iterator(install_.Path("Backup"), failure)) {
        names.push_back(file.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
}

std::string SystemErrorText(DWORD code) {
    char text[512] = "";
    FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0,
                   text, sizeof text, nullptr);
    return text;
}

}  // namespace velkarix::e2e
