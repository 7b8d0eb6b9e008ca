// A harmless protocol filter: a file without icon and version resource.
#include "libraries/Component.h"
