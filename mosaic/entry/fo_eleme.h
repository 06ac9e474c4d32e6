#pragma once

#include "controls/StandardPanel.h"
#include "glob/TabOrderManager.h"

#include <cstdint>

// What kind of value an element holds, as the form reports it.
enum form_element_type { kFormNoElement = 0, kFormChoice = 1, kFormEntry = 2, kFormBool = 4 };

/// The base of a form's elements: a numbered row with a prompt that reports every
/// change to its form as "FoElUp NNN value" and offers its controls to the form's
/// tab order. The operations below do nothing here; each kind overrides its own.
class fo_eleme : public StandardPanel, public TabOrderableHost {
public:
    static constexpr const char* kUpMsg = "FoElUp";
    static constexpr const char* kPromptMsg = "Fo_eleme_prompt";
    static constexpr double kDefaultRatio = 0.7;

    fo_eleme(unsigned short width, unsigned short height, form_element_type type, int id, const LightweightString<wchar_t>& label, double ratio,
             Canvas* canvas);
    const char* idstring() const override { return "fo_eleme"; }

    virtual int m_get_choice_state() const { return -1; }
    virtual const UIString* m_get_choice_state_label() { return nullptr; }
    virtual void m_set_choice_state(unsigned int /*index*/, int /*notify*/) {}
    virtual LightweightString<wchar_t> m_get_entry() { return {}; }
    virtual void m_set_entry(const LightweightString<wchar_t>& /*text*/) {}
    virtual const char* m_get_action() const { return nullptr; }
    virtual void m_set_action(const char* /*action*/) {}
    virtual int m_validate_state() { return 0; }
    virtual int m_is_unread() const { return 0; }

    // Asks the form for the focus, which lands here when m_id is this element's index.
    void m_request_focus();
    void setHasFocus(bool focus) { m_has_focus = focus; }
    bool hasFocus() const { return m_has_focus; }
    int id() const { return m_id; }
    form_element_type type() const { return m_type; }
    double ratio() const { return m_ratio; }
    const UIString& label() const { return m_label; }

    static LightweightString<char> msgFromUIText(const LightweightString<wchar_t>& text);
    static LightweightString<wchar_t> msgToUIText(const char* text);

    std::vector<TabOrderable*> getTabStops() override { return {}; }
    int react(const Event& e) override;
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;
    void drawBackground() override;

protected:
    // Sends "FoElUp NNN value" to the form, cut to the message buffer's size.
    void sendUp(const LightweightString<char>& value);

    UIString m_label;
    bool m_has_focus = false;
    std::int32_t m_id;
    form_element_type m_type;
    double m_ratio;
};
