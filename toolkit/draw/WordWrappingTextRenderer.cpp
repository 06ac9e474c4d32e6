#include "WordWrappingTextRenderer.h"

#include "Canvas.h"
#include "PangoSupport.h"
#include "TextAdvanceCache.h"
#include "core/Utf8.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace {

PangoAlignment pangoAlignment(int align) {
    if (align == Glib::kAlignCentreH) return PANGO_ALIGN_CENTER;
    if (align == Glib::kAlignRight) return PANGO_ALIGN_RIGHT;
    return PANGO_ALIGN_LEFT;
}

unsigned short clampCount(int n) { return static_cast<unsigned short>(std::clamp(n, 1, 0xFFFF)); }

// Where and how to paint a layout's lines.
struct RowPlacement {
    int left;       // canvas x of the box's left edge
    double top;     // cairo y of the first row's top
    double clipTop; // cairo y of the box's top
    double clipBottom;
    int rowHeight;
};

void paintLines(cairo_t* cr, PangoLayout* layout, RowPlacement p) {
    PangoLayoutIter* it = pango_layout_get_iter(layout);
    double rowTop = p.top;
    do {
        PangoRectangle logical;
        pango_layout_iter_get_line_extents(it, nullptr, &logical);
        double lineHeight = logical.height / double(PANGO_SCALE);
        double rowHeight = p.rowHeight > 0 ? p.rowHeight : std::ceil(lineHeight);
        if (rowTop >= p.clipBottom) break;
        if (rowTop + rowHeight > p.clipTop) {
            double baseline = (pango_layout_iter_get_baseline(it) - logical.y) / double(PANGO_SCALE);
            double y = rowTop + std::floor((rowHeight - lineHeight) / 2) + baseline;
            cairo_move_to(cr, std::round(p.left + logical.x / double(PANGO_SCALE)), std::round(y));
            pango_cairo_show_layout_line(cr, pango_layout_iter_get_line_readonly(it));
        }
        rowTop += rowHeight;
    } while (pango_layout_iter_next_line(it));
    pango_layout_iter_free(it);
}

} // namespace

