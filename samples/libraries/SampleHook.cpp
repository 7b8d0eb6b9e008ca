// A harmless URL search hook.
#include "libraries/Component.h"
