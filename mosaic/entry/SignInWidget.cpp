#include "SignInWidget.h"

#include "PasswordEntryBox.h"
#include "controls/TextBox.h"
#include "core/KeyCodes.h"
#include "draw/UifStd.h"
#include "moveFocusAmong.h"

SignInWidget::SignInWidget(const InitArgs& args) : StandardPanel(StandardPanel::InitArgs(args, Border(Border::kNoBorder, 0, 15))) {
    const UifStd& std = UifStd::instance();
    const int indent = std.getIndentWidth();
    const auto rowWidth = static_cast<unsigned short>(std::max(0, getUserArea().width() - 2 * indent));
    TextBox::InitArgs nameArgs(UIString(), rowWidth, static_cast<unsigned short>(textBoxHeight()));
    userNameBox_ = createWidget<TextBox>(nameArgs, UserTopLeft(indent, indent));
    userNameBox_->setName("username");
    userNameBox_->setEditable(true);
    userNameBox_->setAlignment(Glib::TextAlignment(0, 1));
    userNameBox_->requestCallback(PasswordEntryBox::kTypedCharMsg, this, TextBoxBase::kCharTyped);

    StandardPanel::InitArgs passwordArgs(rowWidth, static_cast<unsigned short>(textBoxHeight()));
    passwordBox_ = createWidget<PasswordEntryBox>(passwordArgs, Below(std.getWidgetGap(), userNameBox_));
    passwordBox_->setName("passwordEntry");
}

int SignInWidget::textBoxHeight() { return UifStd::instance().getRowHeight() + UifStd::instance().getWidgetGap(); }

int SignInWidget::calcHeight() { return 2 * (textBoxHeight() + UifStd::instance().getWidgetGap() + UifStd::instance().getIndentWidth()); }

SignInCredentials SignInWidget::getCredentials() const { return {userNameBox_->getString(), passwordBox_->getString()}; }

void SignInWidget::setCredentials(const SignInCredentials& credentials) {
    userNameBox_->setString(credentials.userName);
    passwordBox_->setString(credentials.password);
}

void SignInWidget::setGhostLabels(const UIString& userName, const UIString& password) {
    userNameBox_->setPlaceholder(userName);
    passwordBox_->setGhostLabel(password);
}

void SignInWidget::setActive(bool active, eRedrawFlag flag) {
    userNameBox_->setActive(active, kNoRedraw);
    passwordBox_->setActive(active, kNoRedraw);
    StandardPanel::setActive(active, flag);
}

bool SignInWidget::claimKbdFocus() { return userNameBox_->getString().empty() ? userNameBox_->claimKbdFocus() : passwordBox_->claimKbdFocus(); }

void SignInWidget::getTabOrderables(std::vector<TabOrderable*>& stops) {
    stops.push_back(userNameBox_);
    passwordBox_->getTabOrderables(stops);
}

std::vector<TabOrderable*> SignInWidget::getTabStops() {
    std::vector<TabOrderable*> stops;
    getTabOrderables(stops);
    return stops;
}

int SignInWidget::handleKeyboardEvent(int keyCode) {
    if (Keys::plain(keyCode) != Keys::Tab) return StandardPanel::handleKeyboardEvent(keyCode);
    return moveFocusAmong(getTabStops(), Keys::modifiersOf(keyCode) & Modifiers::Shift) ? 1 : 0;
}
