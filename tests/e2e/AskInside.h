// Asks the program under test what only code inside it can tell, through the hook library.
#pragma once

#include <string>

#include "Window.h"
#include "hook/Inside.h"

namespace velkarix::e2e {

// Puts a question of hook/Inside.h to a window of the program. Empty when there is no answer.
std::string AskInside(const Window& window, const char* question, int number = 0);

}  // namespace velkarix::e2e
