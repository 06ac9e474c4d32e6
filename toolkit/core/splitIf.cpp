#include "splitIf.h"

namespace Zn {

std::vector<LightweightString<wchar_t>> splitIf(const LightweightString<wchar_t>& text, wchar_t separator, int option) {
    return splitIf(
        text, [separator](wchar_t c) { return c == separator; }, option);
}

std::vector<LightweightString<char>> splitIf(const LightweightString<char>& text, char separator, int option) {
    return splitIf(
        text, [separator](char c) { return c == separator; }, option);
}

} // namespace Zn
