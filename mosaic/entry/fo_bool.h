#pragma once

#include "fo_eleme.h"

class Checkbox;

/// A checkbox element; it reports "Yes" or "No".
class fo_bool : public fo_eleme {
public:
    static constexpr const char* kCheckboxMsg = "Checkbox ";

    fo_bool(unsigned short width, unsigned short height, int id, const LightweightString<wchar_t>& label, bool state);
    const char* idstring() const override { return "fo_bool"; }

    // "Yes" as the resource string gives it, in any case, ticks the box; anything else clears it.
    void m_set_entry(const LightweightString<wchar_t>& text) override;
    LightweightString<wchar_t> m_get_entry() override { return m_state ? L"Yes" : L"No"; }
    bool state() const { return m_state; }
    std::vector<TabOrderable*> getTabStops() override;

    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;

private:
    bool m_state;
    Checkbox* checkbox_ = nullptr;
};
