#pragma once

#include "core/Box.h"
#include "core/LightweightString.h"

class Glob;

// Where a child goes. 0 hangs it from a sibling; 17 asks for no position, which
// centres a child in its parent and lets a top-level glob go where the manager puts it. The
// plain forms are relative to the parent's whole area, the User forms to its user
// area (inside the border and title). Offsets count inward from the named corner or
// edge; the centred forms add the offset to the centred place.
enum eCoordinateOrigin {
    kSiblingRelative = 0,
    kBottomLeft = 1,
    kBottomRight = 2,
    kTopLeft = 3,
    kTopRight = 4,
    kCentre = 5,
    kLeftCentre = 6,
    kRightCentre = 7,
    kBottomCentre = 8,
    kTopCentre = 9,
    kUserBottomLeft = 10,
    kUserBottomRight = 11,
    kUserTopLeft = 12,
    kUserTopRight = 13,
    kUserCentre = 14,
    kUserBottomCentre = 15,
    kUserTopCentre = 16,
    kNoPosition = 17,
};

// 4 says no side was chosen.
enum eWidgetRelativity { kAbove = 0, kBelow = 1, kLeftOf = 2, kRightOf = 3, kNoRelativity = 4 };

// For Above and Below: 0 lines up left edges, 1 centres, 2 lines up right edges.
// For LeftOf and RightOf: 0 lines up bottom edges, 1 centres, 2 lines up top edges.
enum eWidgetAlignment { kAlignStart = 0, kAlignCentre = 1, kAlignEnd = 2 };

struct SiblingRelativePosition {
    eWidgetRelativity relativity = kBelow;
    Glob* sibling = nullptr;
    int gap = 0;
    eWidgetAlignment alignment = kAlignStart;
};

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

// Places a box of `size` beside `sibling` as `rel` says.
BoxInt placeBeside(XY<int> size, const BoxInt& sibling, const SiblingRelativePosition& rel);

LightweightString<char> asString(eCoordinateOrigin origin);
LightweightString<char> asString(eWidgetRelativity relativity);
// Unknown words give kNoPosition and kNoRelativity.
eCoordinateOrigin CoordinateOriginFromString(const LightweightString<char>& text);
eWidgetRelativity WidgetRelativityFromString(const LightweightString<char>& text);
