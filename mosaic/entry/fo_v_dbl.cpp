#include "fo_v_dbl.h"

#include "core/Utf8.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cwchar>

namespace {
constexpr std::size_t kFormatBuffer = 16, kNumberBuffer = 256;

// The digits of the whole part.
int wholeLength(double v) {
    const double whole = std::floor(std::fabs(v));
    return whole < 1.0 || !std::isfinite(whole) ? 1 : static_cast<int>(std::log10(whole)) + 1;
}

// The decimals and the longer whole part, and one for a minus sign.
int fieldLength(double min, double max, int precision) {
    const double lo = min > max ? 0.0 : min, hi = min > max ? 0.0 : max;
    return std::max(precision, 0) + std::max(wholeLength(lo), wholeLength(hi)) + 1;
}
} // namespace

fo_v_dbl::fo_v_dbl(unsigned short width, unsigned short height, int id, const LightweightString<wchar_t>& label, double min, double max,
                   int precision, double ratio)
    : fo_entry(width, height, id, label, fieldLength(min, max, precision), ratio), m_min(min > max ? 0.0 : min), m_max(min > max ? 0.0 : max),
      m_precision(std::max(precision, 0)), m_value(0.0) {
    m_init_format();
    // The bounds as shown, so that the range is exact at the shown precision.
    m_min = std::wcstod(formatted(m_min).c_str(), nullptr);
    m_max = std::wcstod(formatted(m_max).c_str(), nullptr);
    m_value = m_min;
}

void fo_v_dbl::m_init_format() {
    char format[kFormatBuffer];
    std::snprintf(format, sizeof format, "%%.%df", m_precision);
    m_format = format;
}

LightweightString<wchar_t> fo_v_dbl::formatted(double value) const {
    char text[kNumberBuffer];
    std::snprintf(text, sizeof text, m_format.c_str(), value);
    return fromUTF8(text);
}

int fo_v_dbl::m_validate_entry(LightweightString<wchar_t> text) {
    const LightweightString<wchar_t>& t = text.empty() ? m_entry : text;
    const double number = std::wcstod(t.c_str(), nullptr);
    if (number >= m_min && number <= m_max) {
        m_value = number;
        return 0;
    }
    // NaN is in no range and nearer to neither bound: it becomes the minimum.
    m_value = number > m_max ? m_max : m_min;
    return 1;
}

int fo_v_dbl::m_collect_entry() {
    fo_entry::m_collect_entry();
    const int corrected = m_validate_entry({});
    if (corrected) {
        m_entry = formatted(m_value);
        m_reset_entry();
    }
    return corrected;
}

void fo_v_dbl::m_set_entry(const LightweightString<wchar_t>& text) {
    if (text.empty()) {
        m_value = m_min;
        m_entry = {};
    } else {
        m_validate_entry(text);
        m_entry = formatted(m_value);
    }
    m_reset_entry();
}

double fo_v_dbl::m_get_value() {
    m_collect_entry();
    return m_value;
}

void fo_v_dbl::m_set_value(double value) {
    m_value = std::isnan(value) ? m_min : std::clamp(value, m_min, m_max);
    m_entry = formatted(m_value);
    m_reset_entry();
}
