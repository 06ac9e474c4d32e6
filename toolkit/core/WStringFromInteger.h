#pragma once

#include "LightweightString.h"

namespace Zn {

// The decimal text of a whole number, with a minus sign when negative.
LightweightString<wchar_t> WStringFromInteger(long value);

} // namespace Zn
