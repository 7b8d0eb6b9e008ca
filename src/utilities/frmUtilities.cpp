#include "utilities/frmUtilities.h"

#include <iterator>
#include <utility>

#include "shell/Updater.h"
#include "utilities/ToolLaunchers.h"

namespace velkarix {

namespace {

// With this for a date the definitions of a new installation come.
constexpr const char* NeverUpdated = "***";

}  // namespace

struct frmUtilities::LauncherBox {
    LauncherBox(const ToolLauncher& entry, Handler onClick)
        : frame(entry.frame, entry.caption),
          text(entry.label, entry.text, Label::Look::Paragraph),
          button(entry.button, entry.buttonCaption, std::move(onClick)) {}

    Frame frame;
    Label text;
    Button button;
};

frmUtilities::frmUtilities(Application& application)
    : Form("frmUtilities", "Utilities", FormKind::Page),
      application_(application),
      fmDBUpdate_("fmDBUpdate", "Database Update"),
      chkAutoDBCheck_("chkAutoDBCheck", "Automatically check for database update", {}),
      lblLastUpdated_("lblLastUpdated", "Last Updated On:"),
      cmdUpdateDefinition_("cmdUpdateDefinition", "Update",
                           [this] { cmdUpdateDefinition_Click(); }),
      fmSoftwareUpdate_("fmSoftwareUpdate", "Software Update"),
      cmdUpdateSoftware_("cmdUpdateSoftware", "Update", [this] { cmdUpdateSoftware_Click(); }),
      fmActiveX_("fmActiveX", "Protect from Malacious Activex Controls"),
      lblActiveX_("lblActiveX",
                  "Many of the malacious software are installed on your computer in form of "
                  "ActiveX controls through Internet Explorer. You can prevent them from "
                  "installing on your computer by clicking Protect Now button.",
                  Label::Look::Paragraph),
      cmdActiveXProtect_("cmdActiveXProtect", "Protect Now", [this] { cmdActiveXProtect_Click(); }),
      cmdActiveXRemove_("cmdActiveXRemove", "Remove Protection",
                        [this] { cmdActiveXRemove_Click(); }) {
    cmdUpdateDefinition_.SetToolTip("Click to update the current database ");
    cmdUpdateSoftware_.SetToolTip("Click to update the current software ");
    MakeLayout();
}

frmUtilities::~frmUtilities() = default;

void frmUtilities::MakeLayout() {
    std::vector<Control*> controls = {
        &fmDBUpdate_,        &chkAutoDBCheck_,    &lblLastUpdated_, &cmdUpdateDefinition_,
        &fmSoftwareUpdate_,  &cmdUpdateSoftware_, &fmActiveX_,      &lblActiveX_,
        &cmdActiveXProtect_, &cmdActiveXRemove_};
    const Layout updates =
        Row({Group(fmDBUpdate_,
                   Row({Column({Item(chkAutoDBCheck_), Item(lblLastUpdated_)}, 1),
                        Item(cmdUpdateDefinition_)}),
                   1),
             Group(fmSoftwareUpdate_, Row({Space(), Item(cmdUpdateSoftware_), Space()}), 1)});
    Layout page = Column(
        {updates,
         Group(fmActiveX_, Row({Item(lblActiveX_, 1), UniformColumn({Item(cmdActiveXProtect_),
                                                                     Item(cmdActiveXRemove_)})}))});
    for (std::size_t i = 0; i < std::size(ToolLaunchers); ++i) {
        const ToolLauncher& entry = ToolLaunchers[i];
        launchers_.push_back(
            std::make_unique<LauncherBox>(entry, [this, i] { Launcher_Click(i); }));
        LauncherBox& box = *launchers_.back();
        controls.insert(controls.end(), {&box.frame, &box.text, &box.button});
        page.children.push_back(Group(box.frame, Row({Item(box.text, 1), Item(box.button)})));
    }
    page.children.push_back(Space());
    SetControls(std::move(controls));
    SetLayout(std::move(page));
}

void frmUtilities::Form_Load() {
    chkAutoDBCheck_.SetChecked(
        RoundedNumber(application_.settings.ReadIni("Update", "CheckUpdate", "1")) == 1);
    lblLastUpdated_.SetText(lblLastUpdated_.Text() + " " + LastUpdate());
}

void frmUtilities::Form_Unload() {
    application_.settings.WriteIni("Update", "CheckUpdate", chkAutoDBCheck_.Checked() ? "1" : "0");
}

// The days until the first check begin to count when the page is first opened.
std::string frmUtilities::LastUpdate() {
    Settings& settings = application_.settings;
    const std::string file = DatabaseFile(settings);
    std::string last = settings.ReadIni("Update", "Last", "", file);
    if (last == NeverUpdated) {
        Clock& clock = application_.machine.clock;
        settings.WriteIni("Update", "Last", clock.GetDateFormatA(clock.GetLocalTime()), file);
        last = settings.ReadIni("Update", "Last", "", file);
    }
    return last;
}

void frmUtilities::cmdUpdateDefinition_Click() {
    LaunchUpdater(application_, false);
}

// One program updates both.
void frmUtilities::cmdUpdateSoftware_Click() {
    LaunchUpdater(application_, false);
}

void frmUtilities::Launcher_Click(std::size_t launcher) {
    const InstalledTool& tool = ToolLaunchers[launcher].tool;
    if (FindTool(application_, tool)) StartTool(application_, tool);
}

}  // namespace velkarix
