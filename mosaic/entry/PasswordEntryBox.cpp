#include "PasswordEntryBox.h"

#include "controls/CycleButton.h"
#include "controls/TextBox.h"
#include "core/MethodCallback.h"
#include "draw/FontDesc.h"
#include "platform/ResourceStrings.h"
#include "value/EventHandlerExistenceCheck.h"
#include "value/UIThreadCallback.h"

namespace {
constexpr ResId kShowPasswordTip = 764;
}

PasswordEntryBox::PasswordEntryBox(const StandardPanel::InitArgs& args) : OccludedChildWidget(args) {
    const auto side = static_cast<unsigned short>(height());
    using Toggle = MethodCallback<PasswordEntryBox, NotifyMsg, int>;
    auto onUIThread = Zn::Ptr<UIThreadCallback<NotifyMsg>>(
        new UIThreadCallback<NotifyMsg>(Zn::Ptr<iCallbackBase<int, NotifyMsg>>(new Toggle(this, &PasswordEntryBox::toggleShowPassword)), false));
    onUIThread->setUIThreadCheck(Zn::Ptr<iCallbackBase<int, NotifyMsg>>(new EventHandlerExistenceCheck<NotifyMsg>(this)));
    CycleButton::InitArgs buttonArgs({}, WidgetCallback(Zn::Ptr<iCallbackBase<int, NotifyMsg>>(onUIThread)), side, side);
    showButton_ = createWidget<CycleButton>(buttonArgs, RightCentre(0, 0));
    showButton_->setName("showPassword");
    showButton_->setPickIcons({getIconPath(L"eye-closed.png"), getIconPath(L"eye-open.png")}, kNoRedraw);
    showButton_->setPickState(0, kNoRedraw);
    showButton_->setContextString(UIString(kShowPasswordTip));

    TextBox::InitArgs boxArgs(UIString(), static_cast<unsigned short>(std::max(0, width() - side)), side);
    textBox_ = createWidget<TextBox>(boxArgs, LeftCentre(0, 0));
    textBox_->setName("password");
    textBox_->setEditable(true);
    textBox_->setAlignment(Glib::TextAlignment(0, 1));
    textBox_->setObfuscatedDisplay(true);
    textBox_->requestCallback(kTypedCharMsg, this, TextBoxBase::kCharTyped);
    textBox_->requestCallback(kStartLoginMsg, this, TextBoxBase::kReturnPressed);
}

LightweightString<wchar_t> PasswordEntryBox::getString() const { return textBox_->getString(); }

void PasswordEntryBox::setString(const LightweightString<wchar_t>& text) { textBox_->setString(text); }

void PasswordEntryBox::setGhostLabel(const UIString& text) { textBox_->setPlaceholder(text); }

int PasswordEntryBox::toggleShowPassword(const NotifyMsg&) {
    textBox_->setObfuscatedDisplay(showButton_->getPickState() == 0);
    if (!textBox_->hasKbdFocus()) {
        // Gaining the focus selects the whole text; the user goes on typing after
        // what is there instead.
        const std::size_t anchor =
            textBox_->selectionStart() == textBox_->getCursorPosition() ? textBox_->selectionEnd() : textBox_->selectionStart();
        const std::size_t caret = textBox_->getCursorPosition();
        textBox_->claimKbdFocus();
        textBox_->setSelection(anchor, caret);
    }
    redraw();
    return 0;
}

void PasswordEntryBox::setActive(bool active, eRedrawFlag flag) {
    showButton_->setActive(active, kNoRedraw);
    textBox_->setActive(active, kNoRedraw);
    OccludedChildWidget::setActive(active, flag);
}

bool PasswordEntryBox::claimKbdFocus() { return textBox_->claimKbdFocus(); }

void PasswordEntryBox::getTabOrderables(std::vector<TabOrderable*>& stops) { stops.push_back(textBox_); }

std::vector<TabOrderable*> PasswordEntryBox::getTabStops() {
    std::vector<TabOrderable*> stops;
    getTabOrderables(stops);
    return stops;
}
