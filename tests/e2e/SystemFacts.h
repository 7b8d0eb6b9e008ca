// The facts of the machine as the program itself finds them, asked in this program.
#pragma once

#include "shell/clsSysInfo.h"

namespace velkarix::e2e {

SystemDescription AskSystemFacts();

}  // namespace velkarix::e2e
