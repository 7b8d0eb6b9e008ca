// A harmless toolbar.
#include "libraries/Component.h"