namespace Glib {

WordWrappingTextRenderer::WordWrappingTextRenderer(const LightweightString<wchar_t>& text, const FontDesc& font, int width, int align)
    : layout_(createLayout(width, align)) {
    PangoFontDescription* d = makePangoFont(font);
    pango_layout_set_font_description(layout_, d);
    pango_font_description_free(d);
    LightweightString<char> utf8 = layoutText(text);
    pango_layout_set_text(layout_, utf8.c_str(), static_cast<int>(utf8.size()));
}

WordWrappingTextRenderer::WordWrappingTextRenderer(PangoLayout* layout) : layout_(layout) {}

WordWrappingTextRenderer::~WordWrappingTextRenderer() {
    if (layout_) g_object_unref(layout_);
}

WordWrappingTextRenderer::WordWrappingTextRenderer(WordWrappingTextRenderer&& other) noexcept : layout_(std::exchange(other.layout_, nullptr)) {}

WordWrappingTextRenderer& WordWrappingTextRenderer::operator=(WordWrappingTextRenderer&& other) noexcept {
    std::swap(layout_, other.layout_);
    return *this;
}

unsigned short WordWrappingTextRenderer::numLines() const { return layout_ ? clampCount(pango_layout_get_line_count(layout_)) : 1; }

std::vector<LightweightString<wchar_t>> WordWrappingTextRenderer::lines() const {
    std::vector<LightweightString<wchar_t>> result;
    if (!layout_) return result;
    const char* text = pango_layout_get_text(layout_);
    for (GSList* l = pango_layout_get_lines_readonly(layout_); l; l = l->next) {
        auto* line = static_cast<PangoLayoutLine*>(l->data);
        result.push_back(fromUTF8(LightweightString<char>(text + line->start_index, static_cast<std::size_t>(line->length))));
    }
    return result;
}

void WordWrappingTextRenderer::render(Canvas* canvas, const BoxInt& box, const Colour& colour, int rowHeight) const {
    render(canvas, box, box.y2, colour, rowHeight);
}

void WordWrappingTextRenderer::render(Canvas* canvas, const BoxInt& box, int top, const Colour& colour, int rowHeight) const {
    if (!canvas || !layout_ || box.isEmpty()) return;
    cairo_t* cr = canvas->context();
    XY<int> o = canvas->origin();
    double clipTop = canvas->cairoY(o.y + box.y2);
    cairo_save(cr);
    cairo_rectangle(cr, o.x + box.x1, clipTop, box.width(), box.height());
    cairo_clip(cr);
    cairo_set_source_rgba(cr, colour.red(), colour.green(), colour.blue(), colour.alpha());
    paintLines(cr, layout_, {o.x + box.x1, canvas->cairoY(o.y + top), clipTop, clipTop + box.height(), rowHeight});
    cairo_restore(cr);
    BoxInt painted = box.translated(o.x, o.y);
    painted.clip(canvas->clip());
    canvas->addModifiedArea(painted);
}

std::size_t WordWrappingTextRenderer::indexAt(XY<int> p, int rowHeight) const {
    if (!layout_ || p.y < 0) return npos;
    std::size_t found = npos;
    PangoLayoutIter* it = pango_layout_get_iter(layout_);
    double rowTop = 0;
    do {
        PangoRectangle logical;
        pango_layout_iter_get_line_extents(it, nullptr, &logical);
        rowTop += rowHeight > 0 ? rowHeight : std::ceil(logical.height / double(PANGO_SCALE));
        if (p.y >= rowTop) continue;
        const std::int64_t x = std::int64_t(p.x) * PANGO_SCALE - logical.x;
        if (x >= 0 && x < logical.width) {
            int byte = 0, trailing = 0;
            pango_layout_line_x_to_index(pango_layout_iter_get_line_readonly(it), static_cast<int>(x), &byte, &trailing);
            const char* text = pango_layout_get_text(layout_);
            found = static_cast<std::size_t>(g_utf8_pointer_to_offset(text, text + byte));
        }
        break;
    } while (pango_layout_iter_next_line(it));
    pango_layout_iter_free(it);
    return found;
}

unsigned short WordWrappingTextRenderer::calcNumDisplayLines(const LightweightString<wchar_t>& text, int width, const FontDesc& font) {
    // A layout costs tens of microseconds even for a short line, too slow for a log that
    // wraps its rows as fast as they come; plain Latin text is counted from cached advances.
    if (int n = TextAdvanceCache::forThisThread().countLines(text.view(), width, font); n > 0) return clampCount(n);
    return WordWrappingTextRenderer(text, font, width).numLines();
}

void WordWrappingTextRenderer::renderString(Canvas* canvas, const LightweightString<wchar_t>& text, const BoxInt& box, const Colour& colour,
                                            const FontDesc& font, int rowHeight, int align) {
    if (!canvas || box.isEmpty() || text.empty()) return;
    WordWrappingTextRenderer(text, font, box.width(), align).render(canvas, box, colour, rowHeight);
}

PangoLayout* WordWrappingTextRenderer::createLayout(int width, int align) {
    PangoLayout* layout = pango_layout_new(Glib::layoutContext());
    pango_layout_set_wrap(layout, PANGO_WRAP_WORD_CHAR);
    // Far wider than any screen, and still clear of overflow once in Pango units.
    constexpr int kWidest = 1 << 20;
    pango_layout_set_width(layout, width > 0 ? std::min(width, kWidest) * PANGO_SCALE : -1);
    pango_layout_set_alignment(layout, pangoAlignment(align));
    return layout;
}

LightweightString<char> WordWrappingTextRenderer::layoutText(const LightweightString<wchar_t>& text) {
    // Pango stops at a NUL byte and complains about the rest, so NUL goes too.
    if (text.find(wchar_t(0)) == LightweightString<wchar_t>::npos) return toUTF8(text);
    LightweightString<wchar_t> clean = text;
    for (std::size_t i = 0; i < clean.size(); ++i)
        if (clean[i] == 0) clean.set(i, wchar_t(0xFFFD));
    return toUTF8(clean);
}

} // namespace Glib
