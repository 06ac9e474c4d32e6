#pragma once

#include "LightweightString.h"

namespace Zn {

// The number in decimal, with a minus sign when negative.
LightweightString<char> StringFromInteger(long value);

} // namespace Zn
