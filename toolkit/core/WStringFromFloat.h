#pragma once

#include "LightweightString.h"

namespace Zn {

// The decimal text of a number with `decimals` digits after the point (0 to 15;
// others are held to that), rounded to nearest, whatever the locale. With
// `trimZeros` the zeros at the end of the fraction go, and the point with them
// when nothing is left behind it. Infinities and NaN give "inf", "-inf", "nan".
LightweightString<wchar_t> WStringFromFloat(double value, char decimals, bool trimZeros);

} // namespace Zn
