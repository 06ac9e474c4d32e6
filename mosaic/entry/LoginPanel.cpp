#include "LoginPanel.h"

#include "controls/LinkAwareMultiLineTextBox.h"
#include "controls/PushButton.h"
#include "controls/TextLabel.h"
#include "controls/TitleTextBox.h"
#include "draw/FontDesc.h"
#include "draw/HTMLRenderer.h"
#include "draw/UifStd.h"
#include "glob/Messaging.h"
#include "platform/ResourceStrings.h"

namespace {

constexpr ResId kUserNameTitle = 761, kPasswordTitle = 762, kLogInButton = 763;
constexpr int kFurniture = StandardPanel::kCloseBox | StandardPanel::kTitleBar;
constexpr int kWidthInRows = 21, kFixedRows = 5;

int messageLines(const LightweightString<wchar_t>& message, int width) {
    const auto paragraphs = HTMLRenderer::parse(HTMLRenderer::convertToHTML(message, 3), UifStd::instance().getColourScheme());
    return HTMLRenderer::calcNumDisplayLines(paragraphs, static_cast<unsigned short>(width));
}

} // namespace

LoginPanel::InitArgs::InitArgs(const UIString& t, const UIString& m, Glob* o) : title(t), message(m), owner(o) {
    const XY<int> size = calcSize(m.getString());
    width = static_cast<unsigned short>(size.x);
    height = static_cast<unsigned short>(size.y);
}

XY<int> LoginPanel::calcSize(const LightweightString<wchar_t>& message) {
    const int row = UifStd::instance().getRowHeight();
    const int width = kWidthInRows * row;
    const int height = kFixedRows * row + messageLines(message, width) * getDefaultFontSize();
    return calcPanelSize(XY<int>(width, height), kTitleBar, getDefaultBorder());
}

LoginPanel::LoginPanel(const InitArgs& args) : StandardPanel(StandardPanel::InitArgs(args, getDefaultBorder())), owner_(args.owner) {
    const UifStd& std = UifStd::instance();
    addStandardWidgets(kFurniture);
    setResizable(false);
    setTitle(args.title, std.getTitleFont());
    const int userWidth = getUserArea().width();

    const int lines = messageLines(args.message.getString(), userWidth);
    LinkAwareMultiLineTextBox::InitArgs messageArgs(args.message, static_cast<unsigned short>(userWidth),
                                                    static_cast<unsigned short>(MultiLineTextBox::calcHeightForLines(lines, 0, 0)));
    auto* text = createWidget<LinkAwareMultiLineTextBox>(messageArgs, UserTopLeft(0, 0));
    text->setName("loginMessage");
    text->setEditable(false);

    const UIString buttonLabel(kLogInButton);
    const XY<int> buttonSize = Button::calcSizeFor(buttonLabel);
    PushButton::InitArgs buttonArgs(buttonLabel, WidgetCallback(loginMsg()), static_cast<unsigned short>(buttonSize.x),
                                    static_cast<unsigned short>(buttonSize.y));
    button_ = createWidget<PushButton>(buttonArgs, UserBottomRight(0, 0));
    button_->setName("logIn");

    const int halfRow = std.getRowHeight() / 2;
    auto makeBox = [&](ResId title, Glob* below, const char* name) {
        TitleTextBox::InitArgs boxArgs(UIString(paddedResourceStrW(title, L"[", L"]")), 0, static_cast<unsigned short>(userWidth),
                                       static_cast<unsigned short>(TextBox::calcHeight()));
        auto* box = createWidget<TitleTextBox>(boxArgs, Above(halfRow, below, kAlignEnd));
        box->setName(name);
        box->setEditable(true);
        box->setAlignment(Glib::TextAlignment(1, 1));
        return box;
    };
    passwordBox_ = makeBox(kPasswordTitle, button_, "password");
    userNameBox_ = makeBox(kUserNameTitle, passwordBox_, "username");
    passwordBox_->setObfuscatedDisplay(true);
    userNameBox_->requestCallback(kUsernameCharMsg, this, TextBoxBase::kCharTyped);
    passwordBox_->requestCallback(kPasswordCharMsg, this, TextBoxBase::kCharTyped);
    passwordBox_->requestCallback(loginMsg(), this, TextBoxBase::kReturnPressed);

    TextLabel::InitArgs labelArgs(UIString(), static_cast<unsigned short>(std::max(0, userWidth - buttonSize.x)),
                                  static_cast<unsigned short>(buttonSize.y));
    errorLabel_ = createWidget<TextLabel>(labelArgs, UserBottomLeft(0, 0));
    errorLabel_->setName("loginError");
    errorLabel_->fixSize(std::max(0, userWidth - buttonSize.x));
    errorLabel_->setPalette(makeTextPalette(getPalette().warning(), makeWindowPalette(getPalette().window(3), getPalette())));

    button_->setActive(false, kNoRedraw);
    tabOrder().addTabStopsFrom(*userNameBox_);
    tabOrder().addTabStopsFrom(*passwordBox_);
    tabOrder().addTabStop(*button_);
}

int LoginPanel::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (message == kUsernameCharMsg || message == kPasswordCharMsg) {
        button_->setActive(!userNameBox_->getString().empty() && !passwordBox_->getString().empty());
        return 1;
    }
    if (message == loginMsg()) {
        attemptLogIn();
        return 1;
    }
    return StandardPanel::handleMessageEvent(message, sender);
}

void LoginPanel::attemptLogIn() {
    if (!owner_) return;
    sendMessageWithData(loginMsg(), owner_.get(), Zn::Ptr<iObject>(new Credentials(userNameBox_->getString(), passwordBox_->getString())), this);
}

void LoginPanel::showErrorMessage(const UIString& text) { errorLabel_->setText(text); }
