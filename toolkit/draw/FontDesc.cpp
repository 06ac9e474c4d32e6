#include "FontDesc.h"

#include "PangoSupport.h"
#include "TextAdvanceCache.h"
#include "UifStd.h"
#include "core/Utf8.h"
#include "platform/Configuration.h"
#include "platform/Paths.h"

#include <cstdlib>

#include <algorithm>
#include <cmath>
#include <map>
#include <mutex>
#include <strings.h>

namespace {

struct Metrics {
    int ascent, descent;
};

Metrics metricsOf(const Glib::FontDesc& font);

} // namespace

namespace Glib {

PangoContext* layoutContext() {
    thread_local struct Holder {
        cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 1, 1);
        cairo_t* cr = cairo_create(surface);
        PangoContext* ctx = pango_cairo_create_context(cr);
        ~Holder() {
            g_object_unref(ctx);
            cairo_destroy(cr);
            cairo_surface_destroy(surface);
        }
    } holder;
    return holder.ctx;
}

FontDesc FontDesc::resolved() const {
    FontDesc r = *this;
    if (r.name.empty()) r.name = getDefaultFontName((style & kMonospace) ? 1 : 0);
    if (r.size <= 0) r.size = getDefaultFontSize();
    return r;
}

PangoFontDescription* makePangoFont(const FontDesc& font) {
    FontDesc f = font.resolved();
    PangoFontDescription* d = pango_font_description_new();
    pango_font_description_set_family(d, f.name.c_str());
    pango_font_description_set_absolute_size(d, f.size * PANGO_SCALE);
    pango_font_description_set_weight(d, (f.style & FontDesc::kBold) ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
    pango_font_description_set_style(d, (f.style & FontDesc::kItalic) ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
    return d;
}

PangoLayout* makeLayout(const LightweightString<char>& utf8, const FontDesc& font) {
    PangoLayout* layout = pango_layout_new(layoutContext());
    PangoFontDescription* d = makePangoFont(font);
    pango_layout_set_font_description(layout, d);
    pango_font_description_free(d);
    pango_layout_set_text(layout, utf8.c_str(), static_cast<int>(utf8.size()));
    return layout;
}

XY<int> measureText(const LightweightString<wchar_t>& text, const FontDesc& font) {
    // Most legends and labels are plain Latin text, which the advance cache measures
    // without shaping; it answers exactly what the layout below would.
    if (XY<int> fast = TextAdvanceCache::forThisThread().measurePixels(text.view(), font); fast.x >= 0) {
        return {fast.x, std::max(fast.y, fontHeight(font))};
    }
    PangoLayout* layout = makeLayout(toUTF8(text), font);
    PangoRectangle logical;
    pango_layout_get_pixel_extents(layout, nullptr, &logical);
    g_object_unref(layout);
    return {logical.width, std::max(logical.height, fontHeight(font))};
}

int fontAscent(const FontDesc& font) { return metricsOf(font).ascent; }
int fontDescent(const FontDesc& font) { return metricsOf(font).descent; }
int fontHeight(const FontDesc& font) {
    Metrics m = metricsOf(font);
    return m.ascent + m.descent;
}

std::vector<LightweightString<char>> getAvailableFonts() {
    PangoFontFamily** families = nullptr;
    int n = 0;
    pango_font_map_list_families(pango_cairo_font_map_get_default(), &families, &n);
    std::vector<LightweightString<char>> names;
    for (int i = 0; i < n; ++i) names.emplace_back(pango_font_family_get_name(families[i]));
    g_free(families);
    std::sort(names.begin(), names.end());
    return names;
}

bool isFontAvailable(const LightweightString<char>& family) {
    auto names = getAvailableFonts();
    return std::any_of(names.begin(), names.end(), [&](const auto& n) { return strcasecmp(n.c_str(), family.c_str()) == 0; });
}

FontDesc getDefaultFont() { return FontDesc().resolved(); }

} // namespace Glib

namespace {

Metrics metricsOf(const Glib::FontDesc& font) {
    static std::mutex lock;
    static std::map<std::pair<std::string, int>, Metrics> cache;
    Glib::FontDesc f = font.resolved();
    auto key = std::make_pair(f.name.str() + char('0' + (f.style & 3)), f.size);
    {
        std::lock_guard<std::mutex> g(lock);
        auto it = cache.find(key);
        if (it != cache.end()) return it->second;
    }
    PangoFontDescription* d = Glib::makePangoFont(f);
    PangoFontMetrics* m = pango_context_get_metrics(Glib::layoutContext(), d, nullptr);
    Metrics r{PANGO_PIXELS_CEIL(pango_font_metrics_get_ascent(m)), PANGO_PIXELS_CEIL(pango_font_metrics_get_descent(m))};
    pango_font_metrics_unref(m);
    pango_font_description_free(d);
    std::lock_guard<std::mutex> g(lock);
    cache[key] = r;
    return r;
}

} // namespace

LightweightString<char> getDefaultFontName(unsigned index) { return index == 1 ? "DejaVu Sans Mono" : "DejaVu Sans"; }

int getDefaultFontSize() { return static_cast<int>(std::lround(13 * UifStd::instance().getScale())); }

LightweightString<char> getZnUtilityFontName() { return getDefaultFontName(1); }

int getZnUtilityFontSize(float scale) { return std::max(1, static_cast<int>(std::lround(11 * UifStd::instance().getScale() * scale))); }

LightweightString<wchar_t> getIconPath(const LightweightString<wchar_t>& name) {
    if (name.empty() || name.find(L'/') != LightweightString<wchar_t>::npos) return {};
    LightweightString<wchar_t> base = fromUTF8(Configuration::resourcesFolder());
    LightweightString<wchar_t> path = joinPaths(joinPaths(base, L"icons"), getExtension(name).empty() ? name + L".png" : name);
    return fileExists(path) ? path : LightweightString<wchar_t>();
}
