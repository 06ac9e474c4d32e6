#pragma once

#include "LightweightString.h"

namespace Zn {

// The number in decimal, with a minus sign when negative.
LightweightString<wchar_t> WStringFromInteger(long value);

} // namespace Zn
