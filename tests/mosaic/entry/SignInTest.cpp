#include "controls/CycleButton.h"
#include "controls/PushButton.h"
#include "controls/TextBox.h"
#include "controls/TextLabel.h"
#include "controls/TitleTextBox.h"
#include "core/KeyCodes.h"
#include "draw/UifStd.h"
#include "entry/LoginPanel.h"
#include "entry/PasswordEntryBox.h"
#include "entry/SignInWidget.h"
#include "glob/Messaging.h"
#include "testkit/TestKit.h"

#include <string>
#include <vector>

namespace {

// A panel that keeps what it hears, credentials included.
class Owner : public StandardPanel {
public:
    using StandardPanel::StandardPanel;
    int handleDataMessageEvent(const LightweightString<char>& message, Glob* sender, const Zn::Ptr<iObject>& data) override {
        if (auto c = Zn::dynamicCast<LoginPanel::Credentials>(data)) attempts.push_back(c->userName.str() + L"/" + c->password.str());
        return handleMessageEvent(message, sender);
    }
    int handleMessageEvent(const LightweightString<char>& message, Glob*) override {
        heard.push_back(message.str());
        return 1;
    }
    std::vector<std::string> heard;
    std::vector<std::wstring> attempts;
};

class SignIn : public TestKit::ScreenTest {
protected:
    Owner* makeOwner() {
        StandardPanel::InitArgs args(420, 200);
        args.palette = UifStd::instance().getColourScheme();
        return TestKit::realize(new Owner(args), {40, 40});
    }
    static TextBox* focusedBox() { return dynamic_cast<TextBox*>(get_kbd_focus()); }
};

TEST_F(SignIn, TheEyeShowsAndHidesTheTextKeepingTextCaretAndFocus) {
    Owner* owner = makeOwner();
    StandardPanel::InitArgs args(240, static_cast<unsigned short>(SignInWidget::textBoxHeight()));
    auto* box = owner->createWidget<PasswordEntryBox>(args, Glob::BottomLeft(10, 10));
    TestKit::pump();
    ASSERT_TRUE(TestKit::typeInto("password", L"s3cret"));
    EXPECT_TRUE(box->textBox()->isObfuscatedDisplay());
    ASSERT_TRUE(TestKit::click("showPassword"));
    TestKit::pump();
    EXPECT_FALSE(box->textBox()->isObfuscatedDisplay());
    EXPECT_EQ(focusedBox(), box->textBox());
    TestKit::typeText(L"!");
    EXPECT_EQ(box->getString(), L"s3cret!") << "typing goes on after the text, not over it";
    ASSERT_TRUE(TestKit::click("showPassword"));
    TestKit::pump();
    EXPECT_TRUE(box->textBox()->isObfuscatedDisplay());
    EXPECT_EQ(box->getString(), L"s3cret!");
    EXPECT_EQ(focusedBox(), box->textBox());
    TestKit::pressKey(Keys::Return);
    TestKit::pump();
    EXPECT_EQ(owner->heard.back(), PasswordEntryBox::kStartLoginMsg);
    EXPECT_NE(std::find(owner->heard.begin(), owner->heard.end(), PasswordEntryBox::kTypedCharMsg), owner->heard.end());
}

TEST_F(SignIn, TheWidgetStartsWhereTypingIsNeededAndTabsFromNameToPassword) {
    Owner* owner = makeOwner();
    SignInWidget::InitArgs args(300);
    auto* w = owner->createWidget<SignInWidget>(args, Glob::BottomLeft(10, 10));
    TestKit::pump();
    w->claimKbdFocus();
    EXPECT_EQ(focusedBox(), TestKit::find<TextBox>("username"));
    TestKit::typeText(L"ann");
    TestKit::pressKey(Keys::Tab);
    EXPECT_EQ(focusedBox(), TestKit::find<TextBox>("password"));
    TestKit::typeText(L"pw");
    EXPECT_EQ(w->getCredentials().userName, L"ann");
    EXPECT_EQ(w->getCredentials().password, L"pw");
    TestKit::pressKey(Keys::Tab, Modifiers::Shift);
    EXPECT_EQ(focusedBox(), TestKit::find<TextBox>("username"));
    w->setCredentials({L"bob", L"hidden"});
    w->claimKbdFocus();
    EXPECT_EQ(focusedBox(), TestKit::find<TextBox>("password")) << "a known user starts at the password";
    EXPECT_EQ(w->getCredentials().password, L"hidden");
}

TEST_F(SignIn, TheLogInButtonNeedsBothBoxesButReturnAlwaysAttempts) {
    Owner* owner = makeOwner();
    auto* panel = TestKit::realize(new LoginPanel(LoginPanel::InitArgs(L"Archive", L"Sign in to the media archive.", owner)), {500, 300});
    TestKit::pump();
    auto* button = TestKit::find<PushButton>("logIn");
    ASSERT_TRUE(button);
    EXPECT_FALSE(button->isActive());
    TestKit::find("username")->claimKbdFocus();
    TestKit::pressKey(Keys::Return);
    TestKit::pressKey(Keys::Tab);
    TestKit::pressKey(Keys::Return);
    TestKit::pump();
    EXPECT_EQ(owner->attempts, std::vector<std::wstring>{L"/"}) << "Return in the password box tries even empty boxes";
    TestKit::pressKey(Keys::Tab, Modifiers::Shift);
    TestKit::typeText(L"ann");
    TestKit::pump();
    EXPECT_FALSE(button->isActive());
    TestKit::pressKey(Keys::Tab);
    TestKit::typeText(L"x");
    TestKit::pump();
    EXPECT_TRUE(button->isActive());
    TestKit::pressKey(Keys::Backspace);
    TestKit::pump();
    EXPECT_FALSE(button->isActive()) << "clearing a box takes the button back";
    TestKit::typeText(L"pw");
    TestKit::pump();
    ASSERT_TRUE(TestKit::click("logIn"));
    TestKit::pump();
    EXPECT_EQ(owner->attempts.back(), L"ann/pw");
    panel->showErrorMessage(L"Wrong password");
    TestKit::pump();
    EXPECT_EQ(TestKit::find<TextLabel>("loginError")->getText().getString(), L"Wrong password");
    EXPECT_EQ(TestKit::find<TitleTextBox>("username")->getString(), L"ann");
}

TEST_F(SignIn, WithNoOwnerAnAttemptGoesNowhere) {
    auto* panel = TestKit::realize(new LoginPanel(LoginPanel::InitArgs(L"Archive", L"", nullptr)), {500, 300});
    TestKit::pump();
    panel->attemptLogIn();
    TestKit::pressKey(Keys::Return);
    TestKit::pump();
    EXPECT_TRUE(TestKit::find("logIn"));
    EXPECT_EQ(LoginPanel::calcSize(L"").x, LoginPanel::calcSize(L"A much longer message that wraps over more than one line of the panel").x);
    EXPECT_LT(LoginPanel::calcSize(L"").y, LoginPanel::calcSize(L"A much longer message that wraps over more than one line of the panel").y);
}

} // namespace
