#pragma once

#include "LightweightString.h"

/// The lifetime identity of one object: three numbers, never reused while the
/// process runs. IdStamp(0, 0, 0) is the null stamp.
class IdStamp {
public:
    IdStamp() = default;
    IdStamp(unsigned a, unsigned b, unsigned c) : a_(a), b_(b), c_(c) {}
    // Reads the text made by asString(); anything else gives the null stamp.
    explicit IdStamp(const char* text);

    // A stamp that no other object of this process has had.
    static IdStamp make();

    bool valid() const { return a_ || b_ || c_; }
    LightweightString<char> asString() const;
    bool operator==(const IdStamp&) const = default;
    auto operator<=>(const IdStamp&) const = default;

    unsigned first() const { return a_; }
    unsigned second() const { return b_; }
    unsigned third() const { return c_; }

private:
    unsigned a_ = 0, b_ = 0, c_ = 0;
};
