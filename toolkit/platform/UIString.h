#pragma once

#include "core/LightweightString.h"

#include <cstdint>

using ResId = std::uint32_t;
using ResStrFmt = std::uint32_t;

/// User-visible text, given literally or as a resource id. getString() looks an
/// empty text up by id, and appends ".." when flag bit 0 is set.
class UIString {
public:
    static constexpr ResId kNoResource = 999999;
    static constexpr std::uint32_t kEllipsisFlag = 1;

    UIString() = default;
    UIString(const LightweightString<wchar_t>& text) : text_(text), id_(kNoResource) {}
    UIString(const wchar_t* text) : UIString(LightweightString<wchar_t>(text)) {}
    explicit UIString(ResId id, ResStrFmt format = 0, std::uint32_t flags = 0) : id_(id), format_(format), flags_(flags) {}
    UIString(const LightweightString<wchar_t>& text, ResId id, ResStrFmt format = 0, std::uint32_t flags = 0)
        : text_(text), id_(id), format_(format), flags_(flags) {}

    LightweightString<wchar_t> getString() const;
    const LightweightString<wchar_t>& text() const { return text_; }
    ResId resId() const { return id_; }
    ResStrFmt format() const { return format_; }
    std::uint32_t flags() const { return flags_; }
    void setFlags(std::uint32_t f) { flags_ = f; }
    // True when getString() would give the empty string.
    bool empty() const { return getString().empty(); }
    bool operator==(const UIString&) const = default;

private:
    LightweightString<wchar_t> text_;
    ResId id_ = 0;
    ResStrFmt format_ = 0;
    std::uint32_t flags_ = 0;
};
