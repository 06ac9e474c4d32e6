#include "fo_cycle.h"

#include "controls/TitleMenuButton.h"

namespace {
constexpr unsigned short kTitleWidth = 150;
}

fo_cycle::fo_cycle(unsigned short width, unsigned short height, int id, const UIString& label, const std::vector<UIString>& choices, double ratio)
    : fo_choic(width, height, id, label, choices, ratio) {
    m_post_init();
}

void fo_cycle::m_post_init() {
    const auto buttonWidth = static_cast<unsigned short>(std::max(1, width() - kTitleWidth));
    TitleMenuButton::InitArgs args(m_label, m_choices, buttonWidth, static_cast<unsigned short>(width()), static_cast<unsigned short>(height()));
    button_ = createWidget<TitleMenuButton>(args, BottomLeft(0, 0));
    button_->setName("choice");
    button_->setBorderStyle(Border::kNoBorder);
    button_->setSelectedItem(MenuItemIndex(0), kNoRedraw);
}

int fo_cycle::m_get_choice_state() const { return button_->getSelectedItem(); }

void fo_cycle::m_set_choice_state(unsigned int index, int notify) {
    fo_choic::m_set_choice_state(index, 0);
    if (index >= m_choices.size()) return;
    button_->setSelectedItem(MenuItemIndex(static_cast<unsigned short>(index)), notify ? kRedraw : kNoRedraw);
}

void fo_cycle::m_set_entry(const LightweightString<wchar_t>& text) {
    button_->setSelectedItem(MenuItemIndex(text), kNoRedraw);
    fo_choic::m_set_choice_state(static_cast<unsigned int>(std::max(0, button_->getSelectedItem())), 0);
    redraw();
}

std::vector<TabOrderable*> fo_cycle::getTabStops() { return {button_->getBtn()}; }

int fo_cycle::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (message == DropDownMenuButton::dropDownMenuButtonMsg) {
        m_choice = static_cast<std::uint32_t>(std::max(0, button_->getSelectedItem()));
        if (!m_has_focus) m_request_focus();
        sendUp(msgFromUIText(button_->getSelectedItemNameW()));
        return 1;
    }
    return fo_choic::handleMessageEvent(message, sender);
}
