#pragma once

// The frame of a panel. Types: 0 none, 1 a plain line, 2 raised (light top left,
// dark bottom right), 3 sunken. `sides` picks the sides: 1 left, 2 right, 4 bottom, 8 top.
class Border {
public:
    enum eType { kNone = 0, kLine = 1, kRaised = 2, kSunken = 3 };

    Border() = default;
    Border(eType type, unsigned short size, unsigned int sides) : type_(type), size_(size), sides_(sides) {}
    Border(int type, unsigned short size, unsigned int sides) : Border(static_cast<eType>(type), size, sides) {}

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
    eType type_ = kNone;
    unsigned short size_ = 0;
    unsigned int sides_ = 15;
};
