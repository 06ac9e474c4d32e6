#include "WidgetPosition.h"

#include "core/enumFromInt.h"

#include <array>

namespace {

// In the order of the enumerations, so that a name's index is its number.
const std::array<const char*, 18> kOriginNames = {
    "SiblingRelative", "BottomLeft",   "TopLeft",         "TopRight",         "BottomRight",   "UserBottomLeft",
    "UserTopLeft",     "UserTopRight", "UserBottomRight", "Centre",           "LeftCentre",    "RightCentre",
    "BottomCentre",    "TopCentre",    "UserCentre",      "UserBottomCentre", "UserTopCentre", "None",
};
const std::array<const char*, 5> kRelativityNames = {"None", "LeftOf", "RightOf", "Above", "Below"};

// Aligns a length `len` along [lo, hi) as `a` says.
int align(int len, int lo, int hi, eWidgetAlignment a) {
    switch (a) {
    case kAlignCentre: return lo + (hi - lo - len) / 2;
    case kAlignEnd: return hi - len;
    default: return lo;
    }
}

// The plain form of a User origin; any other origin stays as it is.
eCoordinateOrigin wholeAreaForm(eCoordinateOrigin o) {
    switch (o) {
    case kUserBottomLeft: return kBottomLeft;
    case kUserTopLeft: return kTopLeft;
    case kUserTopRight: return kTopRight;
    case kUserBottomRight: return kBottomRight;
    case kUserCentre: return kCentre;
    case kUserBottomCentre: return kBottomCentre;
    case kUserTopCentre: return kTopCentre;
    default: return o;
    }
}

// Places `size` inside `area` by a corner, edge or centre code of the plain family.
BoxInt placeIn(eCoordinateOrigin o, XY<int> off, XY<int> size, const BoxInt& area) {
    int left = area.x1 + off.x, right = area.x2 - off.x - size.x;
    int bottom = area.y1 + off.y, top = area.y2 - off.y - size.y;
    int cx = area.x1 + (area.width() - size.x) / 2 + off.x, cy = area.y1 + (area.height() - size.y) / 2 + off.y;
    XY<int> p;
    switch (o) {
    case kBottomRight: p = {right, bottom}; break;
    case kTopLeft: p = {left, top}; break;
    case kTopRight: p = {right, top}; break;
    case kCentre: p = {cx, cy}; break;
    case kLeftCentre: p = {left, cy}; break;
    case kRightCentre: p = {right, cy}; break;
    case kBottomCentre: p = {cx, bottom}; break;
    case kTopCentre: p = {cx, top}; break;
    default: p = {left, bottom}; break;
    }
    return BoxInt(p, size);
}

} // namespace

eWidgetRelativity oppositeSide(eWidgetRelativity side) {
    switch (side) {
    case kLeftOf: return kRightOf;
    case kRightOf: return kLeftOf;
    case kAbove: return kBelow;
    case kBelow: return kAbove;
    default: return kNoRelativity;
    }
}

BoxInt placeBeside(XY<int> size, const BoxInt& s, const SiblingRelativePosition& rel) {
    XY<int> p;
    switch (rel.relativity) {
    case kAbove: p = {align(size.x, s.x1, s.x2, rel.alignment), s.y2 + rel.gap}; break;
    case kLeftOf: p = {s.x1 - rel.gap - size.x, align(size.y, s.y1, s.y2, rel.alignment)}; break;
    case kRightOf: p = {s.x2 + rel.gap, align(size.y, s.y1, s.y2, rel.alignment)}; break;
    default: p = {align(size.x, s.x1, s.x2, rel.alignment), s.y1 - rel.gap - size.y}; break;
    }
    return BoxInt(p, size);
}

BoxInt WidgetPosition::resolve(XY<int> size, XY<int> parentSize, const BoxInt& userArea, const BoxInt* sibling) const {
    BoxInt whole(0, 0, parentSize.x, parentSize.y);
    if (origin == kSiblingRelative) {
        // With no earlier sibling, a relative child starts at the top left of the user area.
        return sibling ? placeBeside(size, *sibling, relative) : placeIn(kTopLeft, {}, size, userArea);
    }
    if (eCoordinateOrigin plain = wholeAreaForm(origin); plain != origin) return placeIn(plain, offset, size, userArea);
    if (origin == kNoPosition) {
        // No position asked for: centred in the parent, the odd pixel to the bottom left margin.
        auto half = [](int spare) { return spare > 0 ? (spare + 1) / 2 : spare / 2; };
        return BoxInt(XY<int>(half(parentSize.x - size.x), half(parentSize.y - size.y)), size);
    }
    return placeIn(origin, offset, size, whole);
}

LightweightString<char> asString(eCoordinateOrigin origin) {
    auto i = static_cast<std::size_t>(origin);
    return i < kOriginNames.size() ? kOriginNames[i] : "None";
}

LightweightString<char> asString(eWidgetRelativity relativity) {
    auto i = static_cast<std::size_t>(relativity);
    return i < kRelativityNames.size() ? kRelativityNames[i] : "None";
}

eCoordinateOrigin CoordinateOriginFromString(const LightweightString<char>& text) {
    for (std::size_t i = 0; i < kOriginNames.size(); ++i)
        if (text == kOriginNames[i]) return static_cast<eCoordinateOrigin>(i);
    return kNoPosition;
}

eWidgetRelativity WidgetRelativityFromString(const LightweightString<char>& text) {
    for (std::size_t i = 0; i < kRelativityNames.size(); ++i)
        if (text == kRelativityNames[i]) return static_cast<eWidgetRelativity>(i);
    return kNoRelativity;
}

eCoordinateOrigin CoordinateOriginFromInt(int value) { return enumFromInt(value, kSiblingRelative, kNoPosition, kNoPosition); }

eWidgetRelativity WidgetRelativityFromInt(int value) { return enumFromInt(value, kNoRelativity, kBelow, kNoRelativity); }

eWidgetAlignment WidgetAlignmentFromInt(int value) { return enumFromInt(value, kAlignNone, kAlignEnd, kAlignNone); }
