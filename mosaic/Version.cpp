#include "Version.h"

const char* mosaicDllVersionStr() { return MOSAIC_VERSION; }
