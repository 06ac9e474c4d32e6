#include "TipWindowBase.h"

#include "draw/CanvasRenderer.h"
#include "draw/Screen.h"
#include "draw/UifStd.h"
#include "draw/WordWrappingTextRenderer.h"
#include "glob/GlobManager.h"
#include "glob/InputDispatcher.h"
#include "platform/Clock.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

int lineHeight() { return Glib::fontHeight(UifStd::instance().getDefaultFont()); }

int orGap(int v) { return v < 0 ? UifStd::instance().getWidgetGap() : v; }

bool within(const BoxInt& area, const BoxInt& b) { return b.x1 >= area.x1 && b.y1 >= area.y1 && b.x2 <= area.x2 && b.y2 <= area.y2; }

// Watches the user through GlobManager's event observer and opens and closes the
// one tooltip window. Every glob it remembers is kept with its stamp.
class Tooltips {
public:
    int delayMs = 700;
    bool enabled = true;

    void observe(const Event& e);
    TipWindowBase* tip() const { return EventHandler::valid(tip_, tipStamp_) ? tip_ : nullptr; }
    void close();

private:
    Glob* owner() const { return EventHandler::valid(owner_, ownerStamp_) ? owner_ : nullptr; }
    static Glob* ownerOf(Glob* hovered);
    void rest(Glob* owner, XY<int> at);
    void open(Glob* owner);

    Glob* owner_ = nullptr;
    IdStamp ownerStamp_;
    TipWindowBase* tip_ = nullptr;
    IdStamp tipStamp_;
    XY<int> restPos_;
    std::int64_t restSince_ = 0;
    bool buttonDown_ = false;
    // A click or key on the owner puts its tip away until the mouse leaves it.
    bool suppressed_ = false;
};

Tooltips& tooltips() {
    static Tooltips t;
    return t;
}

[[maybe_unused]] const bool hooked = (GlobManager::setEventObserver([](const Event& e) { tooltips().observe(e); }), true);

Glob* Tooltips::ownerOf(Glob* hovered) {
    for (Glob* g = hovered; g; g = g->parent())
        if (!g->contextString().empty()) return g;
    return nullptr;
}

void Tooltips::close() {
    if (TipWindowBase* t = tip()) delete t;
    tip_ = nullptr;
    tipStamp_ = IdStamp();
}

void Tooltips::rest(Glob* owner, XY<int> at) {
    owner_ = owner;
    ownerStamp_ = owner ? owner->stamp() : IdStamp();
    restPos_ = at;
    restSince_ = msecsNow();
}

void Tooltips::observe(const Event& e) {
    if (!enabled) {
        close();
        return;
    }
    GlobManager& gm = GlobManager::instance();
    switch (e.type()) {
    case Event::kMouseDown:
    case Event::kMouseUp:
    case Event::kMouseWheel:
    case Event::kKeyPress:
        buttonDown_ = e.type() == Event::kMouseDown || (buttonDown_ && e.type() != Event::kMouseUp);
        suppressed_ = true;
        close();
        return;
    case Event::kMouseMove: {
        Glob* now = ownerOf(gm.input().hover());
        if (now != owner()) {
            close();
            suppressed_ = false;
            rest(now, e.screenPos());
        } else if (!tip() && (std::abs(e.screenPos().x - restPos_.x) > 2 || std::abs(e.screenPos().y - restPos_.y) > 2)) {
            // The wait starts again whenever the mouse moves before the tip is up.
            rest(now, e.screenPos());
        }
        return;
    }
    case Event::kTimer: {
        Glob* o = owner();
        if (tip()) {
            if (!o || !o->isShowing() || ownerOf(gm.input().hover()) != o) close();
            return;
        }
        if (o && !suppressed_ && !buttonDown_ && o->isShowing() && ownerOf(gm.input().hover()) == o && msecsNow() - restSince_ >= delayMs) open(o);
        return;
    }
    default: return;
    }
}

void Tooltips::open(Glob* o) {
    LightweightString<wchar_t> text = o->contextString().getString();
    const LightweightString<wchar_t> details = o->getTooltipDetails().getString();
    if (!details.empty()) {
        text += L"\n";
        text += details;
    }
    TipWindowBase::InitArgs args{UIString(text)};
    args.palette = UifStd::instance().getColourScheme();
    const XY<int> size = TipWindowBase::calcSize(args.text);
    args.width = size.x;
    args.height = size.y;
    // Below the pointer by about a pointer's height, so that the tip never lies under it.
    const int pointer = UifStd::instance().getRowHeight() * 3 / 4;
    const BoxInt anchor(restPos_.x, restPos_.y - pointer, restPos_.x + 1, restPos_.y + 1);
    Drawable::disableRedraws();
    auto* t = new TipWindowBase(args);
    t->showBeside(anchor);
    Drawable::enableRedraws();
    tip_ = t;
    tipStamp_ = t->stamp();
}

} // namespace

