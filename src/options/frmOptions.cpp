#include "options/frmOptions.h"

#include <iterator>
#include <optional>

#include "options/Legend.h"
#include "shell/ListServices.h"
#include "shell/Skin.h"

namespace velkarix {

namespace {

const char* Digit(bool checked) {
    return checked ? "1" : "0";
}

}  // namespace

frmOptions::frmOptions(Application& application, FullReport& report)
    : Form("frmOptions", "Options", FormKind::Page),
      application_(application),
      report_(report),
      fmLegend_("fmLegend", "Legend: Please double click the box to change color"),
      chkFontBold_("chkFontBold", "Font Bold", [this] { chkFontBold_Click(); }),
      fmReport_("fmReport", "Full Report: Please select areas to include in report"),
      cmdReport_("cmdReport", "Generate Report", [this] { cmdReport_Click(); }),
      fmBackup_("fmBackup", "Process Backup"),
      lstvBackup_("lstvBackup", "Backups of deleted files", {"Deleted On", "File Name", "Path"},
                  {{}, [this](int column) { SortByColumn(lstvBackup_, column - 1); }, {}, {}}),
      chkDelete_("chkDelete", "Delete Backup file after restoring", [this] { chkDelete_Click(); }),
      cmdrestore_("cmdrestore", "Restore", [this] { cmdrestore_Click(); }),
      cmdDelete_("cmdDelete", "Delete", [this] { cmdDelete_Click(); }) {
    lstvBackup_.SetCheckBoxes(false);
    MakeLayout();
}

void frmOptions::MakeLayout() {
    std::vector<Control*> controls = {&fmLegend_};
    Layout legend = Grid(2, {});
    for (std::size_t i = 0; i < std::size(Legend); ++i) {
        colorBoxes_.push_back(std::make_unique<ColorBox>(Legend[i].box, Legend[i].label,
                                                         [this, i] { ColorBox_DblClick(i); }));
        colorLabels_.push_back(
            std::make_unique<Label>(std::string(Legend[i].box) + "Label", Legend[i].label));
        controls.insert(controls.end(), {colorBoxes_.back().get(), colorLabels_.back().get()});
        legend.children.insert(legend.children.end(),
                               {Item(*colorBoxes_.back()), Item(*colorLabels_.back())});
    }
    controls.insert(controls.end(), {&chkFontBold_, &fmReport_});
    Layout areas = Row({});
    for (const FullReportArea& area : FullReportAreas()) {
        areaBoxes_.push_back(std::make_unique<CheckBox>(area.box, area.caption, Handler()));
        controls.push_back(areaBoxes_.back().get());
        areas.children.push_back(Item(*areaBoxes_.back()));
    }
    areas.children.insert(areas.children.end(), {Space(), Item(cmdReport_)});
    controls.insert(controls.end(), {&cmdReport_, &fmBackup_, &lstvBackup_, &chkDelete_,
                                     &cmdrestore_, &cmdDelete_});
    SetControls(std::move(controls));
    SetAccelerators(
        {{{Key::P, true}, "cmdReport_Click"}, {{Key::Delete}, "cmdDelete_Click", &lstvBackup_}});
    SetLayout(Column({Group(fmLegend_, Column({std::move(legend), Item(chkFontBold_)})),
                      Group(fmReport_, std::move(areas)),
                      Group(fmBackup_,
                            Column({Item(lstvBackup_, 1),
                                    Row({Item(chkDelete_), Space(),
                                         UniformRow({Item(cmdrestore_), Item(cmdDelete_)})})}),
                            1)}));
}

void frmOptions::Form_Load() {
    for (Button* button : {&cmdDelete_, &cmdrestore_, &cmdReport_}) SkinControl(*button, "button");
    cmdReport_.SetEnabled(!report_.Runs());
    chkDelete_.SetChecked(NumericPrefix(application_.settings.ReadIni("Main", "Delete", "0")) == 1);
    chkFontBold_.SetChecked(application_.appearance.FontBold == 1);
    for (std::size_t i = 0; i < std::size(Legend); ++i) {
        colorBoxes_[i]->SetBoxColor(application_.appearance.*Legend[i].color);
    }
    LoadBackupList();
}

// Rows that are on view keep their colours until their list is built anew.
void frmOptions::ColorBox_DblClick(std::size_t box) {
    const LegendEntry& entry = Legend[box];
    Color& color = application_.appearance.*entry.color;
    const std::optional<Color> chosen = application_.desktop.AskColor(*this, color);
    if (!chosen) return;
    color = *chosen;
    colorBoxes_[box]->SetBoxColor(color);
    application_.settings.WriteIni("Main", entry.key, std::to_string(color));
}

void frmOptions::chkFontBold_Click() {
    application_.settings.WriteIni("Main", "FontBold", Digit(chkFontBold_.Checked()));
    application_.appearance.FontBold = chkFontBold_.Checked() ? 1 : 0;
}

// This page may be gone when the report is done.
void frmOptions::cmdReport_Click() {
    std::vector<bool> chosen;
    for (const auto& box : areaBoxes_) chosen.push_back(box->Checked());
    report_.Run(*this, chosen);
}

void frmOptions::chkDelete_Click() {
    application_.settings.WriteIni("Main", "Delete", Digit(chkDelete_.Checked()));
}

}  // namespace velkarix
