#pragma once

#include "core/NotifyMsg.h"
#include "frame/OccludedChildWidget.h"
#include "glob/TabOrderManager.h"

class CycleButton;
class TextBox;

/// A password box: a text box that shows bullets, with an eye button at its right
/// end that shows and hides the text. Typing sends "TypedChar" and Return
/// "StartLogin" up the widget tree for the enclosing panel to hear.
class PasswordEntryBox : public OccludedChildWidget, public TabOrderableHost {
public:
    static constexpr const char* kTypedCharMsg = "TypedChar";
    static constexpr const char* kStartLoginMsg = "StartLogin";

    explicit PasswordEntryBox(const StandardPanel::InitArgs& args);
    const char* idstring() const override { return "PasswordEntryBox"; }

    LightweightString<wchar_t> getString() const;
    void setString(const LightweightString<wchar_t>& text);
    void setGhostLabel(const UIString& text);
    // The eye button's callback: shows the text in its open state, hides it in its
    // closed one, and leaves the focus in the text box with the caret where it was.
    int toggleShowPassword(const NotifyMsg& msg);

    void setActive(bool active, eRedrawFlag flag = kRedraw) override;
    bool claimKbdFocus() override;
    void getTabOrderables(std::vector<TabOrderable*>& stops);
    std::vector<TabOrderable*> getTabStops() override;
    TextBox* textBox() const { return textBox_; }
    CycleButton* showButton() const { return showButton_; }

private:
    CycleButton* showButton_ = nullptr;
    TextBox* textBox_ = nullptr;
};
