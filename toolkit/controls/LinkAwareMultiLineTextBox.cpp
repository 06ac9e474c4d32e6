#include "LinkAwareMultiLineTextBox.h"

#include "draw/CanvasRenderer.h"
#include "draw/HTMLLayout.h"
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

using Link = LinkAwareMultiLineTextBox::Link;
using Paragraph = HTMLRenderer::Paragraph;
using Run = HTMLRenderer::Run;

bool isWebAddress(const LightweightString<wchar_t>& href) {
    std::vector<Link> found = LinkAwareMultiLineTextBox::findLinks(href);
    return found.size() == 1 && found[0].start == 0 && found[0].end == href.size();
}

// Makes a run start at character `at` of the paragraph.
void splitRunsAt(Paragraph& p, std::size_t at) {
    std::size_t start = 0;
    for (auto r = p.runs.begin(); r != p.runs.end(); ++r) {
        const std::size_t n = r->text.size();
        if (at > start && at < start + n) {
            Run tail = *r;
            tail.text = r->text.substr(at - start);
            r->text.resize(at - start);
            p.runs.insert(r + 1, tail);
            return;
        }
        start += n;
    }
}

// The links of a paragraph: its <a>s to web addresses, and the addresses in its
// text outside them, all underlined in `ink`.
void markLinks(Paragraph& p, const Colour& ink) {
    for (Run& r : p.runs)
        if (!r.link.empty() && !isWebAddress(r.link)) r.link.clear();
    for (const Link& address : LinkAwareMultiLineTextBox::findLinks(p.text())) {
        splitRunsAt(p, address.start);
        splitRunsAt(p, address.end);
        std::size_t at = 0;
        for (Run& r : p.runs) {
            if (at >= address.start && at < address.end && r.link.empty()) r.link = address.url;
            at += r.text.size();
        }
    }
    for (Run& r : p.runs) {
        if (r.link.empty()) continue;
        r.colour = ink;
        r.underline = true;
    }
}

std::vector<Link> linksOf(const LightweightVector<Paragraph>& paragraphs) {
    std::vector<Link> links;
    std::size_t at = 0;
    for (const Paragraph& p : paragraphs) {
        for (const Run& r : p.runs) {
            const std::size_t end = at + r.text.size();
            // An address in several styles is one link.
            bool continues = !links.empty() && links.back().end == at && links.back().url == r.link;
            if (continues)
                links.back().end = end;
            else if (!r.link.empty())
                links.push_back({at, end, r.link});
            at = end;
        }
        ++at; // the line feed between paragraphs
    }
    return links;
}

// Rows of shown mark-up: the default font's, in which the mark-up is parsed.
int markupRowHeight() { return Glib::TextLayout::emptyLineHeight(Glib::getDefaultFont()); }

} // namespace

// Mark-up as shown, made when first painted or asked about and kept until the
// text, the size, the margin or the ink changes.
struct LinkAwareMultiLineTextBox::Markup {
    Colour ink;
    HTMLLayout layout;
    std::vector<Link> links;
};

LinkAwareMultiLineTextBox::LinkAwareMultiLineTextBox(const InitArgs& args) : MultiLineTextBox(args), links_(findLinks(getString())) {}

LinkAwareMultiLineTextBox::~LinkAwareMultiLineTextBox() = default;

bool LinkAwareMultiLineTextBox::showsMarkup() const { return !isEditable() && !isObfuscatedDisplay() && HTMLRenderer::isHTML(getString()); }

const LinkAwareMultiLineTextBox::Markup& LinkAwareMultiLineTextBox::markup() const {
    const Colour ink = isActive() ? getPalette().text() : getPalette().text(kTextDimmed);
    if (markup_ && markup_->ink == ink) return *markup_;
    LightweightVector<Paragraph> paragraphs = HTMLRenderer::parse(getString(), makeTextPalette(ink, getPalette()));
    for (Paragraph& p : paragraphs) markLinks(p, getPalette().subheadingText());
    markup_ = std::make_unique<Markup>(Markup{ink, HTMLLayout(paragraphs, wrapWidth()), linksOf(paragraphs)});
    return *markup_;
}

// Lines start at the text area's left, and may reach into the margins as a
// heading taller than its row does.
BoxInt LinkAwareMultiLineTextBox::markupClip() const {
    const BoxInt inside = insideFrame();
    return BoxInt(textArea().x1, inside.y1, inside.x2, inside.y2);
}

const std::vector<LinkAwareMultiLineTextBox::Link>& LinkAwareMultiLineTextBox::getLinks() const { return showsMarkup() ? markup().links : links_; }

int LinkAwareMultiLineTextBox::numDisplayLines() const {
    return showsMarkup() ? static_cast<int>(markup().layout.numLines()) : MultiLineTextBox::numDisplayLines();
}

void LinkAwareMultiLineTextBox::invalidateLayout() {
    markup_.reset();
    MultiLineTextBox::invalidateLayout();
}

// Shown mark-up never scrolls: it has no caret, and a box is sized for its lines.
void LinkAwareMultiLineTextBox::scrollToCaret() {
    if (!showsMarkup()) MultiLineTextBox::scrollToCaret();
}

void LinkAwareMultiLineTextBox::drawText() {
    if (!showsMarkup()) return MultiLineTextBox::drawText();
    markup().layout.render(canvas(), markupClip(), textArea().y2, markupRowHeight());
}

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
    if (isObfuscatedDisplay() || getLinks().empty() || !insideFrame().contains(p)) return nullptr;
    if (showsMarkup()) {
        const BoxInt area = textArea();
        const std::size_t at = markup().layout.indexAt({p.x - area.x1, area.y2 - p.y}, markupRowHeight());
        for (const Link& link : markup().links)
            if (at >= link.start && at < link.end) return &link;
        return nullptr;
    }
    XY<int> at = toLayout(p);
    for (const Link& link : links_)
        for (const Glib::TextLayout::Rect& r : layout().rangeBoxes(link.start, link.end))
            if (at.x >= r.x && at.x < r.x + r.width && at.y >= r.top && at.y < r.top + r.height) return &link;
    return nullptr;
}

bool LinkAwareMultiLineTextBox::opensOnClick(unsigned modifiers) const {
    return isActive() && (!isEditable() || (modifiers & (Modifiers::Control | Modifiers::Cmd)));
}

int LinkAwareMultiLineTextBox::handleMouseEvent(const Event& e) {
    if (mouse_down_event(e) && mouse_left_event(e)) {
        pressed_ = -1;
        const Link* link = opensOnClick(e.modifiers()) ? linkAt(e.pos()) : nullptr;
        if (link) {
            pressed_ = static_cast<int>(link - getLinks().data());
            return 1;
        }
    } else if (mouse_up_event(e) && mouse_left_event(e) && pressed_ >= 0) {
        // Opens only when the button comes up over the link it went down on.
        const Link* link = linkAt(e.pos());
        bool same = link && link - getLinks().data() == pressed_;
        pressed_ = -1;
        if (same) openLink(link->url);
        return 1;
    } else if (pressed_ >= 0 && mouse_event(e)) {
        return 1;
    } else if (mouse_wheel_event(e) && showsMarkup()) {
        return 0;
    }
    return MultiLineTextBox::handleMouseEvent(e);
}

MouseCursorID LinkAwareMultiLineTextBox::contextCursor(const XY<int>& p) const {
    if (linkAt(p) && (!isEditable() || isActive())) return kCursorHand;
    return MultiLineTextBox::contextCursor(p);
}

void LinkAwareMultiLineTextBox::openLink(const LightweightString<wchar_t>& url) { OS()->openWithDefaultApplication(url); }

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
