#pragma once

#include "SignInCredentials.h"
#include "controls/StandardPanel.h"
#include "glob/TabOrderManager.h"

class PasswordEntryBox;
class TextBox;

/// A user name box above a password box, to embed in other panels. Typing in
/// either sends "TypedChar" up the widget tree; Return in the password box sends
/// "StartLogin". It checks nothing.
class SignInWidget : public StandardPanel, public TabOrderableHost {
public:
    /// What a SignInWidget is made from: its size (calcHeight() is the height it needs).
    struct InitArgs : GlobCreationInfo {
        InitArgs() = default;
        InitArgs(unsigned short width, unsigned short height = 0)
            : GlobCreationInfo(width, height ? height : static_cast<unsigned short>(calcHeight())) {}
    };

    explicit SignInWidget(const InitArgs& args);
    const char* idstring() const override { return "SignInWidget"; }

    SignInCredentials getCredentials() const;
    void setCredentials(const SignInCredentials& credentials);
    void setGhostLabels(const UIString& userName, const UIString& password);

    static int textBoxHeight();
    static int calcHeight();

    void setActive(bool active, eRedrawFlag flag = kRedraw) override;
    // The user name box when it is empty, else the password box.
    bool claimKbdFocus() override;
    void getTabOrderables(std::vector<TabOrderable*>& stops);
    std::vector<TabOrderable*> getTabStops() override;
    int handleKeyboardEvent(int keyCode) override;

private:
    PasswordEntryBox* passwordBox_ = nullptr;
    TextBox* userNameBox_ = nullptr;
};
