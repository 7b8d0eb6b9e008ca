#include "shell/frmviewInfo.h"

#include <optional>
#include <utility>

#include "shell/FilePaths.h"
#include "shell/Skin.h"
#include "shell/clsIcon.h"
#include "shell/clsProcess.h"

namespace velkarix {

namespace {

constexpr int LargeIcon = 32;  // pixels at 96 DPI
constexpr int BoxWidth = 56;   // characters

// What a line shows: a row of the file's facts, or what the caller passed.
constexpr int ThePath = -1;
constexpr int TheSize = -2;

struct LineEntry {
    const char* caption;
    const char* captionName;
    const char* fieldName;
    bool inBox;
    int shows;
};

// In the order of the dialog.
const LineEntry Lines[] = {
    {"Path:", "lblPath", "txtPath", true, ThePath},
    {"Size (KB):", "lblSize(0)", "lblSize(1)", false, TheSize},
    {"Created on: ", "lblCreatedOn(0)", "lblCreatedOn(1)", false, 12},
    {"Version:", "lblVersion(0)", "lblVersion(1)", false, 3},
    {"Product Name:", "lblProductName", "txtProductName", true, 0},
    {"Description:", "lblDescription", "txtDescription", true, 2},
    {"Internal Name:", "lblInternalName", "txtInternalName", true, 4},
    {"Original Name:", "lblOriginalName", "txtOriginalName", true, 5},
    {"Company Name:", "lblCompanyname", "txtCompanyname", true, 7},
    {"Comments:", "lblComments", "txtComments", true, 6},
    {"Legal Copyright:", "lblCopyright", "txtCopyright", true, 8},
    {"Legal Trademarks:", "lblTrademarks", "txtTrademarks", true, 9},
};

}  // namespace

frmviewInfo::frmviewInfo(Application& application)
    : Form("frmviewInfo", "View Information", FormKind::Dialog),
      application_(application),
      picIcon_("picIcon", "Icon of the file", "Software", LargeIcon),
      lblName_("lblName", ""),
      txtName_("txtName", "Name", {BoxWidth, 1, true}),
      cmdOk_("cmdOk", "OK", [this] { cmdOk_Click(); }) {
    MakeLines();
    std::vector<Control*> controls = {&picIcon_, &lblName_, &txtName_};
    Layout lines = Grid(2, {});
    for (const Line& line : lines_) {
        Control* field = line.box ? static_cast<Control*>(line.box.get()) : line.plain.get();
        controls.insert(controls.end(), {line.caption.get(), field});
        lines.children.insert(lines.children.end(), {Item(*line.caption), Item(*field, 1)});
    }
    controls.push_back(&cmdOk_);
    SetControls(std::move(controls));
    SetButtons(&cmdOk_, &cmdOk_);
    SetLayout(Column({Row({Item(picIcon_), Column({Item(lblName_), Item(txtName_)}, 1)}),
                      std::move(lines), Row({Space(), Item(cmdOk_)})}));
}

void frmviewInfo::MakeLines() {
    for (const LineEntry& entry : Lines) {
        Line line;
        line.caption = std::make_unique<Label>(entry.captionName, entry.caption);
        if (entry.inBox) {
            line.box = std::make_unique<TextBox>(entry.fieldName, entry.caption,
                                                 TextBox::Shape{BoxWidth, 1, true});
        } else {
            line.plain = std::make_unique<Label>(entry.fieldName, "");
        }
        lines_.push_back(std::move(line));
    }
}

void frmviewInfo::Line::Show(const std::string& text) {
    if (box) {
        box->SetValue(text);
    } else {
        plain->SetText(text);
    }
}

void frmviewInfo::SetItem(std::string name, std::string path, std::string size) {
    itemName_ = std::move(name);
    path_ = std::move(path);
    size_ = std::move(size);
}

void frmviewInfo::Form_Load() {
    SkinWindow(*this, "window");
    SkinControl(cmdOk_, "button");
    ShowIcon();
    lblName_.SetText(itemName_);
    txtName_.SetValue(itemName_);
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        if (Lines[i].shows == TheSize) lines_[i].Show(size_);
        if (Lines[i].shows == ThePath) lines_[i].Show(path_);
    }
    ShowFacts();
}

// Without an icon of its own the file keeps the stock picture that the box began with.
void frmviewInfo::ShowIcon() {
    if (!PathExists(application_.machine.files, path_)) return;
    clsIcon icons(application_.machine.shell);
    if (std::optional<Picture> icon = icons.GetIconFromFile(path_, 0, true)) {
        picIcon_.SetPicture(std::move(*icon));
    }
}

void frmviewInfo::ShowFacts() {
    if (!PathExists(application_.machine.files, path_)) return;
    clsProcess facts(application_.machine);
    facts.GetFileDescription(path_);
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        if (Lines[i].shows >= 0) lines_[i].Show(facts.getItem(Lines[i].shows));
    }
}

void ShowFileInformation(Application& application, const std::string& name, const std::string& path,
                         const std::string& size) {
    Form* owner = application.forms.Loaded("frmMain");
    if (owner == nullptr) return;
    application.forms.ShowModal("frmviewInfo", *owner, [&](Form& form) {
        static_cast<frmviewInfo&>(form).SetItem(name, path, size);
    });
}

}  // namespace velkarix
