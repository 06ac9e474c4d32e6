#pragma once

#include "LightweightString.h"

// The text of a number in six significant digits, as "%g" gives it but whatever
// the locale: enough that a colour component of k/255 read back and scaled by
// 255 rounds to k again.
LightweightString<char> StringFromFloat(double value);
