// Shapes and text painted through the caches that keep their coverage and their
// shaping across paints must look as painting them afresh would.
#include "core/LruCache.h"
#include "core/Utf8.h"
#include "draw/Canvas.h"
#include "draw/CanvasRenderer.h"
#include "draw/PangoSupport.h"
#include "draw/ShapeMaskCache.h"
#include "draw/TextLayout.h"

#include <gtest/gtest.h>

#include <cairo.h>
#include <cmath>
#include <cstdlib>
#include <functional>

namespace {

const Colour kBackground(0.1, 0.2, 0.3), kInk(0.9, 0.7, 0.2), kSeeThrough(0.2, 0.9, 0.4, 0.6);

// The largest difference of any channel of any pixel, and how many pixels differ by more than `slack`.
struct Difference {
    int worst = 0;
    int over = 0;
};

Difference compare(const Canvas& a, const Canvas& b, int slack) {
    Difference d;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            std::uint32_t p = a.pixel(x, y), q = b.pixel(x, y);
            int most = 0;
            for (int shift = 0; shift < 32; shift += 8) most = std::max(most, std::abs(int((p >> shift) & 0xFF) - int((q >> shift) & 0xFF)));
            d.worst = std::max(d.worst, most);
            if (most > slack) ++d.over;
        }
    return d;
}

// The same shape painted by cairo with no cache: a fill, or a stroke of the middle line.
void paintDirectly(Canvas& c, const Colour& colour, const std::function<void(cairo_t*)>& paint) {
    cairo_t* cr = c.context();
    cairo_save(cr);
    cairo_set_source_rgba(cr, colour.red(), colour.green(), colour.blue(), colour.alpha());
    paint(cr);
    cairo_restore(cr);
}

} // namespace

TEST(PaintCache, CachedShapesLookAsShapesPaintedAfreshWould) {
    for (const Colour& ink : {kInk, kSeeThrough}) {
        Canvas cached(200, 120), fresh(200, 120);
        CanvasRenderer(&cached).fill(kBackground);
        CanvasRenderer(&fresh).fill(kBackground);
        CanvasRenderer r(&cached);
        // Each shape twice, the second time from the cache, at other pixel and sub-pixel places.
        for (double shift : {0.0, 37.25, 74.0}) {
            Glib::EllipseDescription thumb({30 + shift, 30.5}, {8, 8}, ink);
            Glib::EllipseDescription ring({30 + shift, 60}, {8, 6}, ink, false);
            ring.lineWidth = 2;
            Glib::RectDescription box(BoxInt(10 + int(shift), 80, 60 + int(shift), 100), ink);
            box.cornerRadius = 4;
            box.outline = ink;
            box.outlineWidth = 1.5;
            Glib::LineDescription tick({120, 10 + shift}, {135, 30 + shift}, ink, 3);
            r.render(thumb);
            r.render(ring);
            r.render(box);
            r.render(tick);
            paintDirectly(fresh, ink, [&](cairo_t* cr) {
                cairo_arc(cr, thumb.centre.x, fresh.cairoY(thumb.centre.y), 8, 0, 2 * M_PI);
                cairo_fill(cr);
                cairo_save(cr);
                cairo_translate(cr, ring.centre.x, fresh.cairoY(ring.centre.y));
                cairo_scale(cr, 8, 6);
                cairo_arc(cr, 0, 0, 1, 0, 2 * M_PI);
                cairo_restore(cr);
                cairo_set_line_width(cr, 2);
                cairo_stroke(cr);
                const double x = box.box.x1, y = fresh.cairoY(box.box.y2), w = box.box.width(), h = box.box.height(), rad = 4;
                auto rounded = [&](double inset) {
                    cairo_new_sub_path(cr);
                    cairo_arc(cr, x + w - inset - rad, y + inset + rad, rad, -M_PI / 2, 0);
                    cairo_arc(cr, x + w - inset - rad, y + h - inset - rad, rad, 0, M_PI / 2);
                    cairo_arc(cr, x + inset + rad, y + h - inset - rad, rad, M_PI / 2, M_PI);
                    cairo_arc(cr, x + inset + rad, y + inset + rad, rad, M_PI, 3 * M_PI / 2);
                    cairo_close_path(cr);
                };
                rounded(0);
                cairo_fill(cr);
                rounded(0.75);
                cairo_set_line_width(cr, 1.5);
                cairo_stroke(cr);
                cairo_set_line_width(cr, 3);
                cairo_set_line_cap(cr, CAIRO_LINE_CAP_SQUARE);
                cairo_move_to(cr, tick.from.x + 0.5, fresh.cairoY(tick.from.y + 0.5));
                cairo_line_to(cr, tick.to.x + 0.5, fresh.cairoY(tick.to.y + 0.5));
                cairo_stroke(cr);
            });
        }
        // Rings are filled rather than stroked, and masks round once more than a fill:
        // only edge pixels may differ, and by a shade no eye tells apart.
        Difference d = compare(cached, fresh, 6);
        EXPECT_EQ(d.over, 0) << "worst " << d.worst;
        EXPECT_EQ(cached.pixel(30, 30), fresh.pixel(30, 30)) << "inside, coverage is whole and colours are exact";
        EXPECT_EQ(cached.pixel(67, 30), fresh.pixel(67, 30));
    }
}

