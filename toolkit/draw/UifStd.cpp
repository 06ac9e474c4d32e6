#include "UifStd.h"

#include "platform/Configuration.h"

#include <cmath>

UifStd& UifStd::instance() {
    static UifStd s;
    return s;
}

// The scale comes from the configuration key "ui_scale_percent" (100 by default).
UifStd::UifStd() { setScale(config_int("ui_scale_percent", 100) / 100.0); }

int UifStd::scaled(int base) const { return static_cast<int>(std::lround(base * scale_)); }

void UifStd::setScale(double scale) {
    if (scale > 0.25 && scale < 8.0) scale_ = scale;
}

int UifStd::getRowHeight() const { return scaled(24); }
int UifStd::getRowGap() const { return scaled(4); }
int UifStd::getWidgetGap() const { return scaled(6); }
int UifStd::getIndentWidth() const { return scaled(2); }
int UifStd::getTextIndent() const { return scaled(16); }
int UifStd::getLegendInset() const { return getWidgetGap(); }
int UifStd::getBorderWidth() const { return scaled(2); }
int UifStd::getTitleHeight() const { return scaled(24); }

Glib::FontDesc UifStd::getDefaultFont() const { return Glib::FontDesc().resolved(); }
Glib::FontDesc UifStd::getTitleFont() const { return Glib::FontDesc("", 0, Glib::FontDesc::kBold).resolved(); }
Glib::FontDesc UifStd::getSubheadingFont() const {
    Glib::FontDesc f = Glib::FontDesc("", 0, Glib::FontDesc::kBold).resolved();
    f.size = std::max(1, f.size - scaled(1));
    return f;
}
Glib::FontDesc UifStd::getMonospaceFont() const { return Glib::FontDesc("", 0, Glib::FontDesc::kMonospace).resolved(); }

XY<int> UifStd::measure(const UIString& text) const { return measure(text.getString(), getDefaultFont()); }

XY<int> UifStd::measure(const LightweightString<wchar_t>& text, const Glib::FontDesc& font) const { return Glib::measureText(text, font); }
