#pragma once

#include "core/Box.h"
#include "core/LightweightString.h"

class Glob;

// Where a child goes. 0 hangs it from a sibling; 17 asks for no position, which
// centres a child in its parent and lets a top-level glob go where the manager puts it. The
// plain forms are relative to the parent's whole area, the User forms to its user
// area (inside the border and title). Offsets count inward from the named corner or
// edge; the centred forms add the offset to the centred place. The numbers are part
// of the toolkit's contract (NUMBERS.md): corners run clockwise from the bottom left,
// first of the whole area, then of the user area.
enum eCoordinateOrigin {
    kSiblingRelative = 0,
    kBottomLeft = 1,
    kTopLeft = 2,
    kTopRight = 3,
    kBottomRight = 4,
    kUserBottomLeft = 5,
    kUserTopLeft = 6,
    kUserTopRight = 7,
    kUserBottomRight = 8,
    kCentre = 9,
    kLeftCentre = 10,
    kRightCentre = 11,
    kBottomCentre = 12,
    kTopCentre = 13,
    kUserCentre = 14,
    kUserBottomCentre = 15,
    kUserTopCentre = 16,
    kNoPosition = 17,
};

// The side of a sibling a child goes on; 0 says no side was chosen.
enum eWidgetRelativity { kNoRelativity = 0, kLeftOf = 1, kRightOf = 2, kAbove = 3, kBelow = 4 };

// For Above and Below: start lines up left edges, centre centres, end lines up right edges.
// For LeftOf and RightOf: start lines up bottom edges, end top edges. 0 asks for
// nothing in particular and lines up the start edges.
enum eWidgetAlignment { kAlignNone = 0, kAlignStart = 1, kAlignCentre = 2, kAlignEnd = 3 };

/// A place beside a sibling: which side, how far off, and which edges line up.
struct SiblingRelativePosition {
    eWidgetRelativity relativity = kBelow;
    Glob* sibling = nullptr;
    int gap = 0;
    eWidgetAlignment alignment = kAlignStart;
};

/// Where a child goes in its parent: an offset from one of the parent's corners or
/// sides (`origin`), or a place beside a sibling; kNoPosition centres it.
struct WidgetPosition {
    eCoordinateOrigin origin = kNoPosition;
    XY<int> offset;
    SiblingRelativePosition relative;

    WidgetPosition() = default;
    WidgetPosition(eCoordinateOrigin o, XY<int> off) : origin(o), offset(off) {}
    WidgetPosition(const SiblingRelativePosition& r) : origin(kSiblingRelative), relative(r) {}

    // The child's box in the parent's coordinates, for a child of `size` in a parent of
    // `parentSize` with user area `userArea`; `sibling` is the box of the sibling that a
    // relative position hangs from, null when there is none.
    BoxInt resolve(XY<int> size, XY<int> parentSize, const BoxInt& userArea, const BoxInt* sibling) const;
};

// The side across from `side`: Above for Below, LeftOf for RightOf; kNoRelativity stays.
eWidgetRelativity oppositeSide(eWidgetRelativity side);

// Places a box of `size` beside `sibling` as `rel` says.
BoxInt placeBeside(XY<int> size, const BoxInt& sibling, const SiblingRelativePosition& rel);

LightweightString<char> asString(eCoordinateOrigin origin);
LightweightString<char> asString(eWidgetRelativity relativity);
// Unknown words give kNoPosition and kNoRelativity.
eCoordinateOrigin CoordinateOriginFromString(const LightweightString<char>& text);
eWidgetRelativity WidgetRelativityFromString(const LightweightString<char>& text);
// A number from outside as an enumerator; a number that names none gives
// kNoPosition, kNoRelativity and kAlignNone.
eCoordinateOrigin CoordinateOriginFromInt(int value);
eWidgetRelativity WidgetRelativityFromInt(int value);
eWidgetAlignment WidgetAlignmentFromInt(int value);
