#include "DataConvert.h"

#include "core/Utf8.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cwctype>
#include <string>
#include <vector>

namespace {

WString fromAscii(const char* s) { return fromUTF8(s); }

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

WString DataConvert::toText(double d) {
    if (std::isnan(d)) return fromAscii("nan");
    if (std::isinf(d)) return fromAscii(d < 0 ? "-inf" : "inf");
    // The shortest text that reads back as the same number.
    char buf[40];
    for (int precision = 6; precision <= 17; ++precision) {
        std::snprintf(buf, sizeof buf, "%.*g", precision, d);
        if (std::strtod(buf, nullptr) == d) break;
    }
    return fromAscii(buf);
}

WString DataConvert::toText(const NormalisedRGB& c) {
    WString out;
    for (float f : {c.r, c.g, c.b, c.a}) {
        if (!out.empty()) out.append(1, L' ');
        out += toText(static_cast<double>(f));
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
    char* end = nullptr;
    errno = 0;
    long long v = std::strtoll(t.c_str(), &end, 10);
    if (end && *end == '\0' && errno == 0) return v;
    // "2.9" or "1e3" in an integer box: the number, towards zero.
    return truncate<long long>(doubleFromText(s));
}

double DataConvert::doubleFromText(const WString& s) {
    std::string t = trimmedLower(s);
    char* end = nullptr;
    double d = std::strtod(t.c_str(), &end);
    if (end == t.c_str()) return 0.0;
    // Leading text that reads as a number counts ("12px" is 12); what follows is dropped.
    return d;
}

NormalisedRGB DataConvert::colourFromText(const WString& s) {
    std::string t = trimmedLower(s);
    NormalisedRGB c;
    if (hexColour(t, c)) return c;
    for (char& ch : t)
        if (ch == ',') ch = ' ';
    std::vector<double> parts;
    const char* p = t.c_str();
    for (char* end = nullptr; parts.size() < 4; p = end) {
        double d = std::strtod(p, &end);
        if (end == p) break;
        parts.push_back(d);
    }
    if (parts.size() < 3) return NormalisedRGB();
    return NormalisedRGB(unit(parts[0]), unit(parts[1]), unit(parts[2]), parts.size() > 3 ? unit(parts[3]) : 1.0f);
}
