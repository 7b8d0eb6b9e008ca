#include "shell/frmMain.h"

#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "base/Text.h"
#include "shell/ShellOpen.h"
#include "shell/Skin.h"
#include "shell/Updater.h"
#include "shell/clsDisableMaximize.h"
#include "shell/clsSysInfo.h"

namespace velkarix {

namespace {

struct PageEntry {
    const char* button;
    const char* caption;
    const char* page;
    const char* skinElement;
    const char* focusTarget;  // the control that gets the focus after a switch; null: none
    Key key;                  // together with Ctrl
};

// In the order of the strip.
const PageEntry Pages[] = {
    {"cmdProcess", "Processes", "frmProcess", "Process", "lstvProcess", Key::Digit1},
    {"cmdIE", "Internet Explorer", "frmIE", "IE", "lstvBHO", Key::Digit2},
    {"cmdStartup", "Startup", "frmStartup", "Startup", "tvwStartup", Key::Digit3},
    {"cmdAddremove", "Add/Remove", "frmAddRemove", "AddRemove", "lstvAddRemove", Key::Digit4},
    {"cmdOptions", "Options", "frmOptions", "Options", nullptr, Key::Digit5},
    {"cmdUtilities", "Utilities", "frmUtilities", "Utilities", nullptr, Key::Digit6},
};

constexpr int UpdateDelay = 200;  // milliseconds; the first page is drawn by then
constexpr int TypeMismatchFault = 13;
constexpr int OverflowFault = 6;

}  // namespace

frmMain::frmMain(Application& application)
    : Form("frmMain", ApplicationTitle, FormKind::Main),
      application_(application),
      picTop_("picTop", "Banner", Panel::Look::Banner),
      picProduct_("picProduct", ApplicationTitle, "Application", 48),
      lblProduct_("lblProduct", ApplicationTitle, Label::Look::Title),
      lblHelp_("lblHelp", "Help Topics", [this] { lblHelp_Click(); }),
      lblAbout_("lblAbout", "About", [this] { lblAbout_Click(); }),
      picLeft_("picLeft", "Pages", Panel::Look::Strip),
      picPage_("picPage", "Page"),
      find_(
          application.desktop, [this] { return ListOnView(); },
          [this](const std::string& text) { status_.Say(text); }),
      status_(application, [this] { return ListOnView(); }),
      tmrUpdate_("tmrUpdate", UpdateDelay, [this] { tmrUpdate_Timer(); }) {
    std::vector<Control*> controls = {&picTop_, &picProduct_, &lblProduct_, &picLeft_};
    std::vector<Accelerator> keys = find_.Keys();
    keys.push_back({{Key::C, true}, "", nullptr, [this] { CopyRow(); }});
    keys.push_back({{Key::C, true, true}, "", nullptr, [this] { CopyList(); }});
    Layout strip = UniformColumn({});
    for (std::size_t i = 0; i < std::size(Pages); ++i) {
        const PageEntry& entry = Pages[i];
        pageButtons_.push_back(std::make_unique<Button>(
            entry.button, entry.caption, [this, i] { PageButton_Click(i); },
            Button::Look::Picture));
        controls.push_back(pageButtons_.back().get());
        strip.children.push_back(Item(*pageButtons_.back()));
        keys.push_back({{entry.key, true}, std::string(entry.button) + "_Click"});
    }
    for (Control* control : find_.Controls()) controls.push_back(control);
    controls.push_back(&picPage_);
    for (Control* control : status_.Controls()) controls.push_back(control);
    controls.insert(controls.end(), {&lblHelp_, &lblAbout_});
    SetControls(std::move(controls));
    SetAccelerators(std::move(keys));
    SetTimers({&tmrUpdate_});
    SetLayout(
        Column({Group(picTop_, Row({Item(picProduct_), Item(lblProduct_), Space(), Item(lblHelp_),
                                    Item(lblAbout_)})),
                Row({Group(picLeft_, std::move(strip)),
                     Column({find_.StripLayout(), Item(picPage_, 1), status_.StripLayout()}, 1)},
                    1)}));
}

frmMain::~frmMain() {
    FollowLists({});
}

void frmMain::Form_Load() {
    application_.settings.LearnInstallFolder();
    SetCaption(std::string(ApplicationTitle) + " Version: " + ApplicationVersion());
    application_.DisabledRoot = std::string("Software\\") + ApplicationTitle + "\\Disabled\\";
    clsDisableMaximize(application_.machine.windows)
        .DisableMaxButton(application_.desktop.HandleOf(*this));
    ApplySkin();
    if (!ReadAppearance()) return;
    GetWindowsName();
    LoadDefinitionLists();
    activePage_ = Pages[0].page;
    ShowActivePage();
    tmrUpdate_.SetEnabled(true);
}

void frmMain::ApplySkin() {
    SkinWindow(*this, "window");
    for (std::size_t i = 0; i < std::size(Pages); ++i) {
        SkinControl(*pageButtons_[i], Pages[i].skinElement);
    }
}

bool frmMain::ReadAppearance() {
    Settings& settings = application_.settings;
    // Alone among the numbers this one is converted strictly, and nothing handles its fault.
    const std::optional<double> bold = StrictNumber(settings.ReadIni("Main", "FontBold", "1"));
    if (!bold) {
        application_.EndWithFault(TypeMismatchFault, "Type mismatch");
        return false;
    }
    const double rounded = std::nearbyint(*bold);
    if (std::abs(rounded) > std::numeric_limits<std::int16_t>::max()) {
        application_.EndWithFault(OverflowFault, "Overflow");
        return false;
    }
    Appearance& appearance = application_.appearance;
    appearance.FontBold = static_cast<std::int16_t>(rounded);
    const auto color = [&settings](const char* key, const char* fallback) {
        return static_cast<Color>(RoundedNumber(settings.ReadIni("Main", key, fallback)));
    };
    appearance.SusColor = color("SusColor", "255");
    appearance.DisColor = color("DisColor", "8421504");
    appearance.SusDisColor = color("SusDisColor", "64");
    return true;
}

void frmMain::GetWindowsName() {
    clsSysInfo facts(application_.machine.system, application_.registry);
    application_.WindowsName = facts.sysInfo().windowsName;
}

void frmMain::LoadDefinitionLists() {
    const std::pair<DefinitionList&, const char*> lists[] = {
        {application_.SusCLSIDList, "\\SusCLSID.vkl"},
        {application_.SystemProcessList, "\\SystemProcess.vkl"},
        {application_.SusProcessList, "\\SusProcess.vkl"},
        {application_.SusInstallList, "\\SusInstall.vkl"}};
    for (const auto& [list, name] : lists) {
        const std::string path = application_.settings.InstallFolder() + name;
        application_.unread.Note(path, "",
                                 LoadDefinitionList(application_.machine.files, list, path));
    }
}

void frmMain::PageButton_Click(std::size_t button) {
    const PageEntry& entry = Pages[button];
    if (!ShowPage(entry.page) || entry.focusTarget == nullptr) return;
    const Form* page = application_.forms.Loaded(entry.page);
    Control* target = page == nullptr ? nullptr : page->Find(entry.focusTarget);
    if (target != nullptr) application_.desktop.Focus(*target);
}

bool frmMain::ShowPage(const std::string& page) {
    if (activePage_ == page) return false;
    application_.forms.Unload(activePage_);
    activePage_ = page;
    ShowActivePage();
    return true;
}

void frmMain::ShowActivePage() {
    MarkActivePage();
    application_.forms.Show(activePage_, &picPage_);
    FollowLists([this] { status_.ShowCounts(); });
    status_.ShowCounts();
}

Form* frmMain::LoadPage(const std::string& page) {
    return application_.forms.Load(page, &picPage_);
}

void frmMain::UnloadPage(const std::string& page) {
    application_.forms.Unload(page);
    if (activePage_ != page) return;
    activePage_.clear();
    MarkActivePage();
}

void frmMain::MarkActivePage() {
    for (std::size_t i = 0; i < std::size(Pages); ++i) {
        pageButtons_[i]->SetPressed(activePage_ == Pages[i].page);
    }
}

void frmMain::lblHelp_Click() {
    ShellOpen(application_.machine.shell,
              application_.settings.InstallFolder() + "\\Help\\index.html");
}

void frmMain::lblAbout_Click() {
    application_.forms.ShowModal("frmAbout", *this);
}

void frmMain::tmrUpdate_Timer() {
    tmrUpdate_.SetEnabled(false);
    Settings& settings = application_.settings;
    if (NumericPrefix(settings.ReadIni("Main", "FirstRun", "0")) == 0) {
        settings.WriteIni("Main", "FirstRun", "1");
        LaunchUpdater(application_, true);
    } else if (NumericPrefix(settings.ReadIni("Update", "CheckUpdate", "1")) == 1) {
        CheckForUpdate(application_);
    }
}

}  // namespace velkarix