TEST(PaintCache, ShapesTooLargeToKeepArePaintedDirectly) {
    Canvas c(400, 300);
    CanvasRenderer r(&c);
    r.fill(kBackground);
    Glib::RectDescription big(BoxInt(0, 0, 400, 300), kInk);
    big.cornerRadius = 20;
    ASSERT_GT(400L * 300, Glib::ShapeMaskCache::kLargestArea);
    r.render(big);
    Glib::EllipseDescription disc({200, 150}, {150, 120}, Colour(1, 0, 0));
    r.render(disc);
    Canvas plain(2, 1);
    CanvasRenderer(&plain).render(Glib::RectDescription(BoxInt(0, 0, 1, 1), kInk));
    CanvasRenderer(&plain).render(Glib::RectDescription(BoxInt(1, 0, 2, 1), kBackground));
    EXPECT_EQ(c.pixel(200, 290), plain.pixel(0, 0)) << "inside the box, outside the disc";
    EXPECT_EQ(c.pixel(200, 150), 0xFFFF0000u);
    EXPECT_EQ(c.pixel(0, 0), plain.pixel(1, 0)) << "the rounded corner";
    EXPECT_EQ(Glib::ShapeMaskCache::forThisThread().get("too big", 400, 300, [](cairo_t*) {}), nullptr);
}

TEST(PaintCache, TheLeastRecentlyUsedEntryIsForgottenFirst) {
    LruCache<int> cache(3);
    cache.insert("a", 1);
    cache.insert("b", 2);
    cache.insert("c", 3);
    ASSERT_NE(cache.find("a"), nullptr); // "b" is now the oldest
    cache.insert("d", 4);
    EXPECT_EQ(cache.find("b"), nullptr);
    EXPECT_EQ(*cache.find("a"), 1);
    EXPECT_EQ(*cache.find("c"), 3);
    EXPECT_EQ(*cache.find("d"), 4);
    EXPECT_EQ(cache.size(), 3u);
    LruCache<int> one(0);
    one.insert("x", 1);
    one.insert("y", 2);
    EXPECT_EQ(one.size(), 1u) << "a cache always holds at least its newest entry";
    EXPECT_EQ(*one.find("y"), 2);
}

namespace {

int inkColumns(const Canvas& c, int from) {
    int columns = 0;
    for (int x = from; x < c.width(); ++x)
        for (int y = 0; y < c.height(); ++y)
            if (c.pixel(x, y) != c.pixel(0, 0)) {
                ++columns;
                break;
            }
    return columns;
}

Glib::TextDescription label(const wchar_t* text, int width, bool ellipsize) {
    Glib::TextDescription t(BoxInt(0, 0, width, 24), text, Glib::getDefaultFont(), kInk);
    t.ellipsize = ellipsize;
    return t;
}

} // namespace

TEST(PaintCache, TextKeptFromAnEarlierPaintLooksAsTextShapedAfresh) {
    Canvas first(300, 24), again(300, 24), scratch(300, 24);
    CanvasRenderer(&first).fill(kBackground);
    CanvasRenderer(&again).fill(kBackground);
    CanvasRenderer(&first).render(label(L"Exposure \u00e9t\u00e9 \u6e32\u67d3 office", 300, false));
    // Enough other texts to push the first out of the cache, so that it is shaped again.
    for (int i = 0; i < 600; ++i) CanvasRenderer(&scratch).render(label(std::to_wstring(i).c_str(), 300, false));
    CanvasRenderer(&again).render(label(L"Exposure \u00e9t\u00e9 \u6e32\u67d3 office", 300, false));
    EXPECT_EQ(compare(first, again, 0).over, 0);
    EXPECT_GT(inkColumns(first, 1), 60);

    // The same text ellipsized to two widths is two shapes, not one.
    const wchar_t* longText = L"A legend far too long for a narrow column of the panel";
    Canvas narrow(300, 24), wide(300, 24);
    CanvasRenderer(&narrow).fill(kBackground);
    CanvasRenderer(&wide).fill(kBackground);
    CanvasRenderer(&narrow).render(label(longText, 80, true));
    CanvasRenderer(&wide).render(label(longText, 300, true));
    EXPECT_EQ(inkColumns(narrow, 80), 0);
    EXPECT_GT(inkColumns(wide, 80), 100) << "the wide label is not the narrow one's shape";
}

