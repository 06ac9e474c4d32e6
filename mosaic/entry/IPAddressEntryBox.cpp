#include "IPAddressEntryBox.h"

#include "CustomTextBox.h"
#include "core/KeyCodes.h"
#include "core/WStringFromInteger.h"
#include "draw/CanvasRenderer.h"
#include "draw/FontDesc.h"
#include "draw/UifStd.h"
#include "glob/Messaging.h"
#include "moveFocusAmong.h"

namespace {

constexpr unsigned long kOctetDigits = 3, kPortDigits = 5;
const wchar_t* const kWidestOctet = L"999";
const wchar_t* const kWidestPort = L"12345";

} // namespace

IPAddressEntryBox::IPAddressEntryBox(const InitArgs& args) : StandardPanel(args) {
    const int widgetGap = UifStd::instance().getWidgetGap();
    const std::size_t count = args.withPort ? kOctets + 1 : kOctets;
    for (std::size_t i = 0; i < count; ++i) {
        const bool port = i == kOctets;
        TextBox::InitArgs boxArgs(UIString(), calcBoxWidth(port ? kWidestPort : kWidestOctet), static_cast<unsigned short>(height()));
        const WidgetPosition where = i == 0 ? BottomLeft(widgetGap, 0) : RightOf(gap(), boxes_.back());
        auto* box = createWidget<CustomTextBox>(boxArgs, where);
        box->setName(LightweightString<char>(port ? "port" : ("octet" + std::to_string(i + 1)).c_str()));
        box->setCharacters(L"0123456789", TextBoxBase::kOnlyCharacters);
        box->requestCallback(kReturnPressedMsg, this, TextBoxBase::kReturnPressed);
        box->setAlignment(Glib::TextAlignment(0, 1));
        box->setEditable(true);
        box->setSizeLimit(port ? kPortDigits : kOctetDigits);
        boxes_.push_back(box);
    }
    setURI(args.address);
}

int IPAddressEntryBox::gap() { return UifStd::instance().getIndentWidth(); }

unsigned short IPAddressEntryBox::calcBoxWidth(const LightweightString<wchar_t>& text) {
    return static_cast<unsigned short>(measureText(text, UifStd::instance().getDefaultFont()).x + 2 * UifStd::instance().getWidgetGap());
}

unsigned short IPAddressEntryBox::calcWidth(bool withPort) {
    int w = 2 * UifStd::instance().getWidgetGap() + 4 * calcBoxWidth(kWidestOctet) + 3 * gap();
    if (withPort) w += calcBoxWidth(kWidestPort) + gap();
    return static_cast<unsigned short>(w);
}

LightweightString<wchar_t> IPAddressEntryBox::getURI() const {
    LightweightString<wchar_t> uri;
    for (std::size_t i = 0; i < kOctets && i < boxes_.size(); ++i) {
        uri += boxes_[i]->getString();
        if (i + 1 < kOctets && !uri.empty()) uri += L'.';
    }
    if (boxes_.size() <= kOctets) return uri;
    uri += L':';
    uri += boxes_[kOctets]->getString();
    return uri;
}

bool IPAddressEntryBox::setURI(const LightweightString<wchar_t>& text) {
    IPAddress address;
    if (!address.fromString(text)) return false;
    setURI(address);
    return true;
}

void IPAddressEntryBox::setURI(const IPAddress& address) {
    for (std::size_t i = 0; i < kOctets && i < boxes_.size(); ++i)
        boxes_[i]->setString(Zn::WStringFromInteger(address.getPart(static_cast<unsigned char>(i))));
    if (boxes_.size() > kOctets) boxes_[kOctets]->setString(Zn::WStringFromInteger(address.port));
}

void IPAddressEntryBox::setActive(bool active, eRedrawFlag flag) {
    for (CustomTextBox* b : boxes_) b->setActive(active, kNoRedraw);
    StandardPanel::setActive(active, flag);
}

void IPAddressEntryBox::setPalette(const Palette& palette) {
    StandardPanel::setPalette(palette);
    for (CustomTextBox* b : boxes_) b->setPalette(palette);
}

void IPAddressEntryBox::getTabOrderables(std::vector<TabOrderable*>& stops) { stops.insert(stops.end(), boxes_.begin(), boxes_.end()); }

std::vector<TabOrderable*> IPAddressEntryBox::getTabStops() {
    std::vector<TabOrderable*> stops;
    getTabOrderables(stops);
    return stops;
}

std::size_t IPAddressEntryBox::indexOf(const Glob* g) const {
    for (std::size_t i = 0; i < boxes_.size(); ++i)
        if (boxes_[i] == g) return i;
    return std::string::npos;
}

void IPAddressEntryBox::moveInto(std::size_t index, std::size_t caret) {
    CustomTextBox* b = boxes_[index];
    b->allowHighlightAll(false);
    b->claimKbdFocus();
    b->allowHighlightAll(true);
    b->setCursorPosition(std::min(caret, b->getString().size()));
}

void IPAddressEntryBox::pasteFromClipboard(const Glob* sender) {
    const std::size_t from = indexOf(sender);
    if (from == std::string::npos) return;
    IPAddress address;
    if (!address.fromString(boxes_[from]->clipboardText())) return;
    setURI(address);
    redraw();
}

int IPAddressEntryBox::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (message == CustomTextBox::kNextMsg || message == CustomTextBox::kPrevMsg) {
        const std::size_t i = indexOf(sender);
        const bool next = message == CustomTextBox::kNextMsg;
        if (i == std::string::npos) return 1;
        if (next && i + 1 < boxes_.size()) moveInto(i + 1, 0);
        if (!next && i > 0) moveInto(i - 1, boxes_[i - 1]->getString().size());
        return 1;
    }
    if (message == kTabNextMsg) return (tabOrder().incrementTabStop(), 1);
    if (message == kTabPrevMsg) return (tabOrder().decrementTabStop(), 1);
    if (message == CustomTextBox::kPasteMsg) {
        pasteFromClipboard(sender);
        return 1;
    }
    return StandardPanel::handleMessageEvent(message, sender);
}

int IPAddressEntryBox::handleKeyboardEvent(int keyCode) {
    if (Keys::plain(keyCode) != Keys::Tab) return StandardPanel::handleKeyboardEvent(keyCode);
    return moveFocusAmong(getTabStops(), Keys::modifiersOf(keyCode) & Modifiers::Shift) ? 1 : 0;
}

void IPAddressEntryBox::drawBackground() {
    StandardPanel::drawBackground();
    if (boxes_.size() < kOctets) return;
    CanvasRenderer r(canvas());
    const Glib::FontDesc font = UifStd::instance().getDefaultFont();
    const int side = std::max(2, gap() / 2);
    const int lineTop = (height() + fontHeight(font)) / 2;
    const int baseline = lineTop - fontAscent(font);
    const Colour ink = getPalette().text(0);
    auto square = [&](int centreX, int bottom) {
        r.render(Glib::RectDescription(BoxInt(centreX - side / 2, bottom, centreX - side / 2 + side, bottom + side), ink));
    };
    for (std::size_t i = 0; i + 1 < boxes_.size(); ++i) {
        const int centreX = (boxes_[i]->box().x2 + boxes_[i + 1]->box().x1) / 2;
        if (i + 1 < kOctets) {
            square(centreX, baseline);
        } else {
            square(centreX, baseline);
            square(centreX, baseline + 2 * side);
        }
    }
}
