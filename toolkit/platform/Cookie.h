#pragma once

#include "core/LightweightString.h"

#include <cstdint>

/// A unique identifier with a kind letter, a version and a flag word, written as
/// text that is safe in a file name: the kind letter, the version and flags in hex,
/// then 32 hex digits, such as "T00-00-9f0c...". Text that is not a cookie reads
/// back as the null cookie.
class Cookie {
public:
    Cookie() = default;
    Cookie(char kind, std::uint8_t version, std::uint8_t flags, std::uint64_t high, std::uint64_t low)
        : kind_(kind), version_(version), flags_(flags), high_(high), low_(low) {}
    explicit Cookie(const LightweightString<char>& text);

    bool isNull() const { return kind_ == 0; }
    char kind() const { return kind_; }
    std::uint8_t version() const { return version_; }
    std::uint8_t flags() const { return flags_; }

    LightweightString<char> asString() const;
    LightweightString<wchar_t> asWString() const;
    bool operator==(const Cookie&) const = default;

private:
    char kind_ = 0;
    std::uint8_t version_ = 0, flags_ = 0;
    std::uint64_t high_ = 0, low_ = 0;
};
