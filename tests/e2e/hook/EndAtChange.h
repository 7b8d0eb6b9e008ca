// Ends the program under test in the middle of what it does, as a power cut would.
#pragma once

// From now on the changes of the registry and the writes to files are counted, in whatever library
// they are made; the process ends in place of the one of that number (from 1). True when all of
// them will be counted.
bool EndAtChange(int number);
