#pragma once

#include "core/LightweightString.h"

#include <vector>

/// Which file names a file browser shows: a list of extensions ("png", ".png") or
/// patterns with * and ? ("*.png", "take_??.wav"), matched without regard to case.
/// An empty list, or one holding "*" or "*.*", accepts every name. Entries that are
/// empty or hold a path separator are dropped; "png;jpg" counts as two entries.
class FileFilter {
public:
    FileFilter() = default;
    explicit FileFilter(const std::vector<LightweightString<wchar_t>>& entries);

    bool acceptsAll() const { return patterns_.empty(); }
    bool matches(const LightweightString<wchar_t>& name) const;
    // The patterns as the user reads them: "*.png; *.jpg", or "*" for all.
    LightweightString<wchar_t> describe() const;
    // The patterns after normalising, lower case, each with its * and ?.
    const std::vector<LightweightString<wchar_t>>& patterns() const { return patterns_; }

    // Lower case for comparing names, beyond ASCII as far as the C library knows.
    static LightweightString<wchar_t> folded(const LightweightString<wchar_t>& text);

private:
    void add(LightweightString<wchar_t> entry);

    std::vector<LightweightString<wchar_t>> patterns_;
    bool all_ = false;
};
