// Answers the system's dialog that asks where to save, before it comes up: it is the system's, and
// where it loses memory or handles, as Wine's does, that says nothing of the program.
#pragma once

// True when it is done.
bool SkipSaveDialog();
