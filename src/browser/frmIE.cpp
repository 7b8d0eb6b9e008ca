#include "browser/frmIE.h"

#include <iterator>
#include <utility>

#include "shell/Skin.h"

namespace velkarix {

namespace {

struct ViewEntry {
    const char* button;
    const char* words;  // of the button, for a screen reader
    const char* skinElement;
    const char* caption;      // of the frame
    const char* focusTarget;  // the list that gets the focus when the view is entered; null: none
};

// By the index of the view.
constexpr ViewEntry Views[] = {
    {"cmdBHO", "BHOs", "BHO", "Internext Explorer Browser Helper Objects (BHO) List", "lstvBHO"},
    {"cmdToolbar", "Toolbars", "Toolbar", "Internet Explorer Toolbar List", "lstvToolbar"},
    {"cmdButton", "Buttons", "But", "Internet Explorer Toolbar Buttons List", "lstvButtons"},
    {"cmdMenu", "Context Menu", "Context", "Internet Explorer Context Menu Item List", "lstvMenu"},
    {"cmdURLs", "URLs", "URLs", "Internet Explorer URLs", nullptr},
    {"cmdProtocol", "Protocols", "Protocol", "Explorer Protocols List", "lstvProtocol"},
    {"cmdDomain", "Domains", "Domain", "Internext Explorer Domains List", "lstvDomains"},
    {"cmdAdvance", "Advanced", "Advance", "Internext Explorer Advance Settings", nullptr},
};
constexpr std::size_t URLs = 4;
constexpr std::size_t Advanced = 7;
constexpr std::size_t StripOrder[] = {0, 1, 2, 3, 5, 6, 4, 7};

constexpr const char* AdvancedCaptions[] = {"URL Search Hooks", "Proxy Settings",
                                            "Protocol Defaults", "Security Zones"};

// The one command button with the system's own look.
constexpr const char* PlainButton = "cmdProxyApply";

// The element of an indexed group of controls.
std::string ElementName(const char* group, std::size_t index) {
    return group + ("(" + std::to_string(index) + ")");
}

// The view inside of what frames it.
Layout PutIn(Control& frame, BrowserView& view, std::vector<Control*>& controls) {
    for (Control* control : view.Controls()) controls.push_back(control);
    return Group(frame, view.ViewLayout());
}

}  // namespace

frmIE::frmIE(Application& application)
    : Form("frmIE", "Internet Explorer", FormKind::Page),
      application_(application),
      picButtonHolder_("picButtonHolder", "Views", Panel::Look::Strip),
      tbMain_("tbMain", "Advanced settings",
              {std::begin(AdvancedCaptions), std::end(AdvancedCaptions)},
              [this] { tbMain_Click(); }),
      bhos_(application, *this),
      toolbars_(application, *this),
      toolbarButtons_(application, *this),
      menus_(application, *this),
      urls_(application),
      protocols_(application, *this),
      domains_(application, *this),
      hooks_(application, *this),
      proxy_(application),
      protocolDefaults_(application),
      securityZones_(application) {
    MakeControls();
}

void frmIE::MakeControls() {
    std::vector<Control*> controls = {&picButtonHolder_};
    Layout strip = MakeStrip(controls);
    Layout views = MakeViews(controls);
    SetControls(std::move(controls));
    SetLayout(Row({Group(picButtonHolder_, std::move(strip)), std::move(views)}));
    std::vector<Accelerator> keys;
    const ItemList* const lists[] = {&bhos_,      &toolbars_, &toolbarButtons_, &menus_,
                                     &protocols_, &domains_,  &hooks_};
    for (const ItemList* list : lists) {
        for (Accelerator& key : list->Keys()) keys.push_back(std::move(key));
    }
    SetAccelerators(std::move(keys));
}

Layout frmIE::MakeStrip(std::vector<Control*>& controls) {
    for (std::size_t i = 0; i < std::size(Views); ++i) {
        viewButtons_.push_back(std::make_unique<Button>(
            Views[i].button, Views[i].words, [this, i] { ViewButton_Click(i); },
            Button::Look::SmallPicture));
    }
    viewButtons_.front()->SetPressed(true);
    Layout strip = UniformColumn({});
    for (const std::size_t view : StripOrder) {
        controls.push_back(viewButtons_[view].get());
        strip.children.push_back(Item(*viewButtons_[view]));
    }
    return strip;
}

Layout frmIE::MakeViews(std::vector<Control*>& controls) {
    BrowserView* const views[] = {&bhos_, &toolbars_,  &toolbarButtons_, &menus_,
                                  &urls_, &protocols_, &domains_};
    BrowserView* const subViews[] = {&hooks_, &proxy_, &protocolDefaults_, &securityZones_};
    Layout frames = Stack({}, 1);
    for (std::size_t i = 0; i < std::size(Views); ++i) {
        fmIE_.push_back(std::make_unique<Frame>(ElementName("fmIE", i), Views[i].caption));
        fmIE_.back()->SetVisible(i == 0);
        controls.push_back(fmIE_.back().get());
        if (i != Advanced) frames.children.push_back(PutIn(*fmIE_.back(), *views[i], controls));
    }
    controls.push_back(&tbMain_);
    Layout panels = Stack({}, 1);
    for (std::size_t i = 0; i < std::size(subViews); ++i) {
        fmIEAdvanced_.push_back(std::make_unique<Panel>(ElementName("fmIEAdvanced", i),
                                                        AdvancedCaptions[i], Panel::Look::Plain));
        fmIEAdvanced_.back()->SetVisible(i == 0);
        controls.push_back(fmIEAdvanced_.back().get());
        panels.children.push_back(PutIn(*fmIEAdvanced_.back(), *subViews[i], controls));
    }
    frames.children.push_back(Group(*fmIE_[Advanced], Group(tbMain_, std::move(panels), 1)));
    return frames;
}

void frmIE::Form_Load() {
    ApplySkin();
    const Progress::Work work(application_.progress, Caption());
    LoadBHOs();
    LoadToolbars();
    LoadButtons();
    LoadMenus();
    LoadProtocols();
    LoadDomains();
    LoadProxy();
    LoadHooks();
    LoadProtocolDefaults();
    loadSecurityZone(0);
}

void frmIE::ApplySkin() {
    SkinWindow(*this, "free");
    for (Control* control : Controls()) {
        if (control->Name() == PlainButton) continue;
        if (dynamic_cast<Button*>(control) != nullptr) SkinControl(*control, "button");
        if (dynamic_cast<TabStrip*>(control) != nullptr) SkinControl(*control, "Tab");
    }
    for (std::size_t i = 0; i < std::size(Views); ++i) {
        SkinControl(*viewButtons_[i], Views[i].skinElement);
        SkinControl(*fmIE_[i], "Frame");
    }
    SkinControl(*fmIEAdvanced_.back(), "free");
}

// A page that is loaded again shows its first view; so does the index of this one.
void frmIE::Form_Unload() {
    SwitchView(0);
}

bool frmIE::SwitchView(std::int16_t index) {
    if (index == currentView_) return false;
    const auto show = [this](std::int16_t view, bool shown) {
        fmIE_.at(static_cast<std::size_t>(view))->SetVisible(shown);
        viewButtons_.at(static_cast<std::size_t>(view))->SetPressed(shown);
    };
    show(currentView_, false);
    show(index, true);
    currentView_ = index;
    return true;
}

bool frmIE::SwitchAdvancedView(std::int16_t index) {
    if (index == currentAdvancedView_) return false;
    fmIEAdvanced_.at(static_cast<std::size_t>(currentAdvancedView_))->SetVisible(false);
    fmIEAdvanced_.at(static_cast<std::size_t>(index))->SetVisible(true);
    currentAdvancedView_ = index;
    return true;
}

// A list isn't filled again: it shows what its last load found. The addresses alone are read
// whenever they come into view.
void frmIE::ViewButton_Click(std::size_t view) {
    if (!SwitchView(static_cast<std::int16_t>(view))) return;
    if (view == URLs) urls_.Enter();
    if (const char* target = Views[view].focusTarget) application_.desktop.Focus(*Find(target));
}

void frmIE::tbMain_Click() {
    SwitchAdvancedView(static_cast<std::int16_t>(tbMain_.Selected() - 1));
}

}  // namespace velkarix
