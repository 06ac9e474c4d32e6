#include "TrackButton.h"

#include "core/Utf8.h"
#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/Messaging.h"
#include "image/HostImage.h"
#include "platform/Configuration.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

namespace {
const int celstripGrabSize = config_int("celstrip_grab_size", 6);
const int trackButtonGlow = config_int("track_button_glow", 0);

constexpr ResId kTrackButtonHelp = 960;
constexpr const char* kResizePrefix = "TrackBtnResize";
// The size a name falls to when it is too wide for the button.
constexpr int kNarrowFontSize = 12;
// Lines shorter than this show no text.
constexpr int kMinTextLineHeight = 9;
constexpr double kHoverBrightening = 1.6;
} // namespace

TrackButton::ResizeParams::ResizeParams(const LightweightString<char>& text) {
    if (text.empty() || std::strncmp(text.c_str(), kResizePrefix, std::strlen(kResizePrefix)) != 0) return;
    int a = 0;
    if (std::sscanf(text.c_str(), "TrackBtnResize %d %d", &a, &second) == 2) first = a;
}

LightweightString<char> TrackButton::ResizeParams::asString() const {
    char buf[64];
    std::snprintf(buf, sizeof buf, "TrackBtnResize %d %d", first, second);
    return buf;
}

namespace {
TrackButton::InitArgs argsFor(const LightweightString<wchar_t>& name, unsigned short width, unsigned short height, Canvas* canvas) {
    TrackButton::InitArgs args(UIString(name), WidgetCallback(), width, height);
    args.canvas = canvas;
    return args;
}
} // namespace

TrackButton::TrackButton(unsigned short width, unsigned short height, Canvas* canvas) : TrackButton(argsFor({}, width, height, canvas)) {}

TrackButton::TrackButton(const LightweightString<wchar_t>& name, unsigned short width, unsigned short height, Canvas* canvas)
    : TrackButton(argsFor(name, width, height, canvas)) {}

TrackButton::TrackButton(const InitArgs& args) : Button(args) {
    init();
    setString(UIString());
    if (!args.label.empty()) setTrackName(args.label.getString());
    setStyle(kRaised);
    setSelected(true, kNoRedraw);
}

void TrackButton::init() {
    resizeAllowed_ = false;
    glowEnabled_ = trackButtonGlow != 0;
    setContextString(UIString(kTrackButtonHelp));
    setLatching(true, false);
    fontSize_ = (getDefaultFontSize() * 7) >> 3;
    setFont(Glib::FontDesc(Button::getFont().name, fontSize_, Glib::FontDesc::kBold));
    glowColour_ = defaultGlowColour();
    const Colour face = getBackCol(kButtonUp);
    setCols(face, Colour(0.3, 0.36, 0.4, true));
    setDownCols(face, Colour(0.8, 0.9, 1.0, true));
}

Colour TrackButton::defaultGlowColour() {
    static const Colour glow(0.1, 0.4, 0.5, true);
    return glow;
}

int TrackButton::grabSize() { return celstripGrabSize; }

void TrackButton::setTrackName(const LightweightString<wchar_t>& name) { setTrackName(std::vector<LightweightString<wchar_t>>{name}); }

void TrackButton::setTrackName(const std::vector<LightweightString<wchar_t>>& names) {
    names_.clear();
    const int full = (getDefaultFontSize() * 7) >> 3;
    fontSize_ = full;
    const int room = width() - 2 * UifStd::instance().getIndentWidth();
    for (const LightweightString<wchar_t>& name : names) {
        names_.push_back(name);
        if (Glib::measureText(name, Button::getFont()).x > room) {
            fontSize_ = kNarrowFontSize;
            setFont(Glib::FontDesc(Button::getFont().name, fontSize_, Button::getFont().style));
            break;
        }
    }
    if (fontSize_ == full) setFont(Glib::FontDesc(Button::getFont().name, fontSize_, Button::getFont().style));
    if (!names.empty()) setMessage(toUTF8(names.front()));
    redraw();
}

void TrackButton::setGlowColour(const Colour& colour) {
    glowColour_ = colour;
    glowEnabled_ = true;
    redraw();
}

void TrackButton::setSelectedTextColour(const Colour& colour) { setDownCols(getBackCol(kButtonDown), colour); }

void TrackButton::setSelected(bool selected, eRedrawFlag flag) { setState(selected ? kButtonDown : kButtonUp, flag == kRedraw ? 1 : 0); }

int TrackButton::calcLineHeight() const { return height() / std::max<int>(1, static_cast<int>(names_.size())); }

Glib::FontDesc TrackButton::getFont() const {
    Glib::FontDesc f = Button::getFont();
    f.size = std::min(fontSize_, calcLineHeight());
    return f;
}