TipWindowBase::TipWindowBase(const InitArgs& args)
    : StandardPanel(args), text_(args.text), relativity_(args.relativity == kNoRelativity ? kBelow : args.relativity), gap_(orGap(args.gap)),
      indent_(orGap(args.indent)) {
    setCanBeIt(false);
}

XY<int> TipWindowBase::calcSize(const UIString& text, int maxTextWidth, int indent) {
    const int margin = orGap(indent);
    const int limit = maxTextWidth > 0 ? maxTextWidth : 18 * UifStd::instance().getRowHeight();
    const LightweightString<wchar_t> s = text.getString();
    Glib::WordWrappingTextRenderer wrap(s, UifStd::instance().getDefaultFont(), limit);
    int widest = 0;
    for (const auto& line : wrap.lines()) widest = std::max(widest, Glib::measureText(line, UifStd::instance().getDefaultFont()).x);
    // Pango may break a line just inside the limit; the width never exceeds it.
    widest = std::min(widest, limit);
    return {widest + 2 * margin, static_cast<int>(wrap.numLines()) * lineHeight() + 2 * margin};
}

XY<int> TipWindowBase::calcPosition(const BoxInt& anchor, const XY<int>& size, eWidgetRelativity relativity, int gap) {
    const Screen& screen = GlobManager::instance().screen();
    const BoxInt area(0, 0, screen.width(), screen.height());
    SiblingRelativePosition rel{relativity == kNoRelativity ? kBelow : relativity, nullptr, gap, kAlignStart};
    BoxInt b = placeBeside(size, anchor, rel);
    if (!within(area, b)) {
        rel.relativity = oppositeSide(rel.relativity);
        BoxInt other = placeBeside(size, anchor, rel);
        if (within(area, other)) b = other;
    }
    const int x = std::clamp(b.x1, 0, std::max(0, area.x2 - size.x));
    const int y = std::clamp(b.y1, 0, std::max(0, area.y2 - size.y));
    return {x, y};
}

XY<int> TipWindowBase::calcPosition(const BoxInt& anchor, const XY<int>& size) const { return calcPosition(anchor, size, relativity_, gap_); }

void TipWindowBase::showBeside(const BoxInt& anchor) {
    if (parent()) return;
    setupRootPos(calcPosition(anchor, size()));
    GlobManager::instance().realize(this);
}

void TipWindowBase::setText(const UIString& text, eRedrawFlag flag) {
    text_ = text;
    if (flag == kRedraw) redraw();
}

BoxInt TipWindowBase::textBox() const {
    const BoxInt u = getUserArea();
    // A window one line high, such as a status line, gives up its margin above and below before it cuts the text.
    const int v = std::clamp((u.height() - lineHeight()) / 2, 0, indent_);
    BoxInt b(u.x1 + indent_, u.y1 + v, u.x2 - indent_, u.y2 - v);
    if (b.x2 < b.x1) b.x2 = b.x1;
    if (b.y2 < b.y1) b.y2 = b.y1;
    return b;
}

void TipWindowBase::drawBackground() {
    const Palette& p = getPalette();
    CanvasRenderer r(canvas());
    if (parent()) {
        r.fill(p.window());
    } else {
        Glib::RectDescription face(BoxInt(0, 0, width(), height()), p.window(kShadeLightest));
        face.outline = p.window(kShadeDarkest);
        face.outlineWidth = std::max(1.0, UifStd::instance().getScale());
        r.render(face);
    }
    const BoxInt box = textBox();
    const LightweightString<wchar_t> s = text_.getString();
    if (box.isEmpty() || s.empty()) return;
    Glib::WordWrappingTextRenderer wrap(s, UifStd::instance().getDefaultFont(), box.width());
    const int textHeight = static_cast<int>(wrap.numLines()) * lineHeight();
    // Centred vertically; text taller than the box starts at its top.
    const int top = std::min(box.y2, box.y1 + (box.height() + textHeight) / 2);
    const Colour ink = parent() ? p.text(isActive() ? kTextNormal : kTextDimmed) : contrastingText(p.window(kShadeLightest));
    wrap.render(canvas(), box, top, ink, lineHeight());
}

void TipWindowBase::setTooltipDelay(int ms) { tooltips().delayMs = std::max(0, ms); }
int TipWindowBase::tooltipDelay() { return tooltips().delayMs; }

void TipWindowBase::setTooltipsEnabled(bool enabled) {
    tooltips().enabled = enabled;
    if (!enabled) tooltips().close();
}

bool TipWindowBase::tooltipsEnabled() { return tooltips().enabled; }
TipWindowBase* TipWindowBase::currentTooltip() { return tooltips().tip(); }
void TipWindowBase::closeTooltip() { tooltips().close(); }
