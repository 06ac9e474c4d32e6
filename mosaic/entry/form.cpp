#include "form.h"

#include "core/Utf8.h"
#include "draw/UifStd.h"
#include "fo_eleme.h"
#include "form_update_table.h"
#include "glob/Messaging.h"
#include "glob/UpdateDeferrer.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {
constexpr std::size_t kMessageBuffer = 128, kUnreadBuffer = 64;
// "FoElUp" and "FoElFR" are told by their first six characters; what they carry
// starts at the eighth.
constexpr std::size_t kTagLength = 6, kBodyStart = 7;
constexpr unsigned short kDefaultSide = 200;
constexpr int kShadeOfForms = 3;

LightweightString<char> bodyOf(const LightweightString<char>& message) { return message.substr(kBodyStart); }
} // namespace

Colour form::sheetColour_, form::elementColour_, form::textColour_;

form::form() : form(kDefaultSide, kDefaultSide, nullptr, 0, UifStd::instance().getColourScheme(), {}, 0.0) {}

form::form(unsigned short width, unsigned short height, Glob* owner, int closable, const Palette& palette, LightweightString<wchar_t> title, double)
    : StandardPanel(width, height, palette, false, nullptr) {
    m_init();
    setColours(palette.window(kShadeOfForms), palette.window(kShadeOfForms), palette.text(0));
    m_owner = GlobHandle<Glob>(owner);
    if (!title.empty()) {
        addStandardWidgets(kTitleBar);
        setTitle(UIString(title), UifStd::instance().getTitleFont());
    }
    m_post_init(closable);
}

void form::m_init() {
    m_elements.clear();
    m_current = 0;
}

void form::m_post_init(int closable) {
    if (closable) addStandardWidgets(kCloseBox);
}

void form::setColours(const Colour& sheet, const Colour& element, const Colour& text) {
    sheetColour_ = sheet;
    elementColour_ = element;
    textColour_ = text;
}

void form::m_add_element(fo_eleme* e, int) {
    if (!e) return;
    const UifStd& std = UifStd::instance();
    const int gap = parent() ? std.getWidgetGap() : getDefaultBorder().left();
    if (m_elements.empty())
        addChild(e, UserTopLeft(gap, gap));
    else
        addChild(e, Below(std.getRowGap(), m_elements.back()));
    m_elements.push_back(e);
    tabOrder().addTabStopsFrom(*e);
}

fo_eleme* form::element(int index) const { return index >= 0 && static_cast<std::size_t>(index) < m_elements.size() ? m_elements[index] : nullptr; }

int form::m_get_element_type(int index) const { return element(index) ? element(index)->type() : 0; }

int form::m_get_element_choice_state(int index) const { return element(index) ? element(index)->m_get_choice_state() : -1; }

void form::m_set_element_choice_state(int index, int choice, int notify) {
    if (element(index) && choice >= 0) element(index)->m_set_choice_state(static_cast<unsigned int>(choice), notify);
}

LightweightString<wchar_t> form::m_get_element_entry(int index) const {
    return element(index) ? element(index)->m_get_entry() : LightweightString<wchar_t>();
}

void form::m_set_element_entry(int index, const LightweightString<wchar_t>& text) {
    if (element(index)) element(index)->m_set_entry(text);
}

const char* form::m_get_element_action(int index) const { return element(index) ? element(index)->m_get_action() : nullptr; }

void form::m_set_element_action(int index, const char* action) {
    if (element(index)) element(index)->m_set_action(action);
}

void form::m_request_focus(int index) {
    fo_eleme* next = element(index);
    if (!next) return;
    if (fo_eleme* was = element(m_current)) {
        was->m_validate_state();
        was->setHasFocus(false);
    }
    m_current = index;
    next->setHasFocus(true);
}

void form::sendToOwner(const char* text, Glob* sender) {
    if (m_owner) sendMessage(text, m_owner.get(), sender);
}

void form::m_send_unread_entry_elements() {
    for (std::size_t i = 0; i < m_elements.size(); ++i) {
        fo_eleme* e = m_elements[i];
        if (!e->m_is_unread()) continue;
        const LightweightString<char> text = toUTF8(e->m_get_entry());
        if (text.empty()) continue;
        char message[kUnreadBuffer];
        std::snprintf(message, sizeof message, "%s %03d %s", kOwnerMsg, static_cast<int>(i), text.c_str());
        sendToOwner(message, this);
    }
}

int form::m_update_others(form_update_table* table, form* source, int element, const LightweightString<wchar_t>& text) {
    if (!table || !source) return 0;
    int matched = 0;
    for (form_update_table* row = table; row->sourceElement != -1; ++row) {
        if (row->sourceForm != source || row->sourceElement != element) continue;
        matched = 1;
        if (row->targetForm) row->targetForm->m_set_element_entry(row->targetElement, text);
    }
    return matched;
}

int form::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    const std::string_view tag = message.view().substr(0, kTagLength);
    if (tag == fo_eleme::kUpMsg) {
        char up[kMessageBuffer];
        std::snprintf(up, sizeof up, "%s %s", kOwnerMsg, bodyOf(message).c_str());
        sendToOwner(up, this);
        return 1;
    }
    if (tag == kFocusRequestMsg) {
        const LightweightString<char> body = bodyOf(message);
        char* end = nullptr;
        const long index = std::strtol(body.c_str(), &end, 10);
        if (end != body.c_str() && index != m_current && index >= 0 && index < static_cast<long>(m_elements.size()))
            m_request_focus(static_cast<int>(index));
        return 1;
    }
    if (tag == kChoicesWantedMsg) {
        // The owner answers with the element's m_accept_choices and m_make_choices_menu.
        sendToOwner(message.c_str(), sender);
        return 1;
    }
    return StandardPanel::handleMessageEvent(message, sender);
}

void form::handlePoot() {
    Glib::UpdateDeferrer together;
    StandardPanel::handlePoot();
}
