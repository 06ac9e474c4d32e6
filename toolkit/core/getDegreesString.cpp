#include "getDegreesString.h"

LightweightString<wchar_t> getDegreesString() { return L"\u00B0"; }
