#pragma once

#include "core/LightweightString.h"
#include "core/LightweightVector.h"

namespace Zn {

/// A name and a value, as in "format=HD" or a condition "id:value".
class AttribValuePair {
public:
    AttribValuePair() = default;
    AttribValuePair(const LightweightString<char>& name, const LightweightString<char>& value) : name_(name), value_(value), valid_(true) {}
    // Splits the text at the first separator; without one the pair is not valid.
    AttribValuePair(const LightweightString<char>& text, char separator);

    const LightweightString<char>& name() const { return name_; }
    const LightweightString<char>& value() const { return value_; }
    // True when the text had the form name, separator, value.
    bool valid() const { return valid_; }
    bool operator==(const AttribValuePair&) const = default;

    // The pairs of a list such as "a=1,b=2"; items without the separator are left out.
    static LightweightVector<AttribValuePair> vecFromString(const LightweightString<char>& text, char separator, char listSeparator);

private:
    LightweightString<char> name_;
    LightweightString<char> value_;
    bool valid_ = false;
};

} // namespace Zn
