#pragma once

#include "fo_eleme.h"

#include <cstdint>
#include <vector>

/// A choice among texts, with no control of its own; a message that equals a
/// choice's text selects it and reports it. An empty list becomes the one choice "__void".
class fo_choic : public fo_eleme {
public:
    static constexpr const wchar_t* kVoidChoice = L"__void";

    fo_choic(unsigned short width, unsigned short height, int id, const UIString& label, const std::vector<UIString>& choices, double ratio);
    const char* idstring() const override { return "fo_choic"; }

    int m_get_choice_state() const override { return static_cast<int>(m_choice); }
    const UIString* m_get_choice_state_label() override { return m_choice < m_choices.size() ? &m_choices[m_choice] : nullptr; }
    // An index past the end does nothing; with `notify` the choice's text is
    // delivered to this element as a message.
    void m_set_choice_state(unsigned int index, int notify) override;
    const std::vector<UIString>& choices() const { return m_choices; }

    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;

protected:
    // Selects the choice whose text is `message` and reports it; false when none is.
    bool selectByMessage(const LightweightString<char>& message);

    std::vector<UIString> m_choices;
    std::uint32_t m_choice = 0;
};
