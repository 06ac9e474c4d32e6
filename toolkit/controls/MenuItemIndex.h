#pragma once

#include "core/LightweightString.h"

#include <vector>

class MenuItem;

/// Picks one choice of a list of menu rows: by its place among the rows that are
/// choices (headings and gaps are not counted), or, when the index is kByName, by
/// its text.
struct MenuItemIndex {
    static constexpr unsigned short kByName = 0xFFFF;

    LightweightString<wchar_t> name;
    unsigned short index = 0;

    MenuItemIndex() = default;
    MenuItemIndex(unsigned short i) : index(i) {}
    MenuItemIndex(const LightweightString<wchar_t>& n, unsigned short i = kByName) : name(n), index(i) {}

    bool byName() const { return index == kByName; }
    // The choice of `items` that this picks, counted among the choices, or -1 when
    // none matches. A name matches a row's whole text or the part before its column mark.
    int resolve(const std::vector<MenuItem>& items) const;
};
