#pragma once

#include "fo_entry.h"

/// A real number in a range, shown at a fixed number of decimals; the bounds are
/// rounded to that precision, and text out of range is corrected to the nearer one.
class fo_v_dbl : public fo_entry {
public:
    fo_v_dbl(unsigned short width, unsigned short height, int id, const LightweightString<wchar_t>& label, double min, double max, int precision,
             double ratio);
    const char* idstring() const override { return "fo_v_dbl"; }

    int m_collect_entry() override;
    int m_validate_entry(LightweightString<wchar_t> text) override;
    int m_validate_state() override { return m_collect_entry(); }
    void m_init_format() override;
    // Empty text empties the box and sets the value to the minimum.
    void m_set_entry(const LightweightString<wchar_t>& text) override;
    double m_get_value();
    void m_set_value(double value);
    double minimum() const { return m_min; }
    double maximum() const { return m_max; }

private:
    LightweightString<wchar_t> formatted(double value) const;

    double m_min, m_max;
    int m_precision;
    double m_value;
};
