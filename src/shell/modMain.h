// The program's start.
#pragma once

namespace velkarix {

class Application;

// Runs the program until its main window closes; or, where an instance of it runs already, brings
// that one to the front and comes back. The forms must be defined in `application`.
void Main(Application& application);

}  // namespace velkarix
