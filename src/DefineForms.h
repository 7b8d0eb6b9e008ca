// Which forms the program has. The only place that knows all pages.
#pragma once

namespace velkarix {

class Application;

// Defines every form of the program in `application`, by its name.
void DefineForms(Application& application);

}  // namespace velkarix
