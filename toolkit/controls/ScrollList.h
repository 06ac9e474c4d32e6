#pragma once

#include "StandardPanel.h"
#include "core/WidgetCallback.h"

#include <vector>

class CanvasRenderer;
class ScrollBar;

/// A scrolling list of text rows, all of one height, with a vertical ScrollBar at
/// its right. Rows are painted, not made as widgets, so a list of any length costs
/// only the rows in view.
///
/// The mouse selects a row (Ctrl toggles and Shift extends in a multiple-selection
/// list), a double click or Return activates it; the arrow keys, Home, End, Page Up
/// and Page Down move the selection, and a typed letter jumps to the next row that
/// starts with it. A change that the user makes fires the selection callback (or
/// sends selectionChangedMsg to the owner); activation fires the activation callback
/// (or sends itemActivatedMsg). Changes made in code notify only when asked to.
/// Subclasses paint their own rows through drawItem.
class ScrollList : public StandardPanel, public TabOrderable {
public:
    /// What a ScrollList is made from: its rows, their height, whether several may be
    /// selected, and what selecting and activating do.
    struct InitArgs : StandardPanel::InitArgs {
        std::vector<LightweightString<wchar_t>> items;
        // 0: UifStd's row height.
        unsigned short lineHeight = 0;
        bool multiSelect = false;
        WidgetCallback selectionCallback;
        WidgetCallback activationCallback;
        InitArgs() = default;
        InitArgs(unsigned short w, unsigned short h, std::vector<LightweightString<wchar_t>> rows = {})
            : StandardPanel::InitArgs(w, h), items(std::move(rows)) {}
    };

    static constexpr const char* selectionChangedMsg = "ScrollListSelectionChanged";
    static constexpr const char* itemActivatedMsg = "ScrollListItemActivated";

    explicit ScrollList(const InitArgs& args);
    ~ScrollList() override;
    const char* idstring() const override { return "ScrollList"; }

    // Replaces the rows; the selection is cleared and the view goes back to the top.
    virtual void setItems(const std::vector<LightweightString<wchar_t>>& items);
    const std::vector<LightweightString<wchar_t>>& getItems() const { return items_; }
    void addItem(const LightweightString<wchar_t>& item);
    int numItems() const { return static_cast<int>(items_.size()); }
    // The text of a row, or the empty string past the end.
    LightweightString<wchar_t> getItem(int index) const;
    virtual void setLineHeight(unsigned short h);
    unsigned short getLineHeight() const { return lineHeight_; }
    void setMultiSelect(bool multi);
    bool isMultiSelect() const { return multi_; }
    void setSelectionCallback(const WidgetCallback& c) { onSelect_ = c; }
    void setActivationCallback(const WidgetCallback& c) { onActivate_ = c; }

    // The current row (the last one clicked or moved to), or -1.
    int getSelectedIndex() const { return current_; }
    // Every selected row, in list order.
    std::vector<int> getSelection() const;
    bool isSelected(int index) const;
    // Makes `index` the only selected row and reveals it; -1 or a row past the end clears.
    void select(int index, bool notify = false);
    // Adds a row to the selection or takes it out; in a single-selection list adding
    // one replaces the selection.
    void setSelected(int index, bool on, bool notify = false);
    void clearSelection(bool notify = false);

    // Scrolling, in whole rows.
    int getFirstVisible() const { return first_; }
    void scrollTo(int firstRow);
    // Rows that fit wholly in the view.
    int numVisibleRows() const;
    void ensureVisible(int index);
    // The row under a point of this list, or -1.
    int itemAt(XY<int> local) const;
    // Where a row is drawn, in this list's coordinates; it may lie outside the view.
    BoxInt itemBox(int index) const;
    // The part of the list that rows are drawn in: the user area less the scroll bar.
    BoxInt listArea() const;
    ScrollBar* scrollBar() const { return bar_; }

    void resize(double w, double h) override;
    void drawBackground() override;
    int handleMouseEvent(const Event& e) override;
    int handleKeyboardEvent(int key) override;
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;
    bool acceptsKbdFocus() const override { return isActive() && isVisible(); }
    void handleKbdFocus(bool) override { redraw(); }
    Glob* tabGlob() override { return this; }
    bool canTakeTabFocus() override { return acceptsKbdFocus(); }

protected:
    // Paints one row in `box`; the default draws its text, on the selection colour
    // when it is selected.
    virtual void drawItem(const CanvasRenderer& r, int index, const BoxInt& box, bool selected);
    // A mouse press or release on a row, at `inRow` from the row's bottom left. True
    // when the subclass took it, and then the list does not select.
    virtual bool handleItemMouse(int index, XY<int> inRow, const Event& e) { return false; }
    // Keys before the list's own; non-zero consumes.
    virtual int handleItemKey(int key) { return 0; }
    // Called when a row is activated, and when the selection changed with a notice
    // to come, before the owner is told.
    virtual void itemActivated(int index) {}
    virtual void selectionChanged() {}
    // The user moved to `index`: selects as the modifiers say, reveals it and notifies.
    void moveTo(int index, unsigned modifiers);
    void activate(int index);
    void notifySelection();
    void fire(const WidgetCallback& callback, const char* fallback);

private:
    void updateBar();
    int maxFirst() const;

    std::vector<LightweightString<wchar_t>> items_;
    std::vector<bool> selected_;
    unsigned short lineHeight_;
    bool multi_;
    int current_ = -1;
    int anchor_ = -1;
    int first_ = 0;
    ScrollBar* bar_ = nullptr;
    WidgetCallback onSelect_, onActivate_;
};
