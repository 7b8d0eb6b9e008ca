#include "forms/win32/Metrics.h"

#include <algorithm>

#include "forms/ComboBox.h"
#include "forms/ListView.h"
#include "forms/TabStrip.h"
#include "forms/TreeView.h"
#include "forms/win32/Screen.h"

namespace velkarix {

namespace {

// The mean letter of the font that the system has for dialogs as it comes, at 96 DPI.
constexpr int UsualLetter = 6;
// A status's least width, in average letters; it shows more where there is room.
constexpr int StatusCharacters = 24;

}  // namespace

void Metrics::Reload() {
    letter_ = AverageCharacterWidth(fonts_.Dialog());
    const RECT area = WorkArea();
    const auto hasRoom = [&](const Room& room) {
        return Width(area) >= InLetters(room.width) && Height(area) >= InLetters(room.height);
    };
    spacing_ = hasRoom(RoomForRoomy) ? &Roomy : hasRoom(RoomForTight) ? &Tight : &Tightest;
    natives_.reset();
}

int Metrics::InLetters(int at96) const {
    return std::max(dpi_.Pixels(at96), MulDiv(at96, letter_, UsualLetter));
}

int Metrics::PictureSize(Button::Look look) const {
    const bool small = look == Button::Look::SmallPicture;
    return dpi_.Pixels(small ? spacing_->viewPicture : spacing_->pagePicture);
}

// As the system has it, but the names are to have their room.
Size Metrics::IconSpacing() const {
    return {std::max(GetSystemMetrics(SM_CXICONSPACING), InLetters(75)),
            std::max(GetSystemMetrics(SM_CYICONSPACING), InLetters(75))};
}

Size Metrics::PreferredSize(Control& control) {
    size_ = {};
    control.Accept(*this);
    return size_;
}

Insets Metrics::GroupInsets(Control& group) {
    insets_ = {};
    group.Accept(*this);
    return insets_;
}

Insets Metrics::FormMargins(FormKind kind) {
    const int margin = dpi_.Pixels(spacing_->margin);
    // The layout of the main form keeps a gap at the left of and above its page already.
    const int besideGap = margin - Gap();
    if (kind == FormKind::Page) return {besideGap, besideGap, margin, margin};
    if (kind == FormKind::Dialog) return {margin, margin, margin, margin};
    return {};
}

const NativeMeasures& Metrics::Natives() {
    if (!natives_) natives_ = MeasureNatives(fonts_.Dialog());
    return *natives_;
}

Size Metrics::PictureButton(const Button& control) const {
    const Size caption = CaptionExtent(fonts_.Dialog(), control.Text());
    const int picture = PictureSize(control.ButtonLook());
    return {std::max(picture, caption.width) + dpi_.Pixels(spacing_->pictureSides),
            picture + caption.height + 3 * ButtonPadding()};
}

void Metrics::Visit(Button& control) {
    if (control.ButtonLook() != Button::Look::Command) {
        size_ = PictureButton(control);
        return;
    }
    const Size caption = CaptionExtent(fonts_.Dialog(), control.Text());
    size_ = {std::max(dpi_.Pixels(spacing_->buttonWidth),
                      caption.width + dpi_.Pixels(spacing_->buttonSides)),
             std::max(dpi_.Pixels(23), caption.height + dpi_.Pixels(8))};
}

// A caption with a mark to the left of it.
Size Metrics::MarkedCaption(const Control& control) const {
    const Size caption = CaptionExtent(fonts_.Dialog(), control.Text());
    return {caption.width + dpi_.Pixels(24), std::max(dpi_.Pixels(17), caption.height)};
}

void Metrics::Visit(CheckBox& control) {
    size_ = MarkedCaption(control);
}

void Metrics::Visit(ColorBox&) {
    size_ = {dpi_.Pixels(48), dpi_.Pixels(20)};
}

void Metrics::Visit(ComboBox& control) {
    int widest = 0;
    for (const std::string& entry : control.Entries()) {
        widest = std::max(widest, TextExtent(fonts_.Dialog(), entry).width);
    }
    // Edges, the room that the native box keeps around its text, and the arrow.
    size_ = {widest + GetSystemMetrics(SM_CXVSCROLL) + dpi_.Pixels(12), Natives().boxHeight};
}

void Metrics::Visit(Frame& control) {
    const int edge = dpi_.Pixels(spacing_->frameEdge);
    const Size caption = CaptionExtent(fonts_.Dialog(), control.Text());
    insets_ = {edge, caption.height + dpi_.Pixels(6), edge, edge};
    // The native frame begins its caption a little to the right.
    size_ = {caption.width + dpi_.Pixels(16), caption.height};
}

void Metrics::Visit(Panel& control) {
    const int edge = dpi_.Pixels(6);
    const int side = dpi_.Pixels(12);
    if (control.PanelLook() == Panel::Look::Banner) {
        insets_ = {side, edge, side, edge + BannerLine()};
    } else if (control.PanelLook() == Panel::Look::Strip) {
        insets_ = {0, edge, 0, edge};
    } else if (control.PanelLook() == Panel::Look::Drawer) {
        // In line with the page.
        const Insets page = FormMargins(FormKind::Page);
        insets_ = {page.left, 0, page.right, 0};
    }
}

void Metrics::Visit(Label& control) {
    if (control.LabelLook() == Label::Look::Paragraph) {
        // As high as it is there, it has room for all of its lines in any wider place.
        const int width = spacing_->paragraph * letter_;
        size_ = ParagraphExtent(fonts_.Dialog(), control.Text(), width);
        return;
    }
    if (control.LabelLook() == Label::Look::Status) {
        size_ = {StatusCharacters * AverageCharacterWidth(fonts_.Dialog()),
                 TextExtent(fonts_.Dialog(), {}).height};
        return;
    }
    const bool title = control.LabelLook() == Label::Look::Title;
    size_ = TextExtent(title ? fonts_.Title() : fonts_.Dialog(), control.Text());
}

void Metrics::Visit(LinkLabel& control) {
    const Size caption = CaptionExtent(fonts_.Link(), control.Text());
    // Room for the focus rectangle.
    size_ = {caption.width + dpi_.Pixels(6), caption.height + dpi_.Pixels(4)};
}

void Metrics::Visit(ListView&) {
    size_ = {dpi_.Pixels(200), dpi_.Pixels(100)};
}

void Metrics::Visit(OptionButton& control) {
    size_ = MarkedCaption(control);
}

// The page on view has what room is left.
void Metrics::Visit(PageHost&) {}

void Metrics::Visit(PictureBox& control) {
    size_ = {dpi_.Pixels(control.PictureSize()), dpi_.Pixels(control.PictureSize())};
}

void Metrics::Visit(ProgressBar&) {
    size_ = {dpi_.Pixels(100), dpi_.Pixels(14)};
}

void Metrics::Visit(TabStrip&) {
    const Insets& around = Natives().aroundTabPage;
    const int edge = dpi_.Pixels(spacing_->tabEdge);
    insets_ = {around.left + edge, around.top + edge, around.right + edge, around.bottom + edge};
}

void Metrics::Visit(TextBox& control) {
    const TextBox::Shape& shape = control.BoxShape();
    const int line = CaptionExtent(fonts_.Dialog(), {}).height;
    // The text stands at the upper edge, so that more room would be seen below it alone.
    size_ = {shape.widthInCharacters * AverageCharacterWidth(fonts_.Dialog()) + dpi_.Pixels(12),
             shape.lines * line + 2 * GetSystemMetrics(SM_CYEDGE) + 2 + dpi_.Pixels(2)};
}

// As if all nodes were open.
void Metrics::Visit(TreeView& control) {
    int widest = 0;
    for (const auto& node : control.Nodes()) {
        int indents = 1;  // the lines to the roots take one
        for (const TreeNode* above = node->parent; above != nullptr; above = above->parent) {
            ++indents;
        }
        widest = std::max(widest,
                          indents * TreeIndent() + TextExtent(fonts_.Dialog(), node->text).width);
    }
    // Edges, and the room that the native tree keeps around a text.
    size_ = {widest + SmallImage() + dpi_.Pixels(12) + 2 * GetSystemMetrics(SM_CXEDGE),
             dpi_.Pixels(100)};
}

}  // namespace velkarix
