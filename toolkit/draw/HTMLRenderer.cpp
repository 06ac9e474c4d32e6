#include "HTMLRenderer.h"

#include "HTMLLayout.h"
#include "HTMLParser.h"
#include "TextAdvanceCache.h"
#include "WordWrappingTextRenderer.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace {

using Paragraph = HTMLRenderer::Paragraph;
using Run = HTMLRenderer::Run;

// A paragraph of one style counts its lines from cached advances when its text
// allows: labels are mostly that, and a panel counts hundreds of them.
long linesOf(const Paragraph& p, int width) {
    if (p.runs.size() == 1) {
        const Run& run = p.runs.front();
        if (int n = Glib::TextAdvanceCache::forThisThread().countLines(run.text.view(), width, run.font); n > 0) return n;
    }
    return HTMLLayout::layOut(p, width, Glib::kAlignLeft).numLines();
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
    HTMLLayout layout(paragraphs, box.width(), alignment.horizontal);
    layout.render(canvas, box, firstRowTop(box, layout.numLines() * rowHeight, alignment.vertical), rowHeight);
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
