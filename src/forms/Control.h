// What all controls of a form have in common. A control here is a model: it knows its state and
// its handlers, not how it is shown. Whoever shows it attaches a view and asks the model.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/Keys.h"

namespace velkarix {

class ControlVisitor;

using Handler = std::function<void()>;

// What of a control has changed.
enum class Aspect {
    Text,
    Enabled,
    Visible,       // by its own will or by that of what it stands in
    Look,          // picture, pressed state, skin element
    Value,         // the chosen option, the text of a box
    Rows,          // a list's rows came, went or changed their order
    RowState,      // texts, checks, colours or images of rows
    Selection,     // the selected row
    ColumnWidths,  // the columns are to be fitted to header and content
    Now,           // nothing: what has changed before is to be on the screen at once
};

// The other side of a control: told of changes by the program, never of those by the user.
class ControlView {
  public:
    virtual ~ControlView() = default;
    virtual void Changed(Aspect aspect) = 0;
};

class Control {
  public:
    // `name` is the product's name of the control ("cmdKill", "optFilter(0)"); `text` is its
    // caption, with "&" before its access key. A control that shows a picture instead of its
    // caption still has a text, for screen readers.
    Control(std::string name, std::string text);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const std::string& Name() const { return name_; }
    const std::string& Text() const { return text_; }
    void SetText(std::string text);
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    // Whether the control and all that it stands in are visible.
    bool Shown() const { return visible_ && (around_ == nullptr || around_->Shown()); }
    // The control stands in `around`, which hides it when it is hidden itself; null: in the form.
    // Said once, by the form's layout.
    void StandIn(Control* around);
    Control* Around() const { return around_; }
    // The element of the program's own drawing that gives the control its look; empty is the
    // system's look. Nothing but the drawing depends on it.
    const std::string& SkinElement() const { return skinElement_; }
    void SetSkinElement(std::string element);
    // A few words that come up where the mouse rests on the control; empty is none. Said once,
    // before the form is shown.
    const std::string& ToolTip() const { return toolTip_; }
    void SetToolTip(std::string words) { toolTip_ = std::move(words); }

    // The user's gesture `event` ("Click", "DblClick"). False when the control has no such event
    // or is disabled.
    bool Raise(std::string_view event) { return enabled_ && Fire(event); }
    // Runs the handler of `event` by the program's own will, whether the control is enabled or
    // not. False when the control has no such event.
    virtual bool Fire(std::string_view event);
    virtual void Accept(ControlVisitor& visitor) = 0;

    // Whether the key means something to the control itself while it has the focus.
    virtual bool Uses(const KeyStroke&) const { return false; }
    // Whether the control has a place in its form's layout now.
    virtual bool TakesRoom() const { return true; }
    // Has what was changed drawn before it comes back, although no events are served.
    void ShowNow() const { Notify(Aspect::Now); }

    // Null takes the view away.
    void AttachView(ControlView* view) { view_ = view; }

  protected:
    virtual void Notify(Aspect aspect) const;

  private:
    void NotifyVisible() const;

    std::string name_;
    std::string text_;
    std::string skinElement_;
    std::string toolTip_;
    bool enabled_ = true;
    bool visible_ = true;
    Control* around_ = nullptr;
    std::vector<Control*> inside_;
    ControlView* view_ = nullptr;
};

}  // namespace velkarix
