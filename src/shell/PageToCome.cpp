#include "shell/PageToCome.h"

namespace velkarix {

PageToCome::PageToCome(const std::string& name, const std::string& what)
    : Form(name, what, FormKind::Page),
      lblToCome_("lblToCome", what +
                                  ": this page is not built yet. It comes with a later version "
                                  "of the program.") {
    SetControls({&lblToCome_});
    SetLayout(Column({Item(lblToCome_), Space()}));
}

}  // namespace velkarix
