// The fonts of all forms: the one that the system uses for its dialogs, and what derives from it.
#pragma once

#include <string>

#include "forms/Layout.h"
#include "forms/win32/Dpi.h"
#include "forms/win32/Handles.h"

namespace velkarix {

class Fonts {
  public:
    explicit Fonts(const Dpi& dpi) : dpi_(dpi) { Reload(); }
    // Asks the system anew. True when its font is another one: windows that show the former one
    // are to be given theirs at once.
    bool Reload();
    HFONT Dialog() const { return dialog_.get(); }
    HFONT Bold() const { return bold_.get(); }
    HFONT Title() const { return title_.get(); }
    HFONT Link() const { return link_.get(); }

  private:
    const Dpi& dpi_;
    LOGFONTA system_{};  // what all are made from
    OwnedFont dialog_;
    OwnedFont bold_;
    OwnedFont title_;
    OwnedFont link_;
};

// The pixels that a caption takes, "&" being the mark of its access key; it may have several lines.
Size CaptionExtent(HFONT font, const std::string& caption);
// The same for text in which "&" is a letter as any other.
Size TextExtent(HFONT font, const std::string& text);
// A text that is broken between its words into lines of at most `width` pixels.
Size ParagraphExtent(HFONT font, const std::string& text, int width);
// The mean width of a letter, as the system counts dialog units.
int AverageCharacterWidth(HFONT font);

}  // namespace velkarix
