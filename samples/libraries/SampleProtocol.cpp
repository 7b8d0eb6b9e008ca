// A harmless protocol handler.
#include "libraries/Component.h"
