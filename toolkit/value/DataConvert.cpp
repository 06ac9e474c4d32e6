#include "DataConvert.h"

#include "core/Utf8.h"

#include <charconv>
#include <cstdlib>
#include <cwctype>
#include <string>
#include <vector>

namespace {

WString fromAscii(const char* s) { return fromUTF8(s); }

// The shortest text that reads back as the same number, independent of the locale.
template <class F>
WString shortest(F f) {
    if (std::isnan(f)) return fromAscii("nan");
    char buf[48];
    auto r = std::to_chars(buf, buf + sizeof buf - 1, f);
    *r.ptr = '\0';
    return fromAscii(buf);
}

// The text without white space at either end, lower-cased, as a narrow string.
std::string trimmedLower(const WString& s) {
    std::string out;
    for (std::size_t i = 0; i < s.size(); ++i) {
        wchar_t c = s[i];
        out.push_back(c < 128 ? static_cast<char>(std::towlower(static_cast<wint_t>(c))) : '?');
    }
    auto first = out.find_first_not_of(" \t\r\n");
    if (first == std::string::npos) return {};
    auto last = out.find_last_not_of(" \t\r\n");
    return out.substr(first, last - first + 1);
}

float unit(double v) {
    if (std::isnan(v)) return 0.0f;
    return static_cast<float>(std::clamp(v, 0.0, 1.0));
}

bool hexColour(const std::string& t, NormalisedRGB& out) {
    if ((t.size() != 7 && t.size() != 9) || t[0] != '#') return false;
    if (t.find_first_not_of("0123456789abcdef", 1) != std::string::npos) return false;
    auto byte = [&](std::size_t i) { return static_cast<float>(std::stoi(t.substr(i, 2), nullptr, 16)) / 255.0f; };
    out = NormalisedRGB(byte(1), byte(3), byte(5), t.size() == 9 ? byte(7) : 1.0f);
    return true;
}

} // namespace

WString DataConvert::toText(bool b) { return fromAscii(b ? "true" : "false"); }

WString DataConvert::toText(int i) { return fromAscii(std::to_string(i).c_str()); }

WString DataConvert::toText(unsigned int u) { return fromAscii(std::to_string(u).c_str()); }

WString DataConvert::toText(double d) { return shortest(d); }

WString DataConvert::toText(const NormalisedRGB& c) {
    WString out;
    for (float f : {c.r, c.g, c.b, c.a}) {
        if (!out.empty()) out.append(1, L' ');
        out += shortest(f);
    }
    return out;
}

bool DataConvert::boolFromText(const WString& s) {
    std::string t = trimmedLower(s);
    if (t == "true" || t == "yes" || t == "on") return true;
    double d = doubleFromText(s);
    return d != 0.0 && !std::isnan(d);
}

long long DataConvert::integerFromText(const WString& s) {
    std::string t = trimmedLower(s);
    const char* first = t.c_str() + (t.size() > 1 && t[0] == '+' ? 1 : 0);
    long long v = 0;
    auto r = std::from_chars(first, t.c_str() + t.size(), v);
    if (r.ec == std::errc() && r.ptr == t.c_str() + t.size()) return v;
    // "2.9" or "1e3" in an integer box: the number, towards zero.
    return truncate<long long>(doubleFromText(s));
}

double DataConvert::doubleFromText(const WString& s) {
    std::string t = trimmedLower(s);
    const char* first = t.c_str() + (t.size() > 1 && t[0] == '+' ? 1 : 0);
    double d = 0.0;
    // Leading text that reads as a number counts ("12px" is 12); what follows is
    // dropped. Out of range, the C library's answer (infinity or zero) stands.
    auto r = std::from_chars(first, t.c_str() + t.size(), d);
    if (r.ec == std::errc::result_out_of_range) return std::strtod(first, nullptr);
    return r.ec == std::errc() ? d : 0.0;
}

NormalisedRGB DataConvert::colourFromText(const WString& s) {
    std::string t = trimmedLower(s);
    NormalisedRGB c;
    if (hexColour(t, c)) return c;
    for (char& ch : t)
        if (ch == ',') ch = ' ';
    std::vector<double> parts;
    const char* p = t.c_str();
    const char* end = p + t.size();
    while (parts.size() < 4) {
        while (p < end && *p == ' ') ++p;
        double d = 0.0;
        auto r = std::from_chars(p, end, d);
        if (r.ec != std::errc()) break;
        parts.push_back(d);
        p = r.ptr;
    }
    if (parts.size() < 3) return NormalisedRGB();
    return NormalisedRGB(unit(parts[0]), unit(parts[1]), unit(parts[2]), parts.size() > 3 ? unit(parts[3]) : 1.0f);
}
