#include "draw/TextAdvanceCache.h"
#include "core/Utf8.h"
#include "draw/FontDesc.h"
#include "draw/PangoSupport.h"
#include "draw/WordWrappingTextRenderer.h"

#include <gtest/gtest.h>

#include <random>
#include <thread>

using Glib::TextAdvanceCache;
using Glib::WordWrappingTextRenderer;

namespace {

// Pango's own count: a layout made and measured, with no cache involved.
int pangoLines(const LightweightString<wchar_t>& text, int width, const Glib::FontDesc& font) {
    return WordWrappingTextRenderer(text, font, width).numLines();
}

// Log-like lines: words of the characters the cache models, some long, some
// with kerning pairs (AV, To, Wa) and ligature candidates (fi, ffl).
std::vector<LightweightString<wchar_t>> logLines(int count, unsigned seed) {
    static const wchar_t* const words[] = {L"Render",
                                           L"frame",
                                           L"AVATAR",
                                           L"To",
                                           L"Wait",
                                           L"offline",
                                           L"file",
                                           L"clip_0042.mov",
                                           L"42",
                                           L"(proxy)",
                                           L"done.",
                                           L"r\u00e9sum\u00e9",
                                           L"\u0141\u00f3d\u017a",
                                           L"x",
                                           L"WWWWWWWW",
                                           L"it's",
                                           L"\"quoted\"",
                                           L"a,b;c:d",
                                           L"#7",
                                           L"user@host",
                                           L"[ok]",
                                           L"iiiiiiiiiiiiiiii",
                                           L"Timeline",
                                           L"(",
                                           L")",
                                           L",",
                                           L"'",
                                           L"ffi"};
    std::mt19937 rng(seed);
    std::uniform_int_distribution<std::size_t> pick(0, std::size(words) - 1);
    std::uniform_int_distribution<int> length(1, 14), spaces(1, 3);
    std::vector<LightweightString<wchar_t>> lines;
    for (int i = 0; i < count; ++i) {
        std::wstring line;
        for (int w = length(rng); w > 0; --w) {
            line += words[pick(rng)];
            if (w > 1) line.append(static_cast<std::size_t>(rng() % 8 == 0 ? spaces(rng) : 1), L' ');
        }
        lines.emplace_back(line);
    }
    return lines;
}

// Pango's logical extents in pixels of one line, shaped whole.
XY<int> pangoSize(const LightweightString<wchar_t>& text, const Glib::FontDesc& font) {
    PangoLayout* layout = Glib::makeLayout(toUTF8(text), font);
    PangoRectangle logical;
    pango_layout_get_pixel_extents(layout, nullptr, &logical);
    g_object_unref(layout);
    return {logical.width, logical.height};
}

} // namespace

TEST(TextAdvanceCache, PixelMeasuresAreExactlyPangosForEveryFaceOfTheToolkit) {
    TextAdvanceCache& cache = TextAdvanceCache::forThisThread();
    Glib::FontDesc base = Glib::getDefaultFont();
    std::vector<LightweightString<wchar_t>> texts = logLines(150, 99);
    // Ligature and kerning candidates, alone and in runs of three and more.
    for (const wchar_t* t : {L"ffi", L"ffl", L"fff", L"office", L"AVAVAV", L"T.", L"Wo Yo", L"L'T", L"\u00c6\u0153f", L"x", L" ", L"  a  "})
        texts.emplace_back(t);
    int answered = 0;
    for (Glib::FontDesc font : {base, base.withStyle(Glib::FontDesc::kBold), base.withStyle(Glib::FontDesc::kItalic), base.withSize(9),
                                base.withSize(31), Glib::FontDesc(getDefaultFontName(1), 12, Glib::FontDesc::kMonospace)}) {
        for (const auto& text : texts) {
            XY<int> fast = cache.measurePixels(text.view(), font);
            if (fast.x < 0) continue;
            ++answered;
            XY<int> slow = pangoSize(text, font);
            ASSERT_EQ(fast.x, slow.x) << "\"" << text << "\" size " << font.size << " style " << font.style;
            ASSERT_EQ(fast.y, slow.y) << "\"" << text << "\"";
            EXPECT_EQ(Glib::measureText(text, font), XY<int>(slow.x, std::max(slow.y, Glib::fontHeight(font))));
        }
    }
    // The random lines hold "offline" and "ffi" often; most of the rest stays fast.
    EXPECT_GT(answered, int(texts.size()) * 3);
    EXPECT_EQ(cache.measure(L"", base), 0);
    EXPECT_EQ(cache.measure(L"office", base), -1) << "three letters become one glyph";
    EXPECT_EQ(cache.measurePixels(L"fluid flow", base), pangoSize(L"fluid flow", base)) << "two-letter ligatures are pairs";
    // Text the cache leaves alone, and the empty string, still measure through Pango.
    for (const wchar_t* t : {L"", L"tab\there", L"\u6e32\u67d3", L"a-b"}) {
        EXPECT_EQ(cache.measurePixels(t, base), XY<int>(-1, -1));
        EXPECT_EQ(Glib::measureText(t, base).x, pangoSize(t, base).x);
    }
}

