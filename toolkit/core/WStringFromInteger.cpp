#include "WStringFromInteger.h"

#include <string>

LightweightString<wchar_t> Zn::WStringFromInteger(long value) { return LightweightString<wchar_t>(std::to_wstring(value)); }
