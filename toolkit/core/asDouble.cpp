#include "asDouble.h"

#include <charconv>
#include <cmath>

bool numberAtStart(std::string_view text, double& value) {
    std::size_t i = text.find_first_not_of(" \t\r\n");
    if (i == std::string_view::npos) return false;
    // from_chars takes no plus sign.
    if (text[i] == '+') ++i;
    auto r = std::from_chars(text.data() + i, text.data() + text.size(), value);
    return r.ec == std::errc() && std::isfinite(value);
}

double asDouble(const LightweightString<char>& text) {
    double value = 0.0;
    return numberAtStart(text.view(), value) ? value : 0.0;
}
