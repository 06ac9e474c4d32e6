#pragma once

#include "core/LightweightString.h"

#include <cstdint>
#include <vector>

/// What a TreeView shows: items named by ids of the adaptor's choosing, asked for
/// level by level as the user opens them. The id 0 is the invisible root, whose
/// children are the top level. The view keeps only ids, so an adaptor may answer
/// from live data; an id that has gone simply stops being listed.
class iTreeViewAdaptor {
public:
    using ItemId = std::uint64_t;

    virtual ~iTreeViewAdaptor() = default;

    virtual std::vector<ItemId> getChildren(ItemId parent) = 0;
    virtual LightweightString<wchar_t> getItemText(ItemId item) = 0;
    // Whether an item can be opened; the view asks before it draws the opener.
    virtual bool hasChildren(ItemId item) { return !getChildren(item).empty(); }
    // The user chose an item, or activated it (double click, Return).
    virtual void handleItemSelected(ItemId) {}
    virtual void handleItemActivated(ItemId) {}
};
