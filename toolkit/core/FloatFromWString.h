#pragma once

#include "LightweightString.h"

namespace Zn {

// The number at the start of the text (after blanks), whatever the locale:
// "12.5 %" gives 12.5. Text that starts with no number gives `fallback`.
double FloatFromWString(const LightweightString<wchar_t>& text, double fallback);

} // namespace Zn
