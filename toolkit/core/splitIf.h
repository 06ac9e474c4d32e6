#pragma once

#include "LightweightString.h"

#include <vector>

namespace Zn {

// How splitIf treats empty pieces.
enum eSplitOption {
    // Inner empty pieces are kept; one separator at the very start or the very end
    // makes no piece, so text written line by line ("a\n") splits as it was
    // written. The empty text, or one separator alone, gives one empty piece.
    kSplitTrimEnds = 0,
    // Every separator splits: "a," gives "a" and "".
    kSplitKeepEmpty = 1,
    // Empty pieces are dropped; empty text gives no piece at all.
    kSplitSkipEmpty = 2,
};

// The pieces of `text` between the characters for which `isSeparator` is true.
// An unknown option is taken as kSplitTrimEnds.
template <class C, class Pred>
std::vector<LightweightString<C>> splitIf(const LightweightString<C>& text, Pred isSeparator, int option = kSplitTrimEnds) {
    std::basic_string_view<C> v = text.view();
    if (option != kSplitKeepEmpty && option != kSplitSkipEmpty) {
        if (!v.empty() && isSeparator(v.front())) v.remove_prefix(1);
        if (!v.empty() && isSeparator(v.back())) v.remove_suffix(1);
    }
    std::vector<LightweightString<C>> pieces;
    std::size_t start = 0;
    for (std::size_t i = 0; i <= v.size(); ++i) {
        if (i < v.size() && !isSeparator(v[i])) continue;
        if (option != kSplitSkipEmpty || i > start) pieces.emplace_back(v.substr(start, i - start));
        start = i + 1;
    }
    return pieces;
}

// The pieces of `text` between occurrences of `separator`.
std::vector<LightweightString<wchar_t>> splitIf(const LightweightString<wchar_t>& text, wchar_t separator, int option = kSplitTrimEnds);
std::vector<LightweightString<char>> splitIf(const LightweightString<char>& text, char separator, int option = kSplitTrimEnds);

} // namespace Zn
