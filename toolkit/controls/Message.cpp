#include "Message.h"

#include "PushButton.h"
#include "draw/CanvasRenderer.h"
#include "draw/Screen.h"
#include "draw/UifStd.h"
#include "draw/WordWrappingTextRenderer.h"
#include "glob/GlobManager.h"
#include "glob/Messaging.h"
#include "glob/fireCallback.h"

#include <algorithm>

namespace {

constexpr const char* kButtonMsg = "MessageButton";
constexpr ResId kOkId = 1;
constexpr ResId kInformationId = 10;

int lineHeight() { return Glib::fontHeight(UifStd::instance().getDefaultFont()); }

// Room for the row of buttons and the margins around the text, below and beside it:
// a widget gap below the buttons and between them and the text, two indents above it.
int marginsHeight() {
    const UifStd& u = UifStd::instance();
    return u.getRowHeight() + 2 * u.getWidgetGap() + 2 * u.getIndentWidth();
}

std::vector<UIString> orOk(const std::vector<UIString>& labels) { return labels.empty() ? std::vector<UIString>{UIString(kOkId)} : labels; }

UIString orDefaultTitle(const UIString& title, ResId fallback) { return title.empty() ? UIString(fallback) : title; }

} // namespace

Message::Message(const InitArgs& args) : Message(args, {}, {args.callback}) {}

Message::Message(const InitArgs& args, const std::vector<UIString>& labels, const std::vector<WidgetCallback>& callbacks)
    : StandardPanel(args), text_(args.text), callbacks_(callbacks), client_(args.client), modal_(args.modal) {
    clientStamp_ = client_ ? client_->stamp() : IdStamp();
    const std::vector<UIString> shown = orOk(labels);
    const UIString title = orDefaultTitle(args.title, kInformationId);
    if (args.width <= 0 || args.height <= 0) {
        const int buttons =
            static_cast<int>(shown.size()) * calcButtonWidth(shown) + static_cast<int>(shown.size() - 1) * UifStd::instance().getWidgetGap();
        const XY<int> size = calcSize(title, text_, buttons);
        resize(args.width > 0 ? args.width : size.x, args.height > 0 ? args.height : size.y);
    }
    setBorder(getDefaultBorder());
    setTitle(title, {}, kNoRedraw);
    addStandardWidgets(kTitleBar);
    build(shown);
}

void Message::build(const std::vector<UIString>& labels) {
    const int w = calcButtonWidth(labels);
    for (const UIString& label : labels) {
        PushButton::InitArgs b(label, WidgetCallback(kButtonMsg), static_cast<unsigned short>(w),
                               static_cast<unsigned short>(UifStd::instance().getRowHeight()));
        buttons_.push_back(createWidget<PushButton>(b, UserBottomLeft(0, 0)));
        tabOrder().addTabStop(*buttons_.back());
    }
    if (!buttons_.empty()) buttons_.front()->setDefault(true);
    layoutButtons();
}

void Message::layoutButtons() {
    if (buttons_.empty()) return;
    const UifStd& u = UifStd::instance();
    const int gap = u.getWidgetGap();
    int row = 0;
    for (PushButton* b : buttons_) row += b->width();
    row += gap * static_cast<int>(buttons_.size() - 1);
    int x = std::max(0, (getUserArea().width() - row) / 2);
    for (PushButton* b : buttons_) {
        setWidgetPos(b, UserBottomLeft(x, u.getWidgetGap()));
        x += b->width() + gap;
    }
}

void Message::resize(double width, double height) {
    StandardPanel::resize(width, height);
    layoutButtons();
}

int Message::calcButtonWidth(const std::vector<UIString>& labels) {
    int w = 4 * UifStd::instance().getRowHeight();
    for (const UIString& l : labels) w = std::max(w, Button::calcWidth(l));
    return w;
}

Message::Analysis Message::analyse(const UIString& text, int width) {
    Analysis a;
    const LightweightString<wchar_t> s = text.getString();
    Glib::WordWrappingTextRenderer wrap(s, UifStd::instance().getDefaultFont(), std::max(1, width));
    a.lines = wrap.lines();
    a.height = static_cast<int>(a.lines.size()) * lineHeight();
    return a;
}

