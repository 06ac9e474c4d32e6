#include "TextLayout.h"

#include "Canvas.h"
#include "PangoSupport.h"
#include "ShapedTextCache.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>
#include <mutex>
#include <string>
#include <tuple>
#include <utility>

namespace {

// Appends one character as UTF-8 and returns how many bytes it took. What Pango
// would refuse (NUL, surrogates, values past U+10FFFF) becomes U+FFFD, always one
// character for one, so that indices of the wide string and of the layout agree.
int appendUtf8(unsigned cp, std::string& out) {
    if (cp == 0 || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) cp = 0xFFFD;
    if (cp < 0x80) {
        out += static_cast<char>(cp);
        return 1;
    }
    if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
        return 2;
    }
    if (cp < 0x10000) {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
        return 3;
    }
    out += static_cast<char>(0xF0 | (cp >> 18));
    out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
    return 4;
}

int toPixels(int pangoUnits) { return static_cast<int>(std::lround(pangoUnits / double(PANGO_SCALE))); }

// Pango units overflow an int past 2,097,151 pixels; positions are held inside that.
int toPango(int pixels) {
    constexpr int kFarthest = (1 << 21) - 1;
    return std::clamp(pixels, -kFarthest, kFarthest) * PANGO_SCALE;
}

} // namespace