MouseCursorID TrackButton::contextCursor(const XY<int>& p) const {
    if (!isActive()) return kCursorArrow;
    if (parent() && parent()->getQuickDraw()) return kCursorResizeVertical;
    if (!resizeAllowed_) return kCursorHand;
    // The zones are whole rows at each edge, so a button twice the grab size high is all zone.
    if (p.y < celstripGrabSize || p.y >= height() - celstripGrabSize) return kCursorResizeVertical;
    return kCursorHand;
}

Colour TrackButton::textColour() const {
    const Colour c = Button::textColour();
    return isActive() && mouseInside_ ? scale(c, kHoverBrightening) : c;
}

void TrackButton::handleMouseContainment(bool inside) {
    mouseInside_ = inside;
    if (!isActive() || (inside && isHighlighted())) return;
    Button::handleMouseContainment(inside);
}

int TrackButton::react(const Event& e) {
    if (mouse_chord_event(e) && mouse_down_event(e) && height() > celstripGrabSize && parent()) sendMessage(SoloSelectChanMsg, parent(), this);
    return Button::react(e);
}

void TrackButton::drawText() {
    const int lineHeight = calcLineHeight();
    if (lineHeight < kMinTextLineHeight) return;
    const Glib::FontDesc font = getFont();
    if (names_.size() <= 1) {
        setString(names_.empty() ? UIString() : UIString(names_.front()));
        const Glib::FontDesc kept = Button::getFont();
        setFont(font);
        Button::drawText();
        setFont(kept);
        return;
    }
    const int baseline = (lineHeight - Glib::fontHeight(font) / 2) / 2;
    CanvasRenderer r(canvas());
    const int last = static_cast<int>(names_.size()) - 1;
    for (int i = 0; i <= last; ++i) {
        Glib::TextDescription t(BoxInt(0, 0, width(), height()), names_[i], font, textColour(), Glib::kAlignCentreH);
        t.valign = Glib::kAlignTop;
        t.baseline = baseline + (last - i) * lineHeight;
        r.render(t);
    }
}

void TrackButton::drawBackground() {
    CanvasRenderer r(canvas());
    r.render(Glib::RectDescription(BoxInt(0, 0, width(), height()), getBackCol()));
    if (names_.empty()) {
        drawText();
        return;
    }
    const UifStd& u = UifStd::instance();
    const Glib::FontDesc font = getFont();
    const int gap = u.getWidgetGap();
    const int glowHeight = std::min(Glib::fontHeight(font) + gap, height());
    const int glowWidth = std::min(Glib::measureText(names_.front(), font).x + 2 * gap, width());
    const int offset = (calcLineHeight() - glowHeight) / 2;
    if (names_.size() > 1) {
        const Colour rule = isSelected() ? Colour::mix(getPalette().text(kTextNormal), glowColour_, 0.8) : getPalette().text(kTextDimmed);
        const int mid = width() / 2;
        r.render(Glib::RectDescription(BoxInt(mid, glowHeight + offset, mid + u.getIndentWidth(), height() - (glowHeight + offset)), rule));
    }
    if (isSelected() && glowEnabled_) drawGlow(glowWidth, glowHeight, offset);
    drawText();
}

Zn::Ptr<iHostImage> TrackButton::glowImage(int glowWidth, int glowHeight) {
    const Colour back = getBackCol();
    if (glow_ && glow_->width() == glowWidth && glow_->height() == glowHeight && glowMadeOn_ == back && glowMadeOf_ == glowColour_) return glow_;
    const int hw = glowWidth >> 1, hh = glowHeight >> 1;
    auto image = Zn::Ptr<iHostImage>(new HostImage(glowWidth, glowHeight));
    std::uint8_t* px = image->data();
    for (int row = 0; row < glowHeight; ++row) {
        auto* line = reinterpret_cast<std::uint32_t*>(px + static_cast<std::ptrdiff_t>(row) * image->stride());
        const double across = 1.0 - std::abs(static_cast<double>(row - hh) / hh);
        for (int col = 0; col < glowWidth; ++col) {
            const double strength = std::max(0.0, across * (1.0 - std::abs(static_cast<double>(col - hw) / hw)));
            line[col] = asARGB(Colour::mix(back, glowColour_, strength), 1.0);
        }
    }
    glow_ = image;
    glowMadeOn_ = back;
    glowMadeOf_ = glowColour_;
    return glow_;
}

void TrackButton::drawGlow(int glowWidth, int glowHeight, int offset) {
    if ((glowWidth >> 1) <= 0 || (glowHeight >> 1) <= 0) return;
    const Zn::Ptr<iHostImage> image = glowImage(glowWidth, glowHeight);
    CanvasRenderer r(canvas());
    const int x = (width() - glowWidth) / 2;
    for (int i = 0; i < static_cast<int>(names_.size()); ++i) {
        const int y = offset + i * calcLineHeight();
        r.render(Glib::ImageDescription(image, BoxInt(x, y, x + glowWidth, y + glowHeight)));
    }
}
