// Any data of any type and size at the places that the pages read, coming also while a page is on
// view, and a user who does anything there: the program goes on, closes what it opens, shows what
// is there and loses nothing.
#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <utility>

#include "fuzzing/ExpectedRows.h"
#include "fuzzing/FuzzTarget.h"
#include "fuzzing/Gestures.h"
#include "fuzzing/PageData.h"
#include "fuzzing/PageLists.h"
#include "fuzzing/StandingItems.h"
#include "tests/machine/TestProgram.h"

namespace velkarix {

namespace {

constexpr const char* Report = "C:\\Report.txt";

class Session {
  public:
    Session(FuzzInput& input, const char* page, NamedSystem system, bool hasCopyKey)
        : input_(input), page_(page), machine_(system), program_(machine_) {
        machine_.registry.SetHasCopyKey(hasCopyKey);
        program_.application.DisabledRoot = "Software\\Velkarix\\Disabled\\";
        PutCommonParts(machine_);
    }

    void Run() {
        constexpr auto PartCount = static_cast<std::size_t>(PagePart::Count);
        while (!input_.AtEnd()) {
            const std::size_t step = input_.Below(PartCount + 1);
            if (step == PartCount) {
                Act();
            } else {
                standing_.reset();
                PutPart(input_, static_cast<PagePart>(step), program_.application, machine_);
            }
        }
        if (Page() == nullptr) Open();
        if (page_ == "frmOptions") ExpectAllReported();
    }

  private:
    Form* Page() { return program_.application.forms.Loaded(page_); }

    // The full report is written from the pages of a program that is whole.
    void Open() {
        if (page_ == "frmOptions") {
            program_.Start();
            program_.Get<Button>("frmMain", "cmdOptions").Raise("Click");
        } else {
            program_.application.forms.Show(page_);
        }
        ExpectAllClosed();
        ExpectAllShown();
    }

    void Act() {
        if (Page() == nullptr) Open();
        PassAMinute();
        if (!standing_) standing_.emplace(machine_);
        RecordingDesktop& desktop = program_.desktop;
        desktop.messages.clear();
        desktop.answers.assign(2, input_.Flag() ? MessageAnswer::Yes : MessageAnswer::No);
        desktop.nextSaveFile = Report;
        MakeGesture(input_, *Page());
        const bool isDeletion = std::any_of(
            desktop.messages.begin(), desktop.messages.end(),
            [](const Message& message) { return message.icon == MessageIcon::Question; });
        StandingItems now(machine_);
        const std::string lost = standing_->FindLost(now, isDeletion);
        Expect(lost.empty(), "nothing is lost", lost);
        standing_ = std::move(now);
        Expect(!program_.application.itemChangeRuns, "a command ends");
        ExpectAllClosed();
    }

    // Backups that are made in one second replace each other.
    void PassAMinute() {
        constexpr FileTime Minute = 600'000'000;
        time_ += Minute;
        machine_.clock.SetLocalTime(ToSystemTime(time_));
    }

    void ExpectAllClosed() {
        Expect(machine_.registry.OpenKeyCount() == 0 && machine_.files.OpenFileCount() == 0 &&
                   machine_.files.OpenSearchCount() == 0 && machine_.shell.OpenIconCount() == 0 &&
                   machine_.processes.OpenHandleCount() == 0,
               "what was opened is closed");
    }

    void ExpectShown(const char* list, const ExpectedRows& expected, RowTexts (*read)(ListView&)) {
        const std::string difference =
            expected.FindDifference(read(program_.Get<ListView>(page_, list)));
        Expect(difference.empty(), "what is there is shown, and nothing else", difference);
    }
    void ExpectAllShown() {
        const Application& application = program_.application;
        const MemoryHives& hives = machine_.registry;
        if (page_ == "frmStartup") {
            ExpectShown("lstvStartup", ExpectRuns(application, hives), RunsShown);
        }
        if (page_ == "frmAddRemove") {
            ExpectShown("lstvAddRemove", ExpectInstalled(hives), InstalledShown);
        }
        if (page_ != "frmIE") return;
        for (const PageList& list : PageLists) {
            ExpectShown(list.list, ExpectItems(application, hives, list), ItemsShown);
        }
    }

    // Each row that a page shows stands in the full report.
    void ExpectAllReported() {
        for (Control* control : Page()->Controls()) {
            auto* box = dynamic_cast<CheckBox*>(control);
            if (box != nullptr) box->SetChecked(true);
        }
        program_.desktop.nextSaveFile = Report;
        program_.Get<Button>(page_, "cmdReport").Raise("Click");
        ExpectAllClosed();
        const std::string report = machine_.disk.ContentOf(Report).value_or("");
        for (const char* page : FuzzedPages) {
            if (page == page_) continue;
            program_.application.forms.Show(page);
            for (Control* control : program_.application.forms.Loaded(page)->Controls()) {
                auto* list = dynamic_cast<ListView*>(control);
                for (std::size_t i = 0; list != nullptr && i < list->RowCount(); ++i) {
                    const std::string line = ": " + list->Row(i).Text(0);
                    Expect(report.find(line) != std::string::npos, "each row is reported", line);
                }
            }
        }
    }

    FuzzInput& input_;
    std::string page_;
    std::optional<StandingItems> standing_;  // nothing when more was put onto the machine
    FileTime time_ = ToFileTime(MakeTime(2004, 6, 1));
    MemoryMachine machine_;
    RunningProgram program_;
};

}  // namespace

void RunInput(FuzzInput& input) {
    const char* page = FuzzedPages[input.Below(std::size(FuzzedPages))];
    const NamedSystem system = allNamedSystems[input.Below(allNamedSystems.size())];
    const bool hasCopyKey = !input.Flag();
    Session(input, page, system, hasCopyKey).Run();
}

}  // namespace velkarix
