#pragma once

#include "core/LightweightString.h"

#include <compare>
#include <cstdint>

namespace Zn {
namespace Image {

/// The stable number of a format in the table of digital video formats. Its text
/// form, kept in preferences, is the decimal number; 0 is no format.
class FormatUID {
public:
    constexpr FormatUID() = default;
    constexpr explicit FormatUID(std::uint32_t value) : value_(value) {}
    // Decimal digits that fit in 32 bits; any other text gives no format.
    explicit FormatUID(const LightweightString<char>& text);

    constexpr std::uint32_t value() const { return value_; }
    constexpr bool isNull() const { return value_ == 0; }
    LightweightString<char> toString() const;

    constexpr auto operator<=>(const FormatUID&) const = default;

private:
    std::uint32_t value_ = 0;
};

} // namespace Image
} // namespace Zn