namespace Glib {

TextLayout::TextLayout() : TextLayout(LightweightString<wchar_t>(), FontDesc()) {}

int TextLayout::emptyLineHeight(const FontDesc& font) {
    static std::mutex lock;
    static std::map<std::tuple<std::string, int, unsigned>, int> heights;
    const FontDesc f = font.resolved();
    const auto key = std::make_tuple(f.name.str(), f.size, f.style);
    {
        std::lock_guard<std::mutex> g(lock);
        if (auto it = heights.find(key); it != heights.end()) return it->second;
    }
    const int h = TextLayout({}, f).height();
    std::lock_guard<std::mutex> g(lock);
    return heights.emplace(key, h).first->second;
}

TextLayout::TextLayout(const LightweightString<wchar_t>& text, const FontDesc& font, int wrapWidth) : layout_(pango_layout_new(layoutContext())) {
    PangoFontDescription* d = makePangoFont(font);
    pango_layout_set_font_description(layout_, d);
    pango_font_description_free(d);
    if (wrapWidth > 0) {
        pango_layout_set_wrap(layout_, PANGO_WRAP_WORD_CHAR);
        pango_layout_set_width(layout_, toPango(wrapWidth));
    } else {
        pango_layout_set_single_paragraph_mode(layout_, TRUE);
    }

    std::string utf8;
    utf8.reserve(text.size());
    bytes_.reserve(text.size() + 1);
    int at = 0;
    for (wchar_t c : text) {
        bytes_.push_back(at);
        at += appendUtf8(static_cast<unsigned>(c), utf8);
    }
    bytes_.push_back(at);
    pango_layout_set_text(layout_, utf8.data(), static_cast<int>(utf8.size()));

    int nAttrs = 0;
    const PangoLogAttr* attrs = pango_layout_get_log_attrs_readonly(layout_, &nAttrs);
    stops_.assign(bytes_.size(), true);
    if (attrs && static_cast<std::size_t>(nAttrs) == bytes_.size())
        for (std::size_t i = 0; i < bytes_.size(); ++i) stops_[i] = attrs[i].is_cursor_position;
    stops_.front() = stops_.back() = true;

    PangoLayoutIter* it = pango_layout_get_iter(layout_);
    do {
        const PangoLayoutLine* line = pango_layout_iter_get_line_readonly(it);
        PangoRectangle logical;
        pango_layout_iter_get_line_extents(it, nullptr, &logical);
        Line l;
        l.startByte = line->start_index;
        l.endByte = line->start_index + line->length;
        l.top = toPixels(logical.y);
        l.height = std::max(1, toPixels(logical.y + logical.height) - l.top);
        lines_.push_back(l);
    } while (pango_layout_iter_next_line(it));
    pango_layout_iter_free(it);
}

TextLayout::~TextLayout() {
    if (layout_) g_object_unref(layout_);
    if (mask_) cairo_surface_destroy(mask_);
}

TextLayout::TextLayout(TextLayout&& other) noexcept
    : layout_(std::exchange(other.layout_, nullptr)), bytes_(std::move(other.bytes_)), stops_(std::move(other.stops_)),
      lines_(std::move(other.lines_)), mask_(std::exchange(other.mask_, nullptr)), maskOrigin_(other.maskOrigin_) {}

TextLayout& TextLayout::operator=(TextLayout&& other) noexcept {
    std::swap(layout_, other.layout_);
    std::swap(bytes_, other.bytes_);
    std::swap(stops_, other.stops_);
    std::swap(lines_, other.lines_);
    std::swap(mask_, other.mask_);
    std::swap(maskOrigin_, other.maskOrigin_);
    return *this;
}

int TextLayout::byteOf(std::size_t index) const { return bytes_[std::min(index, length())]; }

std::size_t TextLayout::indexOfByte(int byte) const {
    auto it = std::lower_bound(bytes_.begin(), bytes_.end(), byte);
    if (it == bytes_.end()) return length();
    return static_cast<std::size_t>(it - bytes_.begin());
}

int TextLayout::width() const {
    PangoRectangle logical;
    pango_layout_get_pixel_extents(layout_, nullptr, &logical);
    return std::max(0, logical.width);
}

int TextLayout::height() const { return lines_.back().top + lines_.back().height - lines_.front().top; }

int TextLayout::lineOf(std::size_t index) const {
    int line = 0, x = 0;
    pango_layout_index_to_line_x(layout_, byteOf(index), FALSE, &line, &x);
    return std::clamp(line, 0, numLines() - 1);
}

std::size_t TextLayout::lineStart(int line) const { return indexOfByte(lines_[std::clamp(line, 0, numLines() - 1)].startByte); }

std::size_t TextLayout::lineEnd(int line) const { return indexOfByte(lines_[std::clamp(line, 0, numLines() - 1)].endByte); }

TextLayout::Rect TextLayout::lineBox(int line) const {
    const Line& l = lines_[std::clamp(line, 0, numLines() - 1)];
    return {0, l.top, width(), l.height};
}

TextLayout::Rect TextLayout::caret(std::size_t index) const {
    PangoRectangle strong;
    pango_layout_get_cursor_pos(layout_, byteOf(index), &strong, nullptr);
    Rect r = lineBox(lineOf(index));
    r.x = toPixels(strong.x);
    r.width = 0;
    return r;
}

std::size_t TextLayout::indexAt(XY<int> p) const {
    int y = std::clamp(p.y, lines_.front().top, lines_.back().top + lines_.back().height - 1);
    int byte = 0, trailing = 0;
    pango_layout_xy_to_index(layout_, toPango(p.x), toPango(y), &byte, &trailing);
    std::size_t index = indexOfByte(byte);
    // `trailing` counts the characters of the cluster when the point is past its middle.
    for (int k = 0; k < trailing && index < length(); ++k) index = nextCaretStop(index, 1);
    return std::min(index, length());
}

bool TextLayout::isCaretStop(std::size_t index) const { return index <= length() && stops_[index]; }

std::size_t TextLayout::nextCaretStop(std::size_t index, int direction) const {
    index = std::min(index, length());
    if (direction > 0) {
        while (index < length())
            if (stops_[++index]) break;
    } else if (direction < 0) {
        while (index > 0)
            if (stops_[--index]) break;
    }
    return index;
}

std::vector<TextLayout::Rect> TextLayout::rangeBoxes(std::size_t from, std::size_t to) const {
    std::vector<Rect> boxes;
    if (to < from) std::swap(from, to);
    if (from == to) return boxes;
    int fromByte = byteOf(from), toByte = byteOf(to);
    int n = 0;
    for (GSList* l = pango_layout_get_lines_readonly(layout_); l; l = l->next, ++n) {
        auto* line = static_cast<PangoLayoutLine*>(l->data);
        const Line& box = lines_[std::min(n, numLines() - 1)];
        // A line feed that ends a line lies between this line and the next.
        int lineEndByte = l->next ? static_cast<PangoLayoutLine*>(l->next->data)->start_index : box.endByte;
        if (box.startByte >= toByte) break;
        if (fromByte >= lineEndByte && l->next) continue;
        int* ranges = nullptr;
        int nRanges = 0;
        pango_layout_line_get_x_ranges(line, std::max(fromByte, box.startByte), std::min(toByte, lineEndByte), &ranges, &nRanges);
        bool shown = false;
        for (std::ptrdiff_t k = 0; k < nRanges; ++k) {
            int x1 = toPixels(ranges[2 * k]), x2 = toPixels(ranges[2 * k + 1]);
            if (x2 <= x1) continue;
            boxes.push_back({x1, box.top, x2 - x1, box.height});
            shown = true;
        }
        g_free(ranges);
        // A selected line feed at the end of an empty line still shows a little.
        if (!shown && toByte > box.endByte) boxes.push_back({0, box.top, std::max(2, box.height / 3), box.height});
    }
    return boxes;
}

void TextLayout::render(Canvas* canvas, int left, int top, const BoxInt& clip, const Colour& colour) const {
    if (!canvas || !layout_ || clip.isEmpty()) return;
    cairo_t* cr = canvas->context();
    XY<int> o = canvas->origin();
    cairo_save(cr);
    cairo_rectangle(cr, o.x + clip.x1, canvas->cairoY(o.y + clip.y2), clip.width(), clip.height());
    cairo_clip(cr);
    cairo_set_source_rgba(cr, colour.red(), colour.green(), colour.blue(), colour.alpha());
    const int x = o.x + left, y = static_cast<int>(canvas->cairoY(o.y + top));
    // Boxes repaint the same text over and over: one composite through its kept
    // coverage paints what showing every glyph again would.
    if (!mask_) mask_ = ShapedTextCache::makeMask(layout_, maskOrigin_).release();
    if (mask_) {
        cairo_mask_surface(cr, mask_, x + maskOrigin_.x, y + maskOrigin_.y);
    } else {
        cairo_move_to(cr, x, y);
        pango_cairo_show_layout(cr, layout_);
    }
    cairo_restore(cr);
    BoxInt painted = clip.translated(o.x, o.y);
    painted.clip(canvas->clip());
    canvas->addModifiedArea(painted);
}

} // namespace Glib
