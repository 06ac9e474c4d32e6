#include "core/Utf8.h"
#include "draw/Canvas.h"
#include "draw/CanvasRenderer.h"
#include "draw/FontDesc.h"
#include "draw/PangoSupport.h"
#include "draw/UifStd.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(Text, MeasuringGrowsWithTheTextAndTheFont) {
    Glib::FontDesc f = Glib::getDefaultFont();
    XY<int> one = Glib::measureText(L"Cut", f);
    XY<int> two = Glib::measureText(L"Cut and paste", f);
    EXPECT_GT(one.x, 0);
    EXPECT_GT(two.x, one.x);
    EXPECT_EQ(one.y, two.y);
    EXPECT_GT(Glib::measureText(L"Cut", f.withSize(f.size * 2)).x, one.x);
    EXPECT_GE(Glib::measureText(L"", f).y, Glib::fontHeight(f)) << "an empty text is still a line high";
    EXPECT_EQ(UifStd::instance().measure(UIString(L"Cut")), one);
}

TEST(Text, AMissingFontFallsBackToAnInstalledFace) {
    Glib::FontDesc missing("No Such Face 3000", 14);
    EXPECT_FALSE(Glib::isFontAvailable(missing.name));
    EXPECT_GT(Glib::measureText(L"Still visible", missing).x, 0);
    EXPECT_TRUE(Glib::isFontAvailable("DejaVu Sans"));
    auto fonts = Glib::getAvailableFonts();
    EXPECT_TRUE(std::is_sorted(fonts.begin(), fonts.end()));
}

TEST(Text, DrawnTextStaysInItsBoxAndFollowsAlignment) {
    Canvas c(200, 40);
    CanvasRenderer r(&c);
    r.fill(Colour(0, 0, 0));
    auto inkColumns = [&](int x1, int x2) {
        int n = 0;
        for (int x = x1; x < x2; ++x)
            for (int y = 0; y < 40; ++y)
                if (c.pixel(x, y) != 0xFF000000u) {
                    ++n;
                    break;
                }
        return n;
    };
    r.render(Glib::TextDescription(BoxInt(100, 10, 200, 30), L"Render", Glib::getDefaultFont(), Colour(1, 1, 1), Glib::kAlignRight));
    EXPECT_EQ(inkColumns(0, 100), 0);
    EXPECT_GT(inkColumns(150, 200), 10);
    for (int x = 0; x < 200; ++x) {
        EXPECT_EQ(c.pixel(x, 5), 0xFF000000u) << "below the box at " << x;
        EXPECT_EQ(c.pixel(x, 35), 0xFF000000u) << "above the box at " << x;
    }
    // Text that does not look like UTF-16 or contains odd values is still drawn, not rejected.
    wchar_t odd[] = {L'a', static_cast<wchar_t>(0xD800), L'b', 0};
    r.render(Glib::TextDescription(BoxInt(0, 10, 100, 30), odd, Glib::getDefaultFont(), Colour(1, 1, 1)));
    EXPECT_GT(inkColumns(0, 100), 3);
}

// Plain text is painted from kept glyphs and then from their mask, everything else
// through a Pango layout: all must give the same pixels, kerning, accents and faces
// included.
TEST(Text, PlainTextFromKeptGlyphsPaintsWhatPangoPaints) {
    const Glib::FontDesc base = Glib::getDefaultFont();
    for (const Glib::FontDesc& font : {base, base.withSize(base.size * 2), Glib::FontDesc("DejaVu Serif", 17)}) {
        for (const wchar_t* text : {L"AVATAR To Wa Yo", L"Reel 12, take 3 (final)", L"Ångström café été", L"fit flow office"}) {
            const BoxInt box(3, 2, 397, 58);
            // The first paint draws glyphs, the second the mask kept from them.
            Canvas glyphs(400, 60), mask(400, 60), pango(400, 60);
            for (Canvas* c : {&glyphs, &mask}) {
                CanvasRenderer(c).fill(Colour(0.1, 0.2, 0.3));
                CanvasRenderer(c).render(Glib::TextDescription(box, text, font, Colour(1, 0.9, 0.5)));
            }
            CanvasRenderer(&pango).fill(Colour(0.1, 0.2, 0.3));
            PangoLayout* layout = Glib::makeLayout(toUTF8(LightweightString<wchar_t>(text)), font);
            PangoRectangle logical;
            pango_layout_get_pixel_extents(layout, nullptr, &logical);
            cairo_t* cr = pango.context();
            cairo_rectangle(cr, box.x1, pango.cairoY(box.y2), box.width(), box.height());
            cairo_clip(cr);
            cairo_set_source_rgba(cr, 1, 0.9, 0.5, 1);
            cairo_move_to(cr, box.x1, pango.cairoY(box.y2) + std::floor((box.height() - logical.height) / 2.0));
            pango_cairo_show_layout(cr, layout);
            g_object_unref(layout);
            int differ = 0, ink = 0;
            for (int y = 0; y < 60; ++y)
                for (int x = 0; x < 400; ++x) {
                    differ += glyphs.pixel(x, y) != pango.pixel(x, y) || mask.pixel(x, y) != pango.pixel(x, y);
                    ink += pango.pixel(x, y) != glyphs.pixel(0, 0);
                }
            EXPECT_GT(ink, 100) << toUTF8(LightweightString<wchar_t>(text)).c_str();
            EXPECT_EQ(differ, 0) << toUTF8(LightweightString<wchar_t>(text)).c_str() << " at " << font.size;
        }
    }
}

TEST(Icons, ShippedIconsAreFoundAndOthersAreNot) {
    LightweightString<wchar_t> close = getIconPath(L"close");
    EXPECT_TRUE(close.endsWith(L"/icons/close.png"));
    EXPECT_EQ(getIconPath(L"close.png"), close);
    EXPECT_TRUE(getIconPath(L"no-such-icon").empty());
    EXPECT_TRUE(getIconPath(L"../strings/en.json").empty()) << "names only, no paths";
    EXPECT_TRUE(getIconPath(L"").empty());
}
