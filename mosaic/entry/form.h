#pragma once

#include "controls/StandardPanel.h"
#include "glob/GlobHandle.h"

#include <cstdint>
#include <vector>

class fo_eleme;
struct form_update_table;

/// A panel of numbered elements, one below the other, that reports every change
/// to its owner as a line of text: "FormUp NNN value", NNN the element's number in
/// at least three digits. The sheet, element and text colours are shared by all
/// forms; the newest form's palette sets them.
class form : public StandardPanel {
public:
    static constexpr const char* kOwnerMsg = "FormUp";
    static constexpr const char* kFocusRequestMsg = "FoElFR";
    static constexpr const char* kChoicesWantedMsg = "FoElDn";

    form();
    form(unsigned short width, unsigned short height, Glob* owner, int closable, const Palette& palette, LightweightString<wchar_t> title,
         double unused);
    const char* idstring() const override { return "form"; }

    static void setColours(const Colour& sheet, const Colour& element, const Colour& text);
    static void m_set_sheet_col(const Colour& c) { sheetColour_ = c; }
    static void m_set_eleme_col(const Colour& c) { elementColour_ = c; }
    static void m_set_text_col(const Colour& c) { textColour_ = c; }
    static const Colour& m_get_sheet_col() { return sheetColour_; }
    static const Colour& m_get_eleme_col() { return elementColour_; }
    static const Colour& m_get_text_col() { return textColour_; }

    // Adopts the element and places it below the one before.
    void m_add_element(fo_eleme* element, int unused = 0);
    void m_add_elements(fo_eleme** /*elements*/, int /*count*/) {}
    // Operations on the element at an index; out of range they do nothing and
    // answer 0, -1, empty or null.
    int m_get_element_type(int index) const;
    int m_get_element_choice_state(int index) const;
    void m_set_element_choice_state(int index, int choice, int notify);
    LightweightString<wchar_t> m_get_element_entry(int index) const;
    void m_set_element_entry(int index, const LightweightString<wchar_t>& text);
    const char* m_get_element_action(int index) const;
    void m_set_element_action(int index, const char* action);
    // Validates the element that had the focus and moves the focus to `index`.
    void m_request_focus(int index);
    // Sends "FormUp NNN text" (NNN the position) for every unread entry with text.
    void m_send_unread_entry_elements();
    // Copies `text` to the targets of the rows whose source is this form's
    // `element`; 1 when any row matched.
    static int m_update_others(form_update_table* table, form* source, int element, const LightweightString<wchar_t>& text);

    fo_eleme* element(int index) const;
    std::size_t numElements() const { return m_elements.size(); }
    int current() const { return m_current; }
    Glob* owner() const { return m_owner.get(); }

    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;
    void handlePoot() override;

private:
    void m_init();
    void m_post_init(int closable);
    void sendToOwner(const char* text, Glob* sender);

    static Colour sheetColour_, elementColour_, textColour_;
    GlobHandle<Glob> m_owner;
    std::vector<fo_eleme*> m_elements;
    std::int32_t m_current = 0;
};
