#pragma once

#include "fo_entry.h"

#include <cstdint>

/// A whole number in a range: text out of range, or no number, is corrected to
/// the nearer bound in the box when the entry is collected.
class fo_v_int : public fo_entry {
public:
    fo_v_int(unsigned short width, unsigned short height, int id, const LightweightString<wchar_t>& label, int min, int max, double ratio);
    const char* idstring() const override { return "fo_v_int"; }

    int m_collect_entry() override;
    int m_validate_entry(LightweightString<wchar_t> text) override;
    int m_validate_state() override { return m_collect_entry(); }
    void m_set_entry(const LightweightString<wchar_t>& text) override;
    int m_get_value();
    void m_set_value(int value);
    int minimum() const { return m_min; }
    int maximum() const { return m_max; }

private:
    std::int32_t m_min, m_max, m_value;
};
