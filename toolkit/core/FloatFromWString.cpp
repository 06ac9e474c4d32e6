#include "FloatFromWString.h"

#include "asDouble.h"

#include <string>

namespace Zn {

double FloatFromWString(const LightweightString<wchar_t>& text, double fallback) {
    std::string narrow;
    narrow.reserve(text.size());
    // Only ASCII can be part of a number; anything else ends it.
    for (std::size_t i = 0; i < text.size() && text[i] < 128; ++i) narrow += static_cast<char>(text[i]);
    double value = 0.0;
    return numberAtStart(narrow, value) ? value : fallback;
}

} // namespace Zn
