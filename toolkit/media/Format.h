#pragma once

#include "core/LightweightString.h"

#include <compare>
#include <cstdint>

namespace Zn {
namespace Image {

/// A four-character code of a pixel layout or a compression, its first character in
/// the lowest byte: "YUY2" is 0x32595559. All bits set is no format.
class Format {
public:
    static constexpr std::uint32_t kNone = 0xFFFFFFFFu;

    constexpr Format() = default;
    constexpr explicit Format(std::uint32_t code) : code_(code) {}
    constexpr Format(const char (&chars)[5]) : code_(byte(chars[0]) | byte(chars[1]) << 8 | byte(chars[2]) << 16 | byte(chars[3]) << 24) {}

    constexpr std::uint32_t code() const { return code_; }
    constexpr bool isNone() const { return code_ == kNone; }
    // The four characters, a byte that is no printable ASCII shown as '?'; empty for none.
    LightweightString<char> toString() const;

    constexpr auto operator<=>(const Format&) const = default;

private:
    static constexpr std::uint32_t byte(char c) { return static_cast<std::uint8_t>(c); }

    std::uint32_t code_ = kNone;
};

} // namespace Image
} // namespace Zn
