#include "fo_path.h"

fo_path::fo_path(unsigned short width, unsigned short height, int id, const LightweightString<wchar_t>& label, int kind, double ratio)
    : fo_entry(width, height, id, label, 0, ratio), kind_(kind) {}

int fo_path::m_collect_entry() {
    int rejected = fo_entry::m_collect_entry();
    if (m_validate_entry({}) != 0) {
        rejected = 1;
        m_entry = m_last_good;
        m_reset_entry();
    }
    m_last_good = m_entry;
    return rejected;
}
