#include "tests/safety/EveryCommand.h"

#include <algorithm>
#include <deque>
#include <iterator>

#include "shell/modMain.h"

namespace velkarix {
namespace {

constexpr const char* MainForm = "frmMain";
constexpr const char* Pages[] = {"frmProcess",   "frmIE",      "frmStartup",
                                 "frmAddRemove", "frmOptions", "frmUtilities"};

// Each state of a page shows other controls.
std::string StateOf(const Form& page) {
    std::string names = page.Name();
    for (const Control* control : page.Controls()) {
        if (control->Shown()) names += "," + control->Name();
    }
    return names;
}

}  // namespace

// The program on a machine of its own, from its start on.
class EveryCommand::Run {
  public:
    explicit Run(EveryCommand& all) : all_(all), program_((all.prepare_(machine_), machine_)) {
        constexpr std::size_t MostQuestions = 100;
        program_.desktop.answers.assign(MostQuestions, all.answer_);
        program_.desktop.onModal = [this](Form& dialog) { GiveInDialog(dialog); };
    }

    RunningProgram& Program() { return program_; }
    Form& Main() { return *program_.application.forms.Loaded(MainForm); }
    Form& Page() {
        const auto page = std::find_if(std::begin(Pages), std::end(Pages), [this](auto* name) {
            return program_.application.forms.Loaded(name) != nullptr;
        });
        return *program_.application.forms.Loaded(*page);
    }

    void Follow(const Road& road) {
        program_.Start();
        for (const Gesture& gesture : road) {
            gesture.make(program_, *program_.application.forms.Loaded(gesture.form));
        }
    }
    // Makes the gesture and tells what was called; then ends the program, and tells that.
    void Give(const Gesture& gesture) {
        Begin({gesture.form, gesture.control, gesture.event, {}, {}});
        gesture.make(program_, *program_.application.forms.Loaded(gesture.form));
        Tell();
        ++all_.count_;
        Begin({MainForm, "", "End", {}, {}});
        program_.application.forms.UnloadAll(MainForm);
        Tell();
    }
    void Begin(GivenCommand command) {
        command_ = std::move(command);
        program_.desktop.nextSaveFile = all_.report_;
        program_.desktop.nextColor = 0x123456;
        machine_.Journal().Clear();
        filesBefore_ = machine_.files.OpenedForWriting().size();
    }
    void Tell() {
        const auto& files = machine_.files.OpenedForWriting();
        command_.calls = machine_.Journal().Calls();
        command_.writtenFiles.assign(files.begin() + static_cast<std::ptrdiff_t>(filesBefore_),
                                     files.end());
        all_.listener_(command_);
    }

  private:
    void GiveInDialog(Form& dialog) {
        Tell();
        const GivenCommand around = command_;
        const std::vector<Gesture> gestures = GesturesOn(program_, dialog);
        all_.NoteControls(dialog, gestures);
        for (const Gesture& gesture : gestures) {
            Begin({gesture.form, gesture.control, gesture.event, {}, {}});
            gesture.make(program_, dialog);
            Tell();
            ++all_.count_;
        }
        Begin(around);
    }

    EveryCommand& all_;
    MemoryMachine machine_;
    RunningProgram program_;
    GivenCommand command_;
    std::size_t filesBefore_ = 0;
};

EveryCommand::EveryCommand(Prepare prepare, MessageAnswer answer, std::string report,
                           Listener listener)
    : prepare_(std::move(prepare)),
      answer_(answer),
      report_(std::move(report)),
      listener_(std::move(listener)) {}

// From the state that the program starts in on, along whatever brings another one.
void EveryCommand::Give() {
    StartAndEnd();
    std::set<std::string> known;
    std::deque<Road> roads = {{}};
    for (; !roads.empty(); roads.pop_front()) {
        const Road& road = roads.front();
        Run run(*this);
        run.Follow(road);
        if (!known.insert(StateOf(run.Main()) + StateOf(run.Page())).second) continue;
        GiveAt(road);
        std::vector<Gesture> steps = OpenersOn(run.Page());
        if (road.empty()) steps = OpenersOn(run.Main());
        for (const Gesture& step : steps) {
            roads.push_back(road);
            roads.back().push_back(step);
        }
    }
}

void EveryCommand::StartAndEnd() {
    Run run(*this);
    run.Begin({MainForm, "", "Start", {}, {}});
    Main(run.Program().application);
    run.Tell();
}

// The main window's own commands are given once on each page.
void EveryCommand::GiveAt(const Road& road) {
    // Of longer lists, the first rows of each kind.
    constexpr std::size_t MostRows = 8;
    std::size_t rows = 1;
    for (std::size_t row = 0; row < std::min(rows, MostRows); ++row) {
        const bool ticked = row % 2 == 0;
        Run first(*this);
        first.Follow(road);
        rows = std::max(rows, PrepareForm(first.Page(), row, ticked));
        std::vector<Gesture> gestures = GesturesOn(first.Program(), first.Page());
        NoteControls(first.Page(), gestures);
        if (row == 0 && road.size() < 2) {
            const std::vector<Gesture> main = GesturesOn(first.Program(), first.Main());
            NoteControls(first.Main(), main);
            gestures.insert(gestures.end(), main.begin(), main.end());
        }
        for (const Gesture& gesture : gestures) {
            Run run(*this);
            run.Follow(road);
            PrepareForm(run.Page(), row, ticked);
            run.Give(gesture);
        }
    }
}

void EveryCommand::NoteControls(Form& form, const std::vector<Gesture>& gestures) {
    for (const std::string& name : WorkingControls(form)) {
        working_.insert(form.Name() + ", " + name);
    }
    for (const Gesture& gesture : gestures) seen_.insert(form.Name() + ", " + gesture.control);
}

std::vector<std::string> EveryCommand::NeverSeen() const {
    std::vector<std::string> names;
    std::set_difference(working_.begin(), working_.end(), seen_.begin(), seen_.end(),
                        std::back_inserter(names));
    return names;
}

}  // namespace velkarix
