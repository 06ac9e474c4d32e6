#pragma once

#include "core/LightweightString.h"

#include <array>
#include <cstdint>

/// An IPv4 address of four octets with a port, 0.0.0.0:0 when made. fromString
/// reads the dotted form as people and entry boxes write it: octets may carry
/// leading zeros ("192.168.001.001"), and a colon may end the text with no port.
struct IPAddress {
    std::array<std::uint8_t, 4> octets{};
    std::uint16_t port = 0;

    IPAddress() = default;
    // The octet at `index` (0 is the first written); 0 past the fourth.
    std::uint8_t getPart(unsigned char index) const { return index < octets.size() ? octets[index] : 0; }
    // Four decimal octets of at most three digits and up to 255, separated by
    // dots, optionally followed by ":" and a port of at most five digits up to
    // 65535 (an empty port is 0). Blanks around the whole are allowed. On false
    // the address is left as it was.
    bool fromString(const LightweightString<wchar_t>& text);
};
