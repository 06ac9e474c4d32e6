#include "WStringFromInteger.h"

#include <charconv>

namespace Zn {

LightweightString<wchar_t> WStringFromInteger(long value) {
    char buf[24];
    auto r = std::to_chars(buf, buf + sizeof buf, value);
    return LightweightString<wchar_t>(std::wstring(buf, r.ptr));
}

} // namespace Zn
