#include "fo_bool.h"

#include "controls/Checkbox.h"
#include "platform/ResourceStrings.h"

#include <cwctype>

namespace {
constexpr ResId kYes = 4;

bool sameIgnoringCase(const LightweightString<wchar_t>& a, const LightweightString<wchar_t>& b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (std::towlower(static_cast<wint_t>(a[i])) != std::towlower(static_cast<wint_t>(b[i]))) return false;
    return true;
}
} // namespace

fo_bool::fo_bool(unsigned short width, unsigned short height, int id, const LightweightString<wchar_t>& label, bool state)
    : fo_eleme(width, height, kFormBool, id, label, kDefaultRatio, nullptr), m_state(state) {
    Checkbox::InitArgs args(label, state, WidgetCallback("Checkbox changed"), width, height);
    checkbox_ = createWidget<Checkbox>(args, BottomLeft(0, 0));
    checkbox_->setName("check");
}

void fo_bool::m_set_entry(const LightweightString<wchar_t>& text) {
    m_state = sameIgnoringCase(text, resourceStrW(kYes));
    checkbox_->setState(m_state);
}

std::vector<TabOrderable*> fo_bool::getTabStops() { return {checkbox_}; }

int fo_bool::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (message.startsWith(kCheckboxMsg)) {
        m_state = checkbox_->getState();
        if (!m_has_focus) m_request_focus();
        sendUp(m_state ? "Yes" : "No");
        return 1;
    }
    return fo_eleme::handleMessageEvent(message, sender);
}
