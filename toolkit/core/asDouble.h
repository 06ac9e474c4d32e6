#pragma once

#include "LightweightString.h"

#include <string_view>

// The number at the start of the text (after blanks), whatever the locale; 0.0
// when the text starts with no number.
double asDouble(const LightweightString<char>& text);

// The same reading for other callers: true, and `value` set, when the text starts
// with a number.
bool numberAtStart(std::string_view text, double& value);
