#include "WidgetGroup.h"

#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"

#include <algorithm>
#include <cmath>

namespace {

Glib::FontDesc resolveFont(const Glib::FontDesc& f) { return f == Glib::FontDesc() ? UifStd::instance().getDefaultFont() : f.resolved(); }

} // namespace

WidgetGroup::WidgetGroup(const InitArgs& args)
    : StandardPanel(StandardPanel::InitArgs(args, Border(Border::kNoBorder, 0, 15))), legend_(args.title), requestedFont_(args.font) {
    font_ = resolveFont(args.font);
}

int WidgetGroup::frameWidth() { return std::max(1, static_cast<int>(std::lround(UifStd::instance().getScale()))); }

int WidgetGroup::frameInset() { return frameWidth() + UifStd::instance().getWidgetGap(); }

int WidgetGroup::legendHeight(bool hasLegend, const Glib::FontDesc& font) {
    if (!hasLegend) return frameInset();
    return Glib::fontHeight(resolveFont(font)) + UifStd::instance().getWidgetGap();
}

XY<int> WidgetGroup::calcSizeForContents(const XY<int>& userSize, const UIString& title, const Glib::FontDesc& font) {
    const int inset = frameInset();
    return {std::max(0, userSize.x) + 2 * inset, std::max(0, userSize.y) + inset + legendHeight(!title.empty(), font)};
}

int WidgetGroup::calcHeightForRows(int rows, int rowHeight, int rowGap) { return calcHeightForRows(rows, rowHeight, rowGap, 1); }

int WidgetGroup::calcHeightForRows(int rows, int rowHeight, int rowGap, int legend) {
    rows = std::max(0, rows);
    const int content = rows * std::max(0, rowHeight) + std::max(0, rows - 1) * std::max(0, rowGap);
    return content + frameInset() + legendHeight(legend != 0);
}

void WidgetGroup::setTitle(const UIString& title, const Glib::FontDesc& font, eRedrawFlag flag) {
    const bool hadLegend = !legend_.empty();
    legend_ = title;
    if (!(font == Glib::FontDesc())) {
        requestedFont_ = font;
        font_ = font.resolved();
    }
    // The user area's top depends on whether there is a legend at all.
    if (hadLegend != !legend_.empty()) calcAbsoluteWidgetPositions();
    handleTitleChange();
    if (flag == kRedraw) redraw();
}

BoxInt WidgetGroup::getUserArea() const {
    const int inset = frameInset();
    BoxInt a(inset, inset, width() - inset, height() - legendHeight(!legend_.empty(), font_));
    if (a.x2 < a.x1) a.x2 = a.x1;
    if (a.y2 < a.y1) a.y2 = a.y1;
    return a;
}

BoxInt WidgetGroup::frameBox() const {
    // Half a gap in from the edges, so that neighbouring groups do not share a line;
    // with a legend the top line runs through the middle of the text.
    const int margin = UifStd::instance().getWidgetGap() / 2;
    int top = height() - margin;
    if (!legend_.empty()) top = height() - Glib::fontHeight(font_) / 2;
    BoxInt b(margin, margin, width() - margin, top);
    if (b.x2 < b.x1) b.x2 = b.x1;
    if (b.y2 < b.y1) b.y2 = b.y1;
    return b;
}

BoxInt WidgetGroup::legendBox() const {
    if (legend_.empty()) return {};
    const int gap = UifStd::instance().getWidgetGap();
    const XY<int> text = Glib::measureText(legend_.getString(), font_);
    const int x1 = frameBox().x1 + UifStd::instance().getTextIndent();
    // The legend never reaches past the frame's right-hand corner.
    const int x2 = std::max(x1, std::min(x1 + text.x + 2 * gap, frameBox().x2 - gap));
    return BoxInt(x1, std::max(0, height() - text.y), x2, height());
}

void WidgetGroup::setActive(bool active, eRedrawFlag flag) {
    Glob::setActive(active, kNoRedraw);
    for (Glob* child : getChildren()) child->setActive(active, kNoRedraw);
    if (flag == kRedraw) redraw();
}

void WidgetGroup::drawBackground() { CanvasRenderer(canvas()).fill(getPalette().window()); }

void WidgetGroup::drawBorder() {
    const BoxInt f = frameBox();
    if (f.width() <= 0 || f.height() <= 0) return;
    const Palette& p = getPalette();
    CanvasRenderer r(canvas());
    const Colour line = isActive() ? p.window(kShadeDarker) : p.window(kShadeDark);
    const int t = frameWidth();
    r.render(Glib::RectDescription(BoxInt(f.x1, f.y1, f.x2, f.y1 + t), line));
    r.render(Glib::RectDescription(BoxInt(f.x1, f.y1, f.x1 + t, f.y2), line));
    r.render(Glib::RectDescription(BoxInt(f.x2 - t, f.y1, f.x2, f.y2), line));
    const BoxInt legend = legendBox();
    if (legend.isEmpty()) {
        r.render(Glib::RectDescription(BoxInt(f.x1, f.y2 - t, f.x2, f.y2), line));
        return;
    }
    // The top line stops either side of the legend.
    r.render(Glib::RectDescription(BoxInt(f.x1, f.y2 - t, legend.x1, f.y2), line));
    r.render(Glib::RectDescription(BoxInt(legend.x2, f.y2 - t, f.x2, f.y2), line));
    const int gap = UifStd::instance().getWidgetGap();
    Glib::TextDescription text(BoxInt(legend.x1 + gap, legend.y1, legend.x2 - gap, legend.y2), legend_.getString(), font_,
                               isActive() ? p.subheadingText() : p.text(kTextDimmed));
    text.ellipsize = true;
    r.render(text);
}

void WidgetGroup::handleUIChange(unsigned int what) {
    font_ = resolveFont(requestedFont_);
    calcAbsoluteWidgetPositions();
    StandardPanel::handleUIChange(what);
}
