#include "fo_v_int.h"

#include "core/WStringFromInteger.h"

#include <algorithm>
#include <cwchar>

namespace {
constexpr int kIntLength = 8;
}

fo_v_int::fo_v_int(unsigned short width, unsigned short height, int id, const LightweightString<wchar_t>& label, int min, int max, double ratio)
    : fo_entry(width, height, id, label, kIntLength, ratio), m_min(min > max ? 0 : min), m_max(min > max ? 0 : max), m_value(m_min) {}

int fo_v_int::m_validate_entry(LightweightString<wchar_t> text) {
    const LightweightString<wchar_t>& t = text.empty() ? m_entry : text;
    const long number = std::wcstol(t.c_str(), nullptr, 10);
    if (number >= m_min && number <= m_max) {
        m_value = static_cast<std::int32_t>(number);
        return 0;
    }
    m_value = number < m_min ? m_min : m_max;
    return 1;
}

int fo_v_int::m_collect_entry() {
    fo_entry::m_collect_entry();
    const int corrected = m_validate_entry({});
    if (corrected) {
        m_entry = Zn::WStringFromInteger(m_value);
        m_reset_entry();
    }
    return corrected;
}

void fo_v_int::m_set_entry(const LightweightString<wchar_t>& text) {
    m_validate_entry(text);
    m_entry = Zn::WStringFromInteger(m_value);
    m_reset_entry();
}

int fo_v_int::m_get_value() {
    m_collect_entry();
    return m_value;
}

void fo_v_int::m_set_value(int value) {
    m_value = std::clamp(value, m_min, m_max);
    m_entry = Zn::WStringFromInteger(m_value);
    m_reset_entry();
}
