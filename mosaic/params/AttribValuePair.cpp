#include "AttribValuePair.h"

#include <string_view>

namespace Zn {

AttribValuePair::AttribValuePair(const LightweightString<char>& text, char separator) {
    std::string_view v = text.view();
    auto at = v.find(separator);
    if (at == std::string_view::npos) return;
    name_ = LightweightString<char>(v.substr(0, at));
    value_ = LightweightString<char>(v.substr(at + 1));
    valid_ = true;
}

LightweightVector<AttribValuePair> AttribValuePair::vecFromString(const LightweightString<char>& text, char separator, char listSeparator) {
    LightweightVector<AttribValuePair> out;
    std::string_view rest = text.view();
    while (!rest.empty()) {
        auto end = rest.find(listSeparator);
        AttribValuePair pair(LightweightString<char>(rest.substr(0, end)), separator);
        if (pair.valid()) out.push_back(pair);
        if (end == std::string_view::npos) break;
        rest.remove_prefix(end + 1);
    }
    return out;
}

} // namespace Zn
