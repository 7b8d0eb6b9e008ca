// A harmless component that the sample definition lists know by its digest.
#include "libraries/Component.h"
