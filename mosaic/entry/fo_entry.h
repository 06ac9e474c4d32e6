#pragma once

#include "fo_eleme.h"

#include <string>

class TitleTextBox;

/// A text entry element: Return reports the text in the box, corrected where a
/// subclass keeps a range, as "FoElUp NNN text".
class fo_entry : public fo_eleme {
public:
    static constexpr const char* kReturnMsg = "ReturnPressed";

    fo_entry(unsigned short width, unsigned short height, int id, const LightweightString<wchar_t>& label, int length, double ratio);
    const char* idstring() const override { return "fo_entry"; }

    // Collects the box's text first.
    LightweightString<wchar_t> m_get_entry() override;
    void m_set_entry(const LightweightString<wchar_t>& text) override;
    int m_is_unread() const override { return m_unread ? 1 : 0; }

    // Takes the box's text into m_entry; 1 when a subclass had to correct it.
    virtual int m_collect_entry();
    // 0 when `text` (m_entry when empty) is acceptable; 1 when it was corrected.
    virtual int m_validate_entry(LightweightString<wchar_t> text);
    virtual void m_init_format() {}

    TitleTextBox* textBox() const { return box_; }
    // The field length the element was made with; it does not limit typing.
    int length() const { return length_; }
    std::vector<TabOrderable*> getTabStops() override;
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;

protected:
    // Shows m_entry in the box.
    void m_reset_entry();

    LightweightString<wchar_t> m_entry;
    std::string m_format;
    TitleTextBox* box_ = nullptr;
    bool m_unread = false;
    int length_;
};
