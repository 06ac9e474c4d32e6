#include "HTMLLayout.h"

#include "PangoSupport.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace {

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

} // namespace

HTMLLayout::HTMLLayout(const LightweightVector<HTMLRenderer::Paragraph>& paragraphs, int width, int align) {
    std::size_t start = 0;
    for (const HTMLRenderer::Paragraph& p : paragraphs) {
        blocks_.push_back({layOut(p, width, align), start});
        lines_ += blocks_.back().text.numLines();
        start += p.text().size() + 1;
    }
}

void HTMLLayout::render(Canvas* canvas, const BoxInt& box, int top, int rowHeight) const {
    if (rowHeight <= 0) return;
    long rowTop = top;
    for (const Block& b : blocks_) {
        if (rowTop <= box.y1) break;
        b.text.render(canvas, box, static_cast<int>(rowTop), Colour(), rowHeight);
        rowTop -= static_cast<long>(b.text.numLines()) * rowHeight;
    }
}

std::size_t HTMLLayout::indexAt(XY<int> p, int rowHeight) const {
    if (rowHeight <= 0) return npos;
    for (const Block& b : blocks_) {
        const int height = b.text.numLines() * rowHeight;
        if (p.y < height) {
            std::size_t i = b.text.indexAt(p, rowHeight);
            return i == npos ? npos : b.start + i;
        }
        p.y -= height;
    }
    return npos;
}

// Runs become attributes of one layout, not Pango mark-up, so no text is ever
// read as mark-up.
Glib::WordWrappingTextRenderer HTMLLayout::layOut(const HTMLRenderer::Paragraph& paragraph, int width, int align) {
    PangoLayout* layout = Glib::WordWrappingTextRenderer::createLayout(width, paragraph.align == Glib::kAlignDefault ? align : paragraph.align);
    PangoFontDescription* base = Glib::makePangoFont(Glib::getDefaultFont());
    pango_layout_set_font_description(layout, base);
    pango_font_description_free(base);
    std::string text;
    PangoAttrList* attributes = pango_attr_list_new();
    for (const Run& run : paragraph.runs) {
        std::size_t start = text.size();
        text += Glib::WordWrappingTextRenderer::layoutText(run.text).view();
        if (text.size() > start) addRunAttributes(attributes, run, start, text.size());
    }
    pango_layout_set_text(layout, text.c_str(), static_cast<int>(text.size()));
    pango_layout_set_attributes(layout, attributes);
    pango_attr_list_unref(attributes);
    return Glib::WordWrappingTextRenderer(layout);
}
