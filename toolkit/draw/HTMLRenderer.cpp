#include "HTMLRenderer.h"

#include "PangoSupport.h"
#include "HTMLParser.h"
#include "TextAdvanceCache.h"
#include "WordWrappingTextRenderer.h"

#include <algorithm>
#include <cmath>
#include <string>


namespace {

using Paragraph = HTMLRenderer::Paragraph;
using Run = HTMLRenderer::Run;

guint16 pangoChannel(double v) { return static_cast<guint16>(std::lround(std::clamp(v, 0.0, 1.0) * 65535.0)); }

void addAttribute(PangoAttrList* list, PangoAttribute* a, std::size_t start, std::size_t end) {
    a->start_index = static_cast<guint>(start);
    a->end_index = static_cast<guint>(end);
    pango_attr_list_insert(list, a);
}

void addRunAttributes(PangoAttrList* list, const Run& run, std::size_t start, std::size_t end) {
    PangoFontDescription* d = Glib::makePangoFont(run.font);
    addAttribute(list, pango_attr_font_desc_new(d), start, end);
    pango_font_description_free(d);
    const Colour& c = run.colour;
    addAttribute(list, pango_attr_foreground_new(pangoChannel(c.red()), pangoChannel(c.green()), pangoChannel(c.blue())), start, end);
    // Pango reads an alpha of 0 as "not set", so fully clear text keeps the lowest alpha instead.
    if (c.alpha() < 1.0) addAttribute(list, pango_attr_foreground_alpha_new(std::max<guint16>(1, pangoChannel(c.alpha()))), start, end);
    if (run.underline) addAttribute(list, pango_attr_underline_new(PANGO_UNDERLINE_SINGLE), start, end);
}

Glib::WordWrappingTextRenderer layoutOf(const Paragraph& p, int width, int defaultAlign) {
    PangoLayout* layout = Glib::WordWrappingTextRenderer::createLayout(width, p.align == Glib::kAlignDefault ? defaultAlign : p.align);
    PangoFontDescription* base = Glib::makePangoFont(Glib::getDefaultFont());
    pango_layout_set_font_description(layout, base);
    pango_font_description_free(base);
    std::string text;
    PangoAttrList* attributes = pango_attr_list_new();
    for (const Run& run : p.runs) {
        std::size_t start = text.size();
        text += Glib::WordWrappingTextRenderer::layoutText(run.text).view();
        if (text.size() > start) addRunAttributes(attributes, run, start, text.size());
    }
    pango_layout_set_text(layout, text.c_str(), static_cast<int>(text.size()));
    pango_layout_set_attributes(layout, attributes);
    pango_attr_list_unref(attributes);
    return Glib::WordWrappingTextRenderer(layout);
}

// A paragraph of one style counts its lines from cached advances when its text
// allows: labels are mostly that, and a panel counts hundreds of them.
long linesOf(const Paragraph& p, int width) {
    if (p.runs.size() == 1) {
        const Run& run = p.runs.front();
        if (int n = Glib::TextAdvanceCache::forThisThread().countLines(run.text.view(), width, run.font); n > 0) return n;
    }
    return layoutOf(p, width, Glib::kAlignLeft).numLines();
}

// The y of the first row's top edge when the rows take `height` pixels in all.
int firstRowTop(const BoxInt& box, long height, Glib::eVerticalAlign vertical) {
    long spare = box.height() - height;
    if (spare <= 0 || vertical == Glib::kAlignTop) return box.y2;
    if (vertical == Glib::kAlignBottom) return box.y2 - static_cast<int>(spare);
    return box.y2 - static_cast<int>(spare / 2);
}

} // namespace

LightweightString<wchar_t> HTMLRenderer::Paragraph::text() const {
    LightweightString<wchar_t> all;
    for (const Run& r : runs) all += r.text;
    return all;
}

bool HTMLRenderer::isHTML(const LightweightString<wchar_t>& text) { return HTMLParser::containsKnownTag(text.view()); }

LightweightVector<HTMLRenderer::Paragraph> HTMLRenderer::parse(const LightweightString<wchar_t>& text, const Palette& palette) {
    HTMLParser parser(palette);
    return isHTML(text) ? parser.parseMarkup(text.view()) : parser.parsePlain(text.view());
}

unsigned short HTMLRenderer::calcNumDisplayLines(const LightweightVector<Paragraph>& paragraphs, unsigned short width) {
    long lines = 0;
    for (const Paragraph& p : paragraphs) lines += linesOf(p, width);
    return static_cast<unsigned short>(std::min(lines, 0xFFFFL));
}

void HTMLRenderer::render(Canvas* canvas, const LightweightVector<Paragraph>& paragraphs, const BoxInt& box, int rowHeight,
                          Glib::TextAlignment alignment) {
    if (!canvas || box.isEmpty() || paragraphs.empty()) return;
    if (rowHeight <= 0) rowHeight = Glib::fontHeight(Glib::getDefaultFont());
    std::vector<Glib::WordWrappingTextRenderer> layouts;
    long lines = 0;
    for (const Paragraph& p : paragraphs) {
        layouts.push_back(layoutOf(p, box.width(), alignment.horizontal));
        lines += layouts.back().numLines();
    }
    long top = firstRowTop(box, lines * rowHeight, alignment.vertical);
    for (const auto& layout : layouts) {
        if (top <= box.y1) break;
        layout.render(canvas, box, static_cast<int>(top), Colour(), rowHeight);
        top -= static_cast<long>(layout.numLines()) * rowHeight;
    }
}

LightweightString<wchar_t> HTMLRenderer::convertToHTML(const LightweightString<wchar_t>& text, int flags) {
    if (text.empty() || isHTML(text)) return text;
    std::wstring out = L"<p>";
    for (std::size_t i = 0; i < text.size(); ++i) {
        wchar_t c = text[i];
        bool lineFeed = c == L'\n' || (c == L'\r' && i + 1 < text.size() && text[i + 1] == L'\n');
        if ((flags & kLineFeedsToBreaks) && lineFeed) {
            if (c == L'\r') ++i;
            out += L"<br>";
        } else if ((flags & kEscapeMarkup) && c == L'&') {
            out += L"&amp;";
        } else if ((flags & kEscapeMarkup) && c == L'<') {
            out += L"&lt;";
        } else if ((flags & kEscapeMarkup) && c == L'>') {
            out += L"&gt;";
        } else if ((flags & kEscapeMarkup) && c == L'"') {
            out += L"&quot;";
        } else {
            out += c;
        }
    }
    out += L"</p>";
    return LightweightString<wchar_t>(out);
}
