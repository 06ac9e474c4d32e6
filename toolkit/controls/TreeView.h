#pragma once

#include "ScrollList.h"
#include "iTreeViewAdaptor.h"

#include <set>

/// A tree of items from an iTreeViewAdaptor, shown as an indented list in which an
/// item with children has an opener. A click on the opener, Right and Left, or a
/// double click open and close items; Up and Down walk the visible rows, Left on a
/// closed item goes to its parent. Choosing an item tells the adaptor
/// (handleItemSelected) and then the owner, as a ScrollList does.
///
/// The adaptor is not owned and must outlive the view. The view reads the tree when
/// it is made and at refresh(); items whose id has gone drop out, open items and the
/// selection are kept by id.
class TreeView : public ScrollList {
public:
    using ItemId = iTreeViewAdaptor::ItemId;

    /// What a TreeView is made from: a list's record and the adaptor of the tree (not owned).
    struct InitArgs : ScrollList::InitArgs {
        iTreeViewAdaptor* adaptor = nullptr;
        InitArgs() = default;
        InitArgs(unsigned short w, unsigned short h, iTreeViewAdaptor* a) : ScrollList::InitArgs(w, h), adaptor(a) {}
    };

    explicit TreeView(const InitArgs& args);
    const char* idstring() const override { return "TreeView"; }

    void setAdaptor(iTreeViewAdaptor* adaptor);
    // Reads the tree again.
    void refresh();

    void expand(ItemId item);
    void collapse(ItemId item);
    void toggle(ItemId item);
    bool isExpanded(ItemId item) const { return expanded_.count(item) != 0; }
    // Opens every item down to `depth` levels below the top.
    void expandAll(int depth = 64);

    // The selected item, or 0.
    ItemId getSelectedItem() const { return itemAtRow(getSelectedIndex()); }
    // Selects an item that is in a visible row; false when it is not.
    bool selectItem(ItemId item, bool notify = false);
    // The item shown in a row, or 0; its depth, 0 for the top level.
    ItemId itemAtRow(int row) const;
    int depthOfRow(int row) const;
    int rowOfItem(ItemId item) const;

protected:
    void drawItem(const CanvasRenderer& r, int index, const BoxInt& box, bool selected) override;
    bool handleItemMouse(int index, XY<int> inRow, const Event& e) override;
    int handleItemKey(int key) override;
    void itemActivated(int index) override;
    void selectionChanged() override;

private:
    struct Row {
        ItemId id;
        int depth;
        bool hasChildren;
    };
    void rebuild();
    void addRows(ItemId parent, int depth, std::vector<ItemId>& path, std::vector<LightweightString<wchar_t>>& texts);
    BoxInt openerBox(int row, const BoxInt& rowBox) const;

    iTreeViewAdaptor* adaptor_;
    std::vector<Row> rows_;
    std::set<ItemId> expanded_;
};