int Message::calcTextWidth(const UIString& title, int buttonsWidth) {
    const UifStd& u = UifStd::instance();
    int w = std::max(buttonsWidth, 18 * u.getRowHeight());
    // A long title widens the panel rather than being cut.
    const int titleW = Glib::measureText(title.getString(), u.getTitleFont()).x + 4 * u.getRowGap();
    return std::max(w, titleW - 2 * u.getTextIndent());
}

XY<int> Message::calcSize(const UIString& title, const UIString& text, int buttonsWidth) {
    const int textW = calcTextWidth(title, buttonsWidth);
    const Analysis a = analyse(text, textW);
    const XY<int> user(textW + 2 * UifStd::instance().getTextIndent(), a.height + marginsHeight());
    return calcPanelSize(user, kTitleBar, getDefaultBorder());
}

int Message::textIndent() const { return UifStd::instance().getTextIndent(); }

BoxInt Message::textBox() const {
    const UifStd& u = UifStd::instance();
    const BoxInt ua = getUserArea();
    BoxInt b(ua.x1 + textIndent(), ua.y1 + u.getRowHeight() + 2 * u.getWidgetGap(), ua.x2 - u.getTextIndent(), ua.y2 - 2 * u.getIndentWidth());
    if (b.x2 < b.x1) b.x2 = b.x1;
    if (b.y2 < b.y1) b.y2 = b.y1;
    return b;
}

PushButton* Message::getButton(int index) const { return index >= 0 && index < numButtons() ? buttons_[index] : nullptr; }

void Message::press(int index) {
    if (closing_) return;
    close();
    if (index < 0 || index >= static_cast<int>(callbacks_.size())) return;
    fireCallback(this, callbacks_[index], EventHandler::valid(client_, clientStamp_) ? client_ : nullptr);
}

void Message::close() {
    if (closing_) return;
    closing_ = true;
    setVisible(false);
    GlobManager::instance().removeModalGlob(this);
    GlobManager::instance().requestDeletion(this);
}

void Message::drawBackground() {
    StandardPanel::drawBackground();
    const BoxInt box = textBox();
    const LightweightString<wchar_t> s = text_.getString();
    if (box.isEmpty() || s.empty()) return;
    Glib::WordWrappingTextRenderer(s, UifStd::instance().getDefaultFont(), box.width()).render(canvas(), box, getPalette().text(), lineHeight());
}

int Message::handleKeyboardEvent(int keyCode) {
    switch (Keys::plain(keyCode)) {
    case Keys::Return:
    case Keys::KeypadEnter: press(0); return 1;
    case Keys::Escape: close(); return 1;
    default: return 0;
    }
}

int Message::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (message == kButtonMsg) {
        for (int i = 0; i < numButtons(); ++i)
            if (buttons_[i] == sender) {
                press(i);
                return 1;
            }
        return 1;
    }
    return StandardPanel::handleMessageEvent(message, sender);
}

void Message::show(Message* m) {
    if (!m) return;
    GlobManager& gm = GlobManager::instance();
    const Screen& screen = gm.screen();
    m->setupRootPos({std::max(0, (screen.width() - m->width()) / 2), std::max(0, (screen.height() - m->height()) / 2)});
    gm.realize(m);
    if (m->modal_) gm.addModalGlob(m);
    if (PushButton* b = m->getButton(0)) set_kbd_focus(b);
}

Message* makeMessage(const UIString& text) { return makeMessage(UIString(), text); }

Message* makeMessage(const UIString& title, const UIString& text, const WidgetCallback& onOk, EventHandler* client) {
    Message::InitArgs args(title, text);
    args.palette = UifStd::instance().getColourScheme();
    args.callback = onOk;
    args.client = client;
    Drawable::disableRedraws();
    auto* m = new Message(args);
    Message::show(m);
    Drawable::enableRedraws();
    return m;
}
