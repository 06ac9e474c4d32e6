#pragma once

#include "fo_entry.h"

/// A text entry that keeps the last text its validation accepted and goes back to
/// it when a new one is refused.
class fo_path : public fo_entry {
public:
    fo_path(unsigned short width, unsigned short height, int id, const LightweightString<wchar_t>& label, int kind, double ratio);
    const char* idstring() const override { return "fo_path"; }

    int m_collect_entry() override;
    int m_validate_state() override { return m_collect_entry(); }
    const LightweightString<wchar_t>& lastGood() const { return m_last_good; }
    int kind() const { return kind_; }

private:
    LightweightString<wchar_t> m_last_good;
    int kind_;
};