TEST(PaintCache, TextPaintedThroughItsKeptCoverageIsTheTextPangoPaints) {
    const BoxInt box(7, 5, 290, 35);
    for (const Colour& ink : {kInk, kSeeThrough}) {
        // Ink may reach past the logical box: left of a "j", above stacked accents.
        for (const wchar_t* text :
             {L"jump A\u0302\u0302\u0302 Gain 12: \u00c9t\u00e9 AVA office", L"\u0645\u0631\u062d\u0628\u0627 \u6e32\u67d3 Wj", L"   "}) {
            Canvas kept(300, 40), fresh(300, 40);
            CanvasRenderer(&kept).fill(kBackground);
            CanvasRenderer(&fresh).fill(kBackground);
            CanvasRenderer(&kept).render(Glib::TextDescription(box, text, Glib::getDefaultFont(), ink));
            paintDirectly(fresh, ink, [&](cairo_t* cr) {
                PangoLayout* layout = pango_cairo_create_layout(cr);
                PangoFontDescription* d = Glib::makePangoFont(Glib::getDefaultFont());
                pango_layout_set_font_description(layout, d);
                pango_font_description_free(d);
                pango_layout_set_text(layout, toUTF8(text).c_str(), -1);
                PangoRectangle logical;
                pango_layout_get_pixel_extents(layout, nullptr, &logical);
                // Text is cut off at its box's edges.
                cairo_rectangle(cr, box.x1, fresh.cairoY(box.y2), box.width(), box.height());
                cairo_clip(cr);
                cairo_move_to(cr, box.x1, fresh.cairoY(box.y2) + std::floor((box.height() - logical.height) / 2.0));
                pango_cairo_show_layout(cr, layout);
                g_object_unref(layout);
            });
            Difference d = compare(kept, fresh, 1);
            EXPECT_EQ(d.over, 0) << LightweightString<wchar_t>(text) << ": worst " << d.worst;
        }
    }
}

TEST(PaintCache, EditableTextPaintedThroughItsKeptCoverageIsTheTextPangoPaints) {
    for (int wrap : {0, 120}) {
        const wchar_t* text = L"jump A\u0302\u0302\u0302 clip 0042 \u00e9t\u00e9, wrapped when the box is narrow";
        Glib::TextLayout layout(text, Glib::getDefaultFont(), wrap);
        Canvas kept(300, 80), fresh(300, 80);
        CanvasRenderer(&kept).fill(kBackground);
        CanvasRenderer(&fresh).fill(kBackground);
        // Twice: the second paint is the kept one, and clipped to a part.
        layout.render(&kept, 5, 70, BoxInt(0, 0, 300, 80), kInk);
        layout.render(&kept, 5, 70, BoxInt(0, 40, 60, 80), kSeeThrough);
        paintDirectly(fresh, kInk, [&](cairo_t* cr) {
            PangoLayout* direct = pango_cairo_create_layout(cr);
            PangoFontDescription* d = Glib::makePangoFont(Glib::getDefaultFont());
            pango_layout_set_font_description(direct, d);
            pango_font_description_free(d);
            if (wrap > 0) {
                pango_layout_set_wrap(direct, PANGO_WRAP_WORD_CHAR);
                pango_layout_set_width(direct, wrap * PANGO_SCALE);
            }
            pango_layout_set_text(direct, toUTF8(text).c_str(), -1);
            cairo_move_to(cr, 5, fresh.cairoY(70));
            pango_cairo_show_layout(cr, direct);
            cairo_rectangle(cr, 0, fresh.cairoY(80), 60, 40);
            cairo_clip(cr);
            cairo_set_source_rgba(cr, kSeeThrough.red(), kSeeThrough.green(), kSeeThrough.blue(), kSeeThrough.alpha());
            cairo_move_to(cr, 5, fresh.cairoY(70));
            pango_cairo_show_layout(cr, direct);
            g_object_unref(direct);
        });
        Difference d = compare(kept, fresh, 1);
        EXPECT_EQ(d.over, 0) << "wrap " << wrap << ": worst " << d.worst;
        EXPECT_GT(inkColumns(kept, 1), 50);
    }
}
