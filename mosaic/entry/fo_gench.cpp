#include "fo_gench.h"

#include "controls/Menu.h"
#include "controls/TitleButton.h"
#include "glob/GlobManager.h"
#include "glob/Messaging.h"

#include <cstdio>

namespace {
constexpr int kTitleWidth = 150;
constexpr std::size_t kShownChars = 15, kMessageBuffer = 128;
constexpr int kMenuMaxWidth = 300, kMenuMaxHeight = 900;
} // namespace

fo_gench::fo_gench(unsigned short width, unsigned short height, int id, const UIString& label, const char* action, double ratio)
    : fo_choic(width, height, id, label, {}, ratio) {
    m_set_action(action);
    m_post_init();
}

fo_gench::~fo_gench() {
    if (Menu* m = m_menu.get()) m->close();
}

Menu* fo_gench::menu() const { return m_menu.get(); }

void fo_gench::m_post_init() {
    const UIString shown(m_choices[m_choice].getString().substr(0, kShownChars));
    TitleButton::InitArgs args(m_label, shown, WidgetCallback(kLaunchMsg), kTitleWidth, static_cast<unsigned short>(width()),
                               static_cast<unsigned short>(height()));
    button_ = createWidget<TitleButton>(args, BottomRight(0, 0));
    button_->setName("generate");
}

void fo_gench::m_set_action(const char* action) { m_action = action && *action ? std::optional<std::string>(action) : std::nullopt; }

void fo_gench::m_set_choice_state(unsigned int index, int) { fo_choic::m_set_choice_state(index, 0); }

void fo_gench::m_set_entry(const LightweightString<wchar_t>& text) { button_->setLabel(UIString(text.substr(0, kShownChars))); }

void fo_gench::m_set_label(const UIString& label) { button_->setLabel(label); }

void fo_gench::m_generate_choices() {
    if (Menu* open = m_menu.get()) {
        open->popToTop(true);
        return;
    }
    if (!m_action || !parent()) return;
    char message[kMessageBuffer];
    std::snprintf(message, sizeof message, "%s %03d %s", "FoElDn", static_cast<int>(m_id), m_action->c_str());
    callMessage(message, parent(), this);
}

void fo_gench::m_accept_choices(const std::vector<UIString>& choices) {
    if (!choices.empty()) m_choices = choices;
}

void fo_gench::m_make_choices_menu() {
    if (Menu* old = m_menu.get()) old->close();
    const XY<int> at = screenPos() + XY<int>(width() / 3, height() - height() / 3);
    std::vector<MenuItem> rows{MenuItem(m_label, {}, kMenuItemHeading), MenuItem(UIString(L" "), {}, kMenuItemPlain)};
    for (const UIString& c : m_choices) rows.emplace_back(c, WidgetCallback(msgFromUIText(c.getString())), getPalette().text(0), kMenuItemPlain);
    Menu::InitArgs args(rows);
    args.maxWidth = kMenuMaxWidth;
    args.maxHeight = kMenuMaxHeight;
    auto* menu = new Menu(args);
    menu->setName("choices");
    m_menu = GlobHandle<Menu>(menu);
    menu->popUpAt(this, at);
}

std::vector<TabOrderable*> fo_gench::getTabStops() { return {button_->getBtn()}; }

int fo_gench::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (message == kLaunchMsg) {
        if (!m_has_focus) m_request_focus();
        m_generate_choices();
        return 1;
    }
    if (message == Menu::goneMsg) {
        m_menu = GlobHandle<Menu>();
        return 1;
    }
    if (selectByMessage(message)) {
        button_->setLabel(UIString(m_choices[m_choice].getString().substr(0, kShownChars)));
        return 1;
    }
    return fo_choic::handleMessageEvent(message, sender);
}
