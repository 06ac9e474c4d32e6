#pragma once

#include "fo_choic.h"

class TitleMenuButton;

/// A choice shown as a titled drop-down button; choosing reports the item's name.
class fo_cycle : public fo_choic {
public:
    fo_cycle(unsigned short width, unsigned short height, int id, const UIString& label, const std::vector<UIString>& choices, double ratio);
    const char* idstring() const override { return "fo_cycle"; }

    int m_get_choice_state() const override;
    void m_set_choice_state(unsigned int index, int notify) override;
    void m_set_entry(const LightweightString<wchar_t>& text) override;
    std::vector<TabOrderable*> getTabStops() override;
    TitleMenuButton* button() const { return button_; }

    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;

private:
    void m_post_init();

    TitleMenuButton* button_ = nullptr;
};
