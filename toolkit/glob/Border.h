#pragma once

#include "core/enumFromInt.h"

/// The frame of a panel: a type, a width in pixels, and the sides it covers (`sides`
/// bits: 1 left, 2 right, 4 bottom, 8 top). The type numbers are part of the
/// toolkit's contract (NUMBERS.md); the rounded types frame all four sides.
class Border {
public:
    enum eType {
        kNoBorder = 0,
        // A band in the darkest shade of the window colour: menus.
        kMenuBorder = 1,
        // A band in the darker shade: panels dropped from a button, which add a shadow.
        kDropMenuBorder = 2,
        // A rounded ring in the darker shade.
        kCurvedPanelBorder = 3,
        // Raised: light top and left, dark bottom and right. The default panel frame.
        kSquarePanelBorder = 4,
        // A rounded ring in the darkest shade.
        kDarkenedRoundedRect = 5,
        // A band in the text colour.
        kLineBorder = 6,
        // Sunken: dark top and left, light bottom and right.
        kSunkenBorder = 7,
        // Raised inside a line in the darkest shade: the frame of a dialogue.
        kDialogueBorder = 8,
    };
    // A number from outside as a type; one that names none gives kNoBorder.
    static constexpr eType typeFromInt(int type) { return enumFromInt(type, kNoBorder, kDialogueBorder, kNoBorder); }

    Border() = default;
    Border(eType type, unsigned short size, unsigned int sides) : type_(type), size_(size), sides_(sides) {}
    Border(int type, unsigned short size, unsigned int sides) : Border(typeFromInt(type), size, sides) {}

    eType type() const { return type_; }
    void setType(eType t) { type_ = t; }
    unsigned short size() const { return size_; }
    unsigned int sides() const { return sides_; }
    // The width the border takes on one side; 0 when that side has none.
    int left() const { return (sides_ & 1) ? size_ : 0; }
    int right() const { return (sides_ & 2) ? size_ : 0; }
    int bottom() const { return (sides_ & 4) ? size_ : 0; }
    int top() const { return (sides_ & 8) ? size_ : 0; }
    bool operator==(const Border&) const = default;

private:
    eType type_ = kNoBorder;
    unsigned short size_ = 0;
    unsigned int sides_ = 15;
};
