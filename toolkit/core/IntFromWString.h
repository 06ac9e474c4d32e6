#pragma once

#include "LightweightString.h"

namespace Zn {

// The whole number at the start of the text, read as strtol reads base 10 (leading
// blanks, an optional sign, digits), held to the range of int; 0 when the text
// starts with no number.
int IntFromWString(const LightweightString<wchar_t>& text);

} // namespace Zn
