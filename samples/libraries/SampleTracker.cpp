// A harmless component that the sample definition lists know by its class.
#include "libraries/Component.h"
