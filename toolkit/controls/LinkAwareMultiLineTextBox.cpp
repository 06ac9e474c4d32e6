#include "LinkAwareMultiLineTextBox.h"

#include "draw/CanvasRenderer.h"
#include "draw/HTMLRenderer.h"
#include "platform/OS.h"

#include <algorithm>
#include <cwchar>
#include <cwctype>

namespace {

bool startsWithNoCase(const LightweightString<wchar_t>& text, std::size_t at, const wchar_t* prefix) {
    for (std::size_t k = 0; prefix[k]; ++k)
        if (std::towlower(static_cast<wint_t>(text[at + k])) != static_cast<wint_t>(prefix[k])) return false;
    return true;
}

bool endsAddress(wchar_t c) { return c <= 32 || c == 127 || c == L'<' || c == L'>' || c == L'"' || c == 0x2028 || c == 0x2029 || c == 0x85; }

} // namespace

LinkAwareMultiLineTextBox::LinkAwareMultiLineTextBox(const InitArgs& args) : MultiLineTextBox(args), links_(findLinks(getString())) {}

std::vector<LinkAwareMultiLineTextBox::Link> LinkAwareMultiLineTextBox::findLinks(const LightweightString<wchar_t>& text) {
    std::vector<Link> links;
    std::size_t n = text.size();
    for (std::size_t i = 0; i < n; ++i) {
        if (text[i] != L'h' && text[i] != L'H') continue;
        // Inside a word ("xhttp://") is not the start of an address.
        if (i > 0 && std::iswalnum(static_cast<wint_t>(text[i - 1]))) continue;
        std::size_t scheme = startsWithNoCase(text, i, L"https://") ? 8 : startsWithNoCase(text, i, L"http://") ? 7 : 0;
        if (scheme == 0) continue;
        std::size_t end = i + scheme;
        int open = 0;
        while (end < n && !endsAddress(text[end])) ++end;
        for (std::size_t k = i; k < end; ++k) {
            if (text[k] == L'(' || text[k] == L'[') ++open;
            if (text[k] == L')' || text[k] == L']') --open;
        }
        while (end > i + scheme) {
            wchar_t last = text[end - 1];
            bool closing = (last == L')' || last == L']') && open < 0;
            if (!closing && !std::wcschr(L".,;:!?'", last)) break;
            if (closing) ++open;
            --end;
        }
        if (end == i + scheme) continue;
        links.push_back({i, end, text.substr(i, end - i)});
        i = end - 1;
    }
    return links;
}

void LinkAwareMultiLineTextBox::setString(const LightweightString<wchar_t>& text, eRedrawFlag flag) {
    MultiLineTextBox::setString(text, flag);
    links_ = findLinks(getString());
}

void LinkAwareMultiLineTextBox::textEdited() {
    links_ = findLinks(getString());
    pressed_ = -1;
}

const LinkAwareMultiLineTextBox::Link* LinkAwareMultiLineTextBox::linkAt(XY<int> p) const {
    // The links' places are those of the plain text, which mark-up does not show.
    if (isObfuscatedDisplay() || links_.empty() || !insideFrame().contains(p) || showsMarkup()) return nullptr;
    XY<int> at = toLayout(p);
    for (const Link& link : links_)
        for (const Glib::TextLayout::Rect& r : layout().rangeBoxes(link.start, link.end))
            if (at.x >= r.x && at.x < r.x + r.width && at.y >= r.top && at.y < r.top + r.height) return &link;
    return nullptr;
}

bool LinkAwareMultiLineTextBox::opensOnClick(unsigned modifiers) const {
    return isActive() && (!isEditable() || (modifiers & (Modifiers::Control | Modifiers::Meta)));
}

int LinkAwareMultiLineTextBox::handleMouseEvent(const Event& e) {
    if (mouse_down_event(e) && mouse_left_event(e)) {
        pressed_ = -1;
        const Link* link = opensOnClick(e.modifiers()) ? linkAt(e.pos()) : nullptr;
        if (link) {
            pressed_ = static_cast<int>(link - links_.data());
            return 1;
        }
    } else if (mouse_up_event(e) && mouse_left_event(e) && pressed_ >= 0) {
        // Opens only when the button comes up over the link it went down on.
        const Link* link = linkAt(e.pos());
        bool same = link && link - links_.data() == pressed_;
        pressed_ = -1;
        if (same) openLink(link->url);
        return 1;
    } else if (pressed_ >= 0 && mouse_event(e)) {
        return 1;
    }
    return MultiLineTextBox::handleMouseEvent(e);
}

MouseCursorID LinkAwareMultiLineTextBox::contextCursor(const XY<int>& p) const {
    if (linkAt(p) && (!isEditable() || isActive())) return kCursorHand;
    return MultiLineTextBox::contextCursor(p);
}

void LinkAwareMultiLineTextBox::openLink(const LightweightString<wchar_t>& url) { OS()->openWithDefaultApplication(url); }

bool LinkAwareMultiLineTextBox::showsMarkup() const { return !isEditable() && HTMLRenderer::isHTML(getString()); }

void LinkAwareMultiLineTextBox::drawText() {
    if (!showsMarkup()) {
        MultiLineTextBox::drawText();
        return;
    }
    HTMLRenderer::render(canvas(), HTMLRenderer::parse(getString(), getPalette()), textArea(), Glib::TextLayout::emptyLineHeight(getFont()));
}

void LinkAwareMultiLineTextBox::decorateText(const BoxInt& clip) {
    if (isObfuscatedDisplay() || links_.empty()) return;
    const Glib::TextLayout& l = layout();
    XY<int> o = textOrigin();
    Colour ink = getPalette().subheadingText();
    CanvasRenderer r(canvas());
    int ascent = Glib::fontAscent(getFont());
    for (const Link& link : links_) {
        for (const Glib::TextLayout::Rect& box : l.rangeBoxes(link.start, link.end)) {
            BoxInt area = layoutBox(box);
            area.clip(clip);
            l.render(canvas(), o.x, o.y, area, ink);
            // The underline: one row below the baseline.
            BoxInt line = layoutBox({box.x, box.top + ascent + 1, box.width, 1});
            line.clip(clip);
            r.render(Glib::RectDescription(line, ink));
        }
    }
}
