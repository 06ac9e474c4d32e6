#pragma once

#include "fo_choic.h"
#include "glob/GlobHandle.h"

#include <optional>
#include <string>

class Menu;
class TitleButton;

/// A choice whose list the owner makes on demand: the button asks the form's
/// owner for it with "FoElDn NNN action", and the owner answers with
/// m_accept_choices and m_make_choices_menu, which opens the list as a menu.
class fo_gench : public fo_choic {
public:
    static constexpr const char* kLaunchMsg = "Fo_gench_launch";

    fo_gench(unsigned short width, unsigned short height, int id, const UIString& label, const char* action, double ratio);
    ~fo_gench() override;
    const char* idstring() const override { return "fo_gench"; }

    const char* m_get_action() const override { return m_action ? m_action->c_str() : nullptr; }
    void m_set_action(const char* action) override;
    void m_set_choice_state(unsigned int index, int notify) override;
    void m_set_entry(const LightweightString<wchar_t>& text) override;
    void m_set_label(const UIString& label);
    // Raises the open menu, or asks for the choices.
    void m_generate_choices();
    // Takes the owner's list, unless it is empty.
    void m_accept_choices(const std::vector<UIString>& choices);
    void m_make_choices_menu();
    Menu* menu() const;
    TitleButton* button() const { return button_; }
    std::vector<TabOrderable*> getTabStops() override;

    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;

private:
    void m_post_init();

    std::optional<std::string> m_action;
    TitleButton* button_ = nullptr;
    GlobHandle<Menu> m_menu;
};
