// The hand-over to the update program, which lies beside this one.
#pragma once

#include <string>

namespace velkarix {

class Application;
class Settings;

// The path of the INI file that comes with the definitions: their version, and when they were
// updated.
std::string DatabaseFile(Settings& settings);

// Starts the update program when the definitions are more than 15 days old. Without a date of the
// last update nothing happens.
void CheckForUpdate(Application& application);

// Tells the update program what it updates (version.ini) and starts it, without waiting for it.
// Silent: with the switch that makes it ask nothing, and without a word when it isn't there.
void LaunchUpdater(Application& application, bool silent);

}  // namespace velkarix
