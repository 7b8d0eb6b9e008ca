// A harmless browser helper object.
#include "libraries/Component.h"
