#include "Gauge.h"

#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"

#include <algorithm>
#include <cmath>

Gauge::Gauge(const InitArgs& args) : Glob(args), bar_(getPalette().selection(kSelectionFocused)), background_(getPalette().childWindow(kChildList)) {
    font_ = UifStd::instance().getDefaultFont();
}

void Gauge::setCols(const Colour& bar, const Colour& background) {
    bar_ = bar;
    background_ = background;
}

void Gauge::setMeasure(double fraction) { measure_ = std::isnan(fraction) ? 0.0 : std::clamp(fraction, 0.0, 1.0); }

int Gauge::filledWidth() const { return static_cast<int>(std::lround(measure_ * width())); }

void Gauge::drawBackground() {
    CanvasRenderer r(canvas());
    r.render(Glib::RectDescription(BoxInt(0, 0, width(), height()), background_));
    if (filledWidth() > 0) r.render(Glib::RectDescription(BoxInt(0, 0, filledWidth(), height()), bar_));
    if (message_.empty()) return;
    Colour ink = hasMessageColour_ ? messageColour_ : getPalette().text(kTextNormal);
    Glib::TextDescription t(BoxInt(0, 0, width(), height()), message_, getFont(), ink, Glib::kAlignCentreH);
    t.ellipsize = true;
    r.render(t);
}
