#include "IPAddress.h"

#include <cwctype>
#include <string_view>

namespace {

// Reads up to `maxDigits` digits at `pos` as a number no larger than `max`.
bool readNumber(std::wstring_view text, std::size_t& pos, std::size_t maxDigits, unsigned long max, unsigned long& value) {
    std::size_t start = pos;
    value = 0;
    while (pos < text.size() && text[pos] >= L'0' && text[pos] <= L'9') {
        if (pos - start == maxDigits) return false;
        value = value * 10 + static_cast<unsigned long>(text[pos] - L'0');
        ++pos;
    }
    return pos > start && value <= max;
}

std::wstring_view trimmed(std::wstring_view v) {
    while (!v.empty() && std::iswspace(static_cast<wint_t>(v.front()))) v.remove_prefix(1);
    while (!v.empty() && std::iswspace(static_cast<wint_t>(v.back()))) v.remove_suffix(1);
    return v;
}

} // namespace

bool IPAddress::fromString(const LightweightString<wchar_t>& text) {
    constexpr std::size_t kOctetDigits = 3, kPortDigits = 5;
    constexpr unsigned long kOctetMax = 255, kPortMax = 65535;
    const std::wstring_view v = trimmed(text.view());
    IPAddress parsed;
    std::size_t pos = 0;
    for (std::size_t i = 0; i < parsed.octets.size(); ++i) {
        if (i > 0 && (pos >= v.size() || v[pos++] != L'.')) return false;
        unsigned long octet = 0;
        if (!readNumber(v, pos, kOctetDigits, kOctetMax, octet)) return false;
        parsed.octets[i] = static_cast<std::uint8_t>(octet);
    }
    if (pos < v.size()) {
        if (v[pos++] != L':') return false;
        unsigned long port = 0;
        if (pos < v.size() && !readNumber(v, pos, kPortDigits, kPortMax, port)) return false;
        if (pos != v.size()) return false;
        parsed.port = static_cast<std::uint16_t>(port);
    }
    *this = parsed;
    return true;
}
