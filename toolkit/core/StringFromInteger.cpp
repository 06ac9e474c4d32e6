#include "StringFromInteger.h"

#include <string>

LightweightString<char> Zn::StringFromInteger(long value) { return LightweightString<char>(std::to_string(value)); }
