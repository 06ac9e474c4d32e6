#pragma once

#include "FontDesc.h"
#include "core/Box.h"
#include "core/Colour.h"
#include "core/Ptr.h"
#include "core/enumFromInt.h"
#include "image/iImage.h"

#include <optional>

// Descriptions of the drawing primitives, in the coordinates of the glob being
// drawn (bottom-up). CanvasRenderer turns them into pixels.
namespace Glib {

/// A rectangle, filled or not, optionally outlined and with rounded corners.
struct RectDescription {
    BoxInt box;
    Colour fill;
    bool filled = true;
    Colour outline;
    double outlineWidth = 0.0; // 0: no outline
    double cornerRadius = 0.0;
    // Which corners the radius rounds (NUMBERS.md): bits 1 bottom left, 2 bottom
    // right, 4 top left, 8 top right; 15 all of them, 0 none.
    enum CornerBits : unsigned { kBottomLeftCorner = 1, kBottomRightCorner = 2, kTopLeftCorner = 4, kTopRightCorner = 8, kAllCorners = 15 };
    unsigned corners = kAllCorners;

    RectDescription() = default;
    RectDescription(const BoxInt& b, const Colour& c) : box(b), fill(c) {}
};

/// A line between pixel centres: (0, 0) to (9, 0) lights pixels 0..9 of row 0.
struct LineDescription {
    XY<double> from, to;
    Colour colour;
    double width = 1.0;

    LineDescription() = default;
    LineDescription(XY<double> a, XY<double> b, const Colour& c, double w = 1.0) : from(a), to(b), colour(c), width(w) {}
};

/// An ellipse, filled, or a ring of `lineWidth` centred on its edge. Between the
/// angles (degrees clockwise from straight up) only that arc is drawn: a full turn,
/// 0 to 360, is the whole shape.
struct EllipseDescription {
    XY<double> centre;
    XY<double> radii;
    Colour colour;
    bool filled = true;
    double lineWidth = 1.0;
    double startAngle = 0.0;
    double endAngle = 360.0;

    // The style of the box form: kFilledEllipse fills with the first colour and
    // rings it with the second; kRing draws only the ring, in the second colour.
    enum eStyle { kFilledEllipse = 0, kRing = 1 };

    EllipseDescription() = default;
    EllipseDescription(XY<double> c, XY<double> r, const Colour& col, bool fill = true) : centre(c), radii(r), colour(col), filled(fill) {}
    // The ellipse that fits `box`, its ring's middle line on the box's edge.
    EllipseDescription(const Zn::Box<double, Zn::BottomUpTraits>& box, double width, double start, double end, const Colour& fill,
                       const Colour& outline, eStyle style)
        : centre((box.x1 + box.x2) / 2, (box.y1 + box.y2) / 2), radii(box.width() / 2, box.height() / 2), colour(outline), filled(false),
          lineWidth(width), startAngle(start), endAngle(end), fillColour(fill), fillFirst(style == kFilledEllipse) {}

    // With the box form's kFilledEllipse: the fill under the ring.
    Colour fillColour;
    bool fillFirst = false;
};

// How text sits across its box; kAlignDefault leaves it to the drawing (left, or
// what a paragraph's mark-up asks for).
enum eHorizontalAlign { kAlignDefault = -1, kAlignLeft = 0, kAlignRight = 1, kAlignCentreH = 2 };
// How text sits up and down its box; kAlignTop puts the first line at the top of a
// box taller than the text (a table row, a log row).
enum eVerticalAlign { kAlignMiddle = 0, kAlignTop = 1, kAlignBottom = 2 };

/// The two together, the alignment of text boxes, table cells and mark-up. Numbers
/// from outside that name no alignment give kAlignDefault and kAlignMiddle.
struct TextAlignment {
    eHorizontalAlign horizontal = kAlignDefault;
    eVerticalAlign vertical = kAlignMiddle;

    constexpr TextAlignment() = default;
    constexpr TextAlignment(eHorizontalAlign h, eVerticalAlign v) : horizontal(h), vertical(v) {}
    constexpr TextAlignment(int h, int v)
        : horizontal(enumFromInt(h, kAlignDefault, kAlignCentreH, kAlignDefault)),
          vertical(enumFromInt(v, kAlignMiddle, kAlignBottom, kAlignMiddle)) {}
    bool operator==(const TextAlignment&) const = default;
};

/// One line of text inside a box: aligned horizontally as `align` says and
/// vertically as `valign` says, or with its baseline on `baseline` (the glob's y)
/// when that is given; cut off at the box's edges.
struct TextDescription {
    BoxInt box;
    LightweightString<wchar_t> text;
    FontDesc font;
    Colour colour;
    eHorizontalAlign align = kAlignLeft;
    // Shorten text that does not fit with an ellipsis instead of cutting it.
    bool ellipsize = false;
    eVerticalAlign valign = kAlignMiddle;
    std::optional<int> baseline;

    TextDescription() = default;
    TextDescription(const BoxInt& b, const LightweightString<wchar_t>& t, const FontDesc& f, const Colour& c, eHorizontalAlign a = kAlignLeft)
        : box(b), text(t), font(f), colour(c), align(a) {}
};

/// A picture, or the part `from` of it (in its own pixels, counted upward from its
/// bottom left; empty for all of it), stretched over `to`. Only pictures whose pixels
/// are in memory can be painted; others are skipped.
struct ImageDescription {
    Zn::Ptr<iImage> image;
    BoxInt from;
    BoxInt to;
    double opacity = 1.0;
    // Smooth when scaling; off, each picture pixel shows as a block (for magnifying).
    bool smooth = true;

    ImageDescription() = default;
    ImageDescription(const Zn::Ptr<iImage>& i, const BoxInt& dest, double o = 1.0) : image(i), to(dest), opacity(o) {}
};

} // namespace Glib
