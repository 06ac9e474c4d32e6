#include "fo_choic.h"

#include "glob/Messaging.h"

fo_choic::fo_choic(unsigned short width, unsigned short height, int id, const UIString& label, const std::vector<UIString>& choices, double ratio)
    : fo_eleme(width, height, kFormChoice, id, label.getString(), ratio, nullptr), m_choices(choices) {
    if (m_choices.empty()) m_choices.emplace_back(kVoidChoice);
}

void fo_choic::m_set_choice_state(unsigned int index, int notify) {
    if (index >= m_choices.size()) return;
    m_choice = index;
    if (notify) callMessage(msgFromUIText(m_choices[index].getString()), this, this);
}

bool fo_choic::selectByMessage(const LightweightString<char>& message) {
    for (std::size_t i = 0; i < m_choices.size(); ++i) {
        if (msgFromUIText(m_choices[i].getString()) != message) continue;
        m_choice = static_cast<std::uint32_t>(i);
        if (!m_has_focus) m_request_focus();
        sendUp(message);
        return true;
    }
    return false;
}

int fo_choic::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (selectByMessage(message)) return 1;
    return fo_eleme::handleMessageEvent(message, sender);
}