TEST(TextAdvanceCache, CountsAgreeWithPangoWheneverTheCacheAnswers) {
    TextAdvanceCache& cache = TextAdvanceCache::forThisThread();
    for (Glib::FontDesc font :
         {Glib::getDefaultFont(), Glib::getDefaultFont().withStyle(Glib::FontDesc::kBold), Glib::getDefaultFont().withSize(19)}) {
        int answered = 0, asked = 0;
        auto lines = logLines(120, 7);
        for (const auto& more : logLines(120, 1234)) lines.push_back(more);
        for (const auto& line : lines) {
            for (int width = 30; width < 700; width += 23) {
                int fast = cache.countLines(line.view(), width, font);
                // Log panels are hundreds of pixels wide; narrow widths mostly meet words wider than a line.
                if (width >= 200) ++asked;
                if (fast == 0) continue;
                if (width >= 200) ++answered;
                ASSERT_EQ(fast, pangoLines(line, width, font)) << "\"" << line << "\" at " << width << " px, size " << font.size;
            }
        }
        EXPECT_GT(answered, asked * 9 / 10) << answered << " of " << asked << ": "
                                            << "most log text stays on the fast path";
    }
}

TEST(TextAdvanceCache, ParagraphsAndNoWrappingCountLikePango) {
    TextAdvanceCache& cache = TextAdvanceCache::forThisThread();
    Glib::FontDesc font = Glib::getDefaultFont();
    for (const wchar_t* text : {L"a\n\nb", L"a\n", L"\n", L"", L"   ", L"one two\nthree four five six seven eight nine ten"}) {
        for (int width : {0, -5, 80, 400}) {
            int fast = cache.countLines(text, width, font);
            ASSERT_NE(fast, 0) << text;
            EXPECT_EQ(fast, pangoLines(text, width, font)) << "\"" << LightweightString<wchar_t>(text) << "\" at " << width;
        }
    }
    EXPECT_EQ(cache.countLines(L"a\n\nb", 0, font), 3);
    EXPECT_EQ(WordWrappingTextRenderer::calcNumDisplayLines(L"a\n", 500, font), 2);
}

TEST(TextAdvanceCache, OtherScriptsAndBreakingPunctuationGoToPango) {
    TextAdvanceCache& cache = TextAdvanceCache::forThisThread();
    Glib::FontDesc font = Glib::getDefaultFont();
    const wchar_t* const complex[] = {L"\u0645\u0631\u062d\u0628\u0627 \u0628\u0627\u0644\u0639\u0627\u0644\u0645",
                                      L"\u6e32\u67d3\u5b8c\u6210",
                                      L"e\u0301t\u00e9",
                                      L"tab\there",
                                      L"well-known name",
                                      L"/media/clips/a.mov",
                                      L"what? yes! {x} 50% $3 a+b a|b",
                                      L"\u00abquote\u00bb",
                                      L"cr\rlf"};
    for (const wchar_t* text : complex) {
        EXPECT_EQ(cache.countLines(text, 60, font), 0) << LightweightString<wchar_t>(text);
        EXPECT_EQ(cache.measure(text, font), -1);
        EXPECT_EQ(WordWrappingTextRenderer::calcNumDisplayLines(text, 60, font), pangoLines(text, 60, font)) << "the fallback is Pango";
    }
    // An opening bracket keeps the next word on its line, across spaces too.
    for (int width = 40; width < 200; width += 3) {
        if (int fast = cache.countLines(L"Render clip (  proxy ) [ 1080p ] done", width, font)) {
            EXPECT_EQ(fast, pangoLines(L"Render clip (  proxy ) [ 1080p ] done", width, font)) << width;
        }
    }
    // A word too wide for the line is broken inside by Pango; the cache leaves it.
    EXPECT_EQ(cache.countLines(L"Supercalifragilistic", 30, font), 0);
    EXPECT_EQ(WordWrappingTextRenderer::calcNumDisplayLines(L"Supercalifragilistic", 30, font), pangoLines(L"Supercalifragilistic", 30, font));
}

TEST(TextAdvanceCache, EachThreadHasItsOwnCache) {
    Glib::FontDesc font = Glib::getDefaultFont();
    auto lines = logLines(40, 11);
    std::vector<int> counts[2];
    std::vector<std::thread> threads;
    for (int t = 0; t < 2; ++t)
        threads.emplace_back([&, t] {
            for (const auto& l : lines) counts[t].push_back(WordWrappingTextRenderer::calcNumDisplayLines(l, 150, font));
        });
    for (auto& t : threads) t.join();
    EXPECT_EQ(counts[0], counts[1]);
    EXPECT_NE(&TextAdvanceCache::forThisThread(), nullptr);
    for (std::size_t i = 0; i < lines.size(); ++i) EXPECT_EQ(counts[0][i], pangoLines(lines[i], 150, font));
}

TEST(TextAdvanceCache, FontsBeyondThoseKeptAreMeasuredAfreshAndStillRight) {
    TextAdvanceCache& cache = TextAdvanceCache::forThisThread();
    const LightweightString<wchar_t> text = L"Zoom AVA To 42";
    for (int round = 0; round < 2; ++round) {
        for (int size = 8; size < 8 + 2 * int(TextAdvanceCache::kFontsKept); ++size) {
            Glib::FontDesc font = Glib::getDefaultFont().withSize(size);
            ASSERT_EQ(cache.measurePixels(text.view(), font), pangoSize(text, font)) << "size " << size << ", round " << round;
        }
    }
}
