#pragma once

#include "controls/StandardPanel.h"
#include "core/iObject.h"
#include "glob/GlobHandle.h"

class PushButton;
class TextLabel;
class TitleTextBox;

/// A titled log-in panel: a message, a user name box, a password box and a log-in
/// button. The button, or Return in the password box, sends "StartLogin" to the
/// owner with the typed Credentials; the button is active only while both boxes
/// hold text, while Return works always. Whether the credentials are right is the
/// owner's business; it shows a refusal through showErrorMessage.
class LoginPanel : public StandardPanel {
public:
    /// The user name and password of one attempt, the payload of loginMsg().
    struct Credentials : iObject {
        LightweightString<wchar_t> userName;
        LightweightString<wchar_t> password;
        Credentials(const LightweightString<wchar_t>& u, const LightweightString<wchar_t>& p) : userName(u), password(p) {}
    };

    /// What a LoginPanel is made from: its title, the message above the boxes and
    /// the owner (may be null); the size follows from the message.
    struct InitArgs : GlobCreationInfo {
        UIString title;
        UIString message;
        Glob* owner = nullptr;
        InitArgs(const UIString& t, const UIString& m, Glob* o);
    };

    static constexpr const char* kUsernameCharMsg = "UsernameChar";
    static constexpr const char* kPasswordCharMsg = "PasswordChar";

    explicit LoginPanel(const InitArgs& args);
    const char* idstring() const override { return "LoginPanel"; }

    virtual void attemptLogIn();
    void showErrorMessage(const UIString& text);
    static const char* loginMsg() { return "StartLogin"; }
    static XY<int> calcSize(const LightweightString<wchar_t>& message);

    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;

private:
    TitleTextBox* userNameBox_ = nullptr;
    TitleTextBox* passwordBox_ = nullptr;
    GlobHandle<Glob> owner_;
    TextLabel* errorLabel_ = nullptr;
    PushButton* button_ = nullptr;
};
