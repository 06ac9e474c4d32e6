#include "TextAdvanceCache.h"

#include "GlyphLine.h"

#include "PangoSupport.h"
#include "core/Utf8.h"

#include <algorithm>
#include <array>
#include <limits>

namespace Glib {

namespace {

// Characters 0x20 .. 0x17F: ASCII, Latin-1 and Latin Extended-A.
constexpr wchar_t kFirst = 0x20;
constexpr wchar_t kLast = 0x17F;
constexpr std::size_t kSpan = kLast - kFirst + 1;
constexpr std::int32_t kUnknown = std::numeric_limits<std::int32_t>::min();
constexpr std::int16_t kUnknownPair = std::numeric_limits<std::int16_t>::min();
// How close to the width a line may end before Pango is asked instead: the pair
// model misses shaping across three or more characters (a ligature "ffi").
constexpr std::int64_t kMargin = std::int64_t{2} * PANGO_SCALE;
// As WordWrappingTextRenderer::createLayout.
constexpr int kWidest = 1 << 20;

static_assert(TextAdvanceCache::kUnitsPerPixel == PANGO_SCALE);

std::size_t slot(wchar_t c) { return static_cast<std::size_t>(c - kFirst); }

bool isOpening(wchar_t c) { return c == L'(' || c == L'['; }

// Closing brackets and the separators of numbers never start a line, not even after spaces.
bool isNeverAfterSpace(wchar_t c) { return std::wstring_view(L")].,:;").find(c) != std::wstring_view::npos; }

bool isQuote(wchar_t c) { return c == L'"' || c == L'\''; }

// The end of the unbreakable stretch from `i`: a word, and the spaces and the
// word that follow when the line-breaking rules allow no break between: after
// an opening bracket, before a closing one or a separator, and between a quote
// and an opening bracket.
std::size_t unitEnd(std::wstring_view p, std::size_t i) {
    std::size_t end = std::min(p.find(L' ', i), p.size());
    while (end < p.size()) {
        std::size_t next = p.find_first_not_of(L' ', end);
        if (next == std::wstring_view::npos) break;
        bool glued = isOpening(p[end - 1]) || isNeverAfterSpace(p[next]) || (isQuote(p[end - 1]) && isOpening(p[next]));
        if (!glued) break;
        end = std::min(p.find(L' ', next), p.size());
    }
    return end;
}

// Text whose width is the sum of its characters' advances and its pairs' kerning.
// Faces join "ffi" and "ffl" into one glyph, which no pair accounts for.
bool isPairwise(std::wstring_view text) {
    return std::all_of(text.begin(), text.end(), TextAdvanceCache::isSimple) && text.find(L"ff") == std::wstring_view::npos;
}

} // namespace

class TextAdvanceCache::FontTable {
public:
    explicit FontTable(const FontDesc& f) : font(f), layout_(pango_layout_new(layoutContext())) {
        PangoFontDescription* d = makePangoFont(f);
        pango_layout_set_font_description(layout_, d);
        pango_font_description_free(d);
        advances_.fill(kUnknown);
        heights_.fill(kUnknown);
    }
    ~FontTable() {
        for (const Glyph& g : glyphs_)
            if (g.face) g_object_unref(g.face);
        g_object_unref(layout_);
    }
    FontTable(const FontTable&) = delete;
    FontTable& operator=(const FontTable&) = delete;

    std::int32_t advance(wchar_t c) {
        std::int32_t& a = advances_[slot(c)];
        if (a == kUnknown) {
            PangoRectangle logical = measureRaw(std::wstring_view(&c, 1));
            a = logical.width;
            heights_[slot(c)] = logical.height;
            keepGlyph(glyphs_[slot(c)]);
        }
        return a;
    }
    // The glyph Pango draws `c` with, once advance(c) has been asked.
    struct Glyph {
        PangoGlyph id = PANGO_GLYPH_EMPTY;
        PangoFont* face = nullptr; // null when Pango does not draw it as one plain glyph
        std::int32_t baseline = 0;
    };
    const Glyph& glyph(wchar_t c) {
        advance(c);
        return glyphs_[slot(c)];
    }
    // True when Pango draws the pair as the two glyphs of its characters, not one
    // joined glyph or glyphs moved by shaping; known once kerning(a, b) has been asked.
    bool separate(wchar_t a, wchar_t b) { return joined_.empty() || !joined_[slot(a) * kSpan + slot(b)]; }
    // The line height of the face that draws `c`: a face that Pango falls back to may be taller.
    std::int32_t height(wchar_t c) {
        advance(c);
        return heights_[slot(c)];
    }
    std::int32_t kerning(wchar_t a, wchar_t b) {
        if (pairs_.empty()) pairs_.assign(kSpan * kSpan, kUnknownPair);
        std::int16_t& k = pairs_[slot(a) * kSpan + slot(b)];
        if (k == kUnknownPair) {
            wchar_t both[2] = {a, b};
            std::int32_t raw = measureRaw(std::wstring_view(both, 2)).width - advance(a) - advance(b);
            k = static_cast<std::int16_t>(std::clamp<std::int32_t>(raw, -32767, 32767));
            if (!shapedAsTwo(glyph(a), glyph(b))) {
                if (joined_.empty()) joined_.assign(kSpan * kSpan, 0);
                joined_[slot(a) * kSpan + slot(b)] = 1;
            }
        }
        return k;
    }
    // The width of a run of simple characters, kerning inside it included.
    std::int64_t run(std::wstring_view s) {
        std::int64_t w = 0;
        for (std::size_t i = 0; i < s.size(); ++i) {
            w += advance(s[i]);
            if (i > 0) w += kerning(s[i - 1], s[i]);
        }
        return w;
    }

