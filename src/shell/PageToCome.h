// Stands in the place of a page that isn't built yet, and says so.
#pragma once

#include <string>

#include "forms/Controls.h"
#include "forms/Form.h"

namespace velkarix {

class PageToCome : public Form {
  public:
    // `name` is the page's form name, `what` what the page will show, as the user calls it.
    PageToCome(const std::string& name, const std::string& what);

  private:
    Label lblToCome_;
};

}  // namespace velkarix
