// What a harmless button of the browser runs.
#include "libraries/Component.h"