    FontDesc font;

private:
    PangoRectangle measureRaw(std::wstring_view s) {
        LightweightString<char> utf8 = toUTF8(LightweightString<wchar_t>(s));
        pango_layout_set_text(layout_, utf8.c_str(), static_cast<int>(utf8.size()));
        PangoRectangle logical;
        pango_layout_get_extents(layout_, nullptr, &logical);
        return logical;
    }

    // The glyphs of the layout's one run, when it has exactly one.
    const PangoGlyphString* onlyRun(PangoFont*& face) const {
        PangoLayoutLine* line = pango_layout_get_line_readonly(layout_, 0);
        if (!line || !line->runs || line->runs->next) return nullptr;
        auto* run = static_cast<PangoGlyphItem*>(line->runs->data);
        face = run->item->analysis.font;
        return run->glyphs;
    }
    static bool plain(const PangoGlyphInfo& g) {
        return !(g.glyph & PANGO_GLYPH_UNKNOWN_FLAG) && g.geometry.x_offset == 0 && g.geometry.y_offset == 0;
    }
    // Fills in the glyph of the one character just measured.
    void keepGlyph(Glyph& g) {
        PangoFont* face = nullptr;
        const PangoGlyphString* run = onlyRun(face);
        if (!run || run->num_glyphs != 1 || !plain(run->glyphs[0]) || !face) return;
        g.id = run->glyphs[0].glyph;
        g.face = PANGO_FONT(g_object_ref(face));
        g.baseline = pango_layout_get_baseline(layout_);
    }
    // Whether the pair just measured came out as the two glyphs measured alone.
    bool shapedAsTwo(const Glyph& a, const Glyph& b) const {
        PangoFont* face = nullptr;
        const PangoGlyphString* run = onlyRun(face);
        return run && run->num_glyphs == 2 && face == a.face && face == b.face && plain(run->glyphs[0]) && plain(run->glyphs[1]) &&
               run->glyphs[0].glyph == a.id && run->glyphs[1].glyph == b.id;
    }

