#include "fo_eleme.h"

#include "core/Utf8.h"
#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "form.h"
#include "glob/Messaging.h"

#include <algorithm>
#include <cstdio>

namespace {
constexpr std::size_t kMessageBuffer = 128;
}

fo_eleme::fo_eleme(unsigned short width, unsigned short height, form_element_type type, int id, const LightweightString<wchar_t>& label, double ratio,
                   Canvas* canvas)
    : StandardPanel(width, height,
                    makeTextPalette(form::m_get_text_col(), makeWindowPalette(form::m_get_eleme_col(), UifStd::instance().getColourScheme())),
                    canvas != nullptr, canvas),
      m_label(label), m_id(id), m_type(type), m_ratio(std::clamp(ratio, 0.0, 1.0)) {}

LightweightString<char> fo_eleme::msgFromUIText(const LightweightString<wchar_t>& text) { return toUTF8(text); }

LightweightString<wchar_t> fo_eleme::msgToUIText(const char* text) { return fromUTF8(text); }

void fo_eleme::m_request_focus() {
    if (auto* f = dynamic_cast<form*>(parent())) f->m_request_focus(m_id);
}

void fo_eleme::sendUp(const LightweightString<char>& value) {
    char message[kMessageBuffer];
    std::snprintf(message, sizeof message, "%s %03d %s", kUpMsg, static_cast<int>(m_id), value.c_str());
    if (parent()) callMessage(message, parent(), this);
}

int fo_eleme::react(const Event& e) {
    if (mouse_down_event(e) && mouse_left_event(e) && !m_has_focus) m_request_focus();
    return StandardPanel::react(e);
}

int fo_eleme::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (message == kPromptMsg) {
        m_request_focus();
        return 1;
    }
    return StandardPanel::handleMessageEvent(message, sender);
}

void fo_eleme::drawBackground() { CanvasRenderer(canvas()).fill(form::m_get_sheet_col()); }