    PangoLayout* layout_;
    std::array<Glyph, kSpan> glyphs_{};
    std::vector<std::uint8_t> joined_;
    std::array<std::int32_t, kSpan> advances_;
    std::array<std::int32_t, kSpan> heights_;
    std::vector<std::int16_t> pairs_;
};

TextAdvanceCache& TextAdvanceCache::forThisThread() {
    thread_local TextAdvanceCache cache;
    return cache;
}

TextAdvanceCache::TextAdvanceCache() = default;
TextAdvanceCache::~TextAdvanceCache() = default;

bool TextAdvanceCache::isSimple(wchar_t c) {
    if ((c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9')) return true;
    // Hyphens, slashes and | ! ? { } % $ + \ open breaks of their own, which are not modelled.
    if (std::wstring_view(L" .,:;'\"()[]_#@&*=<>~`^").find(c) != std::wstring_view::npos) return true;
    // Latin letters past ASCII, without the multiplication and division signs.
    return c >= 0xC0 && c <= kLast && c != 0xD7 && c != 0xF7;
}

// The most recently used font first; past kFontsKept the least recently used goes,
// so that a program zooming through many sizes does not keep a table for each.
TextAdvanceCache::FontTable& TextAdvanceCache::tableFor(const FontDesc& font) {
    auto found = std::find_if(tables_.begin(), tables_.end(), [&](const auto& t) { return t->font == font; });
    if (found != tables_.end()) {
        std::rotate(tables_.begin(), found, found + 1);
    } else {
        if (tables_.size() >= kFontsKept) tables_.pop_back();
        tables_.insert(tables_.begin(), std::make_unique<FontTable>(font));
    }
    return *tables_.front();
}

std::optional<std::int64_t> TextAdvanceCache::measure(std::wstring_view text, const FontDesc& font) {
    if (!isPairwise(text)) return std::nullopt;
    return tableFor(font).run(text);
}

std::optional<XY<int>> TextAdvanceCache::measurePixels(std::wstring_view text, const FontDesc& font) {
    if (text.empty() || !isPairwise(text)) return std::nullopt;
    FontTable& table = tableFor(font);
    std::int32_t height = 0;
    for (wchar_t c : text) height = std::max(height, table.height(c));
    return XY<int>(PANGO_PIXELS_CEIL(table.run(text)), PANGO_PIXELS_CEIL(height));
}

bool TextAdvanceCache::glyphLine(std::wstring_view text, const FontDesc& font, GlyphLine& out) {
    if (text.empty() || !isPairwise(text)) return false;
    FontTable& table = tableFor(font);
    const std::int64_t width = table.run(text); // asks every advance and pair first
    PangoFont* face = table.glyph(text.front()).face;
    if (!face) return false;
    out.glyphs.clear();
    std::int64_t x = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const FontTable::Glyph& g = table.glyph(text[i]);
        if (g.face != face || (i > 0 && !table.separate(text[i - 1], text[i]))) return false;
        if (i > 0) x += table.kerning(text[i - 1], text[i]);
        if (g.id != PANGO_GLYPH_EMPTY) out.glyphs.push_back({g.id, static_cast<double>(x) / PANGO_SCALE, 0.0});
        x += table.advance(text[i]);
    }
    out.font = pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(face));
    out.size = XY<int>(PANGO_PIXELS_CEIL(width), PANGO_PIXELS_CEIL(table.height(text.front())));
    out.baseline = static_cast<double>(table.glyph(text.front()).baseline) / PANGO_SCALE;
    return out.font != nullptr;
}

std::optional<int> TextAdvanceCache::countLines(std::wstring_view text, int width, const FontDesc& font) {
    for (wchar_t c : text)
        if (c != L'\n' && !isSimple(c)) return std::nullopt;
    std::int64_t limit = width > 0 ? std::int64_t(std::min(width, kWidest)) * PANGO_SCALE : -1;
    FontTable& table = tableFor(font);
    int lines = 0;
    // Pango makes a line of every paragraph, the empty ones too.
    for (std::size_t start = 0;;) {
        std::size_t end = std::min(text.find(L'\n', start), text.size());
        int n = limit < 0 ? 1 : countParagraph(text.substr(start, end - start), limit, table);
        if (n == 0) return std::nullopt;
        lines += n;
        if (end == text.size()) return lines;
        start = end + 1;
    }
}

// Greedy breaking at spaces, as Pango does for such text: a word goes to the next
// line when it does not fit, and of the spaces at a break only the last hangs
// past the width; the others count. The answer is 0 when a decision lies within
// the margin, a word alone is too wide, or spaces end the paragraph, where Pango's
// choice is not modelled.
int TextAdvanceCache::countParagraph(std::wstring_view p, std::int64_t width, FontTable& table) {
    auto tooClose = [width](std::int64_t w) { return w > width - kMargin && w < width + kMargin; };
    std::size_t firstWord = p.find_first_not_of(L' ');
    if (firstWord == std::wstring_view::npos) return 1;
    if (p.size() - p.find_last_not_of(L' ') > 2) return 0;
    int lines = 1;
    std::int64_t lineWidth = 0; // to the end of the last word on the line
    // Leading spaces belong to the first line and count in its width.
    std::int64_t pending = table.run(p.substr(0, firstWord));
    for (std::size_t i = firstWord; i < p.size();) {
        std::size_t wordEnd = unitEnd(p, i);
        std::size_t next = std::min(p.find_first_not_of(L' ', wordEnd), p.size());
        std::wstring_view word = p.substr(i, wordEnd - i);
        std::int64_t wordWidth = table.run(word);
        std::int64_t joined = lineWidth + pending + wordWidth + (pending ? table.kerning(L' ', word.front()) : 0);
        // Were the line to break after this word, all but the last of its spaces.
        std::int64_t after = next - wordEnd > 1 ? table.run(p.substr(wordEnd, next - wordEnd - 1)) + table.kerning(word.back(), L' ') : 0;
        if (tooClose(joined + after) || tooClose(wordWidth + after) || wordWidth + after >= width) return 0;
        bool first = i == firstWord;
        // Leading spaces that push the first word over would make a line of their own.
        if (first && joined + after > width) return 0;
        if (first || joined + after <= width) {
            lineWidth = joined;
        } else {
            ++lines;
            lineWidth = wordWidth;
        }
        pending = wordEnd < next ? table.run(p.substr(wordEnd, next - wordEnd)) + table.kerning(word.back(), L' ') : 0;
        i = next;
    }
    return lines;
}

} // namespace Glib
